/// What happens to the program's values when it starts, without a window in sight.
#pragma once

#include "programme/programme.h"

namespace loftwing {

/// Reads the settings file into the program, or writes it in full on a first run (then
/// PremierDemarrage is set), and looks after the airfoil folders. A settings file that can't be
/// read is reported under " Main/Form_Load", and the built-in defaults hold.
void ChargeReglages(Programme &programme);

/// Marks the first run as over.
void FinPremierDemarrage(Programme &programme);

/// Notes a file among the recent ones. A failure is reported: an airfoil can be worked on although
/// the list can't be kept.
void NoteRecent(Programme &programme, const std::string &path);

/// A new airfoil takes over the rib: heel and washout reset, the file noted among the recent ones.
void EntreProfil(Programme &programme);

/// The recent files; none, with a box, when the settings file can't be read.
FichiersRecents FichiersRecentsConnus(Programme &programme);

/// The values of a cleared rib: no airfoil, no features, the plain view. The user's defaults are
/// read anew by LitDefauts afterwards.
void VideRib(Programme &programme);

} // namespace loftwing
