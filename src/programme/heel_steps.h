/// The margins of an opened rib's heel, which aren't in force until somebody confirms them.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"

namespace loftwing {

/// Takes the heel's margins into use and redraws. False when they are too long, which a box told.
/// Failures of VersMm.
bool ConfirmeMarges(Programme &programme, CommandView &view);

/// Before the rib leaves the program: asks whether margins that aren't in force shall be. Yes takes
/// them into use, No leaves the rib as it is shown. False when there is nothing to go on with: the
/// margins were asked for and are too long, or the rib can't be drawn with them. Failures of
/// VersMm.
bool DemandeMarges(Programme &programme, CommandView &view);

} // namespace loftwing
