/// Going back to what was on the screen, and forth again.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"

#include <string>

namespace loftwing {

/// Takes the unit that a rib's texts are in, with the page that goes with it: the user's own where
/// it is the user's unit.
void PrendUnite(Programme &programme, CommandView &view, const std::string &Unite);

/// Takes in what is on the screen. Called after whatever could have changed the rib.
void NoteEtat(Programme &programme);

/// The next step that Undo or Redo would take, in words ("spar 2"); empty where there is none.
std::string PasAnnulable(const Programme &programme);
std::string PasRetablissable(const Programme &programme);

/// One step back or forth; nothing where there is none. The rib is shown as it was, with the unit
/// that its texts are in. Zoom and scroll stay as long as the airfoil does, and so do the windows
/// that stand open beside the main one.
void AnnulePas(Programme &programme, CommandView &view);
void RetablitPas(Programme &programme, CommandView &view);

} // namespace loftwing
