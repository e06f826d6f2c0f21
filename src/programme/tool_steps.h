/// What the main window does for its tools.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"

#include <optional>
#include <string>

namespace loftwing {

/// Whether a set of ribs may take the place of the rib. Where changes could be lost the user says.
bool ConfirmeJeu(Programme &programme, CommandView &view);
/// Clears the rib for it.
void FaitPlaceAuJeu(const Programme &programme, CommandView &view);

/// Asks for the number of intermediate ribs until it is one that can be had; 0 when the user gives
/// up. `titre` is the title of the question.
int DemandeNombre(const Programme &programme, const std::string &titre);

/// Lets the user pick an airfoil for a tool; the rib stays as it was. Nothing when it was
/// cancelled.
std::optional<ProfilChoisi> ChoisitPourOutil(Programme &programme, CommandView &view,
                                             const std::string &titre);

/// Opens the page that tells of new versions, or says that no address is set: the site is a line of
/// the settings file ([Version], Site). Failure of the browser is not told.
void VerifieVersion(const Programme &programme);

/// Starts the desktop's calculator, or says that there is none.
void OuvreCalculette(const Programme &programme);

} // namespace loftwing
