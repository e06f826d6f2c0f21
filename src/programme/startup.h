/// What must be settled before the main window appears: the language and the decimal separator.
#pragma once

#include "programme/programme.h"

#include <functional>

namespace loftwing {

/// Loads the language that the settings file names. While it names none, `choose` shows the
/// language dialog and a box asks for a choice; without one this never ends, since the program has
/// no words of its own. A language file that can't be read is reported, and texts stay empty. The
/// buttons of boxes speak the language from here on.
void ChargeLangue(Programme &programme, const std::function<void()> &choose);

/// Warns of a decimal separator other than the point, which all airfoil files use. False when the
/// user wants to quit and change it first. The warning comes once in a run of the program, and
/// never again in any run when its tick "don't show again" is left as it is.
bool ControleSeparateur(Programme &programme);

/// The same in front of a command, whose tool tip is `tip`, where the start had nothing to tell.
/// False when the user cancels it.
bool ControleSeparateurCommande(Programme &programme, LngKey tip);

} // namespace loftwing
