/// What happens to the program's values when it starts, without a window in sight.
#pragma once

#include "programme/programme.h"

namespace loftwing {

/// Reads the settings file into the program, or writes it in full on a first run (then
/// PremierDemarrage is set), and looks after the airfoil folders. A settings file that can't be
/// read or made is told once, and the built-in defaults hold for this run.
void ChargeReglages(Programme &programme);

/// Tells once that the settings file can't be used, as soon as there is a language to say it in.
void DitReglagesPerdus(Programme &programme);

/// Marks the first run as over.
void FinPremierDemarrage(Programme &programme);

/// Notes a file among the recent ones. A failure is told, once in a run: an airfoil can be worked
/// on although the list can't be kept.
void NoteRecent(Programme &programme, const std::string &path);

/// The same for a rib components file.
void NoteRib(Programme &programme, const std::string &path);

/// The recent airfoils, and the recent ribs; none when the settings file can't be read, which is
/// told once in a run.
FichiersRecents FichiersRecentsConnus(Programme &programme);
FichiersRecents RibsRecentsConnus(Programme &programme);

/// The values of a cleared rib: no airfoil, no features, the plain view. The user's defaults are
/// read anew by LitDefauts afterwards.
void VideRib(Programme &programme);

} // namespace loftwing
