/// The commands that open and save ribs and airfoils.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"

#include <string>

namespace loftwing {

/// Lets the user pick an airfoil and opens it; false when it was cancelled or the rib that was
/// there is kept.
bool OuvreProfil(Programme &programme, CommandView &view);

/// Lets the user choose a rib components file and opens it, asking first where that loses changes.
void OuvreRib(Programme &programme, CommandView &view);

/// Opens a file that is known: an airfoil, or a rib components file, before which changes are asked
/// for. An airfoil that is refused or of which nothing can be drawn, or on whose chord not all of
/// the rib fits and the user says so, leaves the rib; one whose reading fails clears it.
/// Where import can read what was refused, the box asks whether it should: a Yes shows the import.
void OuvreFichier(Programme &programme, CommandView &view, const std::string &path);
/// The same for a rib components file of the recent ones. One that is gone is told, and the rib
/// stays.
void OuvreRibRecent(Programme &programme, CommandView &view, const std::string &path);
/// Opens the next airfoil of the folder, or the previous one where `pas` is -1; a box says where
/// there is none. A file that can't be taken is told and leaves the rib, and the next call goes on
/// from it.
void OuvreVoisin(Programme &programme, CommandView &view, int pas);
/// Under which a failure of that is reported.
std::string EtiquetteOuverture(const std::string &path);

/// Reads the rib's file anew in the unit that isn't in force, after the usual question where that
/// loses changes. The unit, with the page that goes with it, holds for this rib; the one on file
/// comes back when the rib is cleared.
void OuvreAutreUnite(Programme &programme, CommandView &view);

/// Under which a failure of saving is reported.
inline constexpr const char *kEtiquetteEnregistre = " Main/Mnu_SaveAs";

/// Saves the rib as a rib components file that the user names.
void EnregistreRib(Programme &programme, CommandView &view);

} // namespace loftwing
