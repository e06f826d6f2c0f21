/// The line of text on a rib: the label that the program makes, and whether a text still is one.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"

#include <string>

namespace loftwing {

/// The label of the rib as it is now: airfoil, washout where an add-on and a washout are set, chord
/// as typed. "e205 Chord : 200", "e205 Washout 2.5° Chord : 200".
std::string GeneratedLabel(const RibModel &rib, const Messages &messages);

/// Makes InsTexte anew, unless it is the user's own.
void RegenereTexte(RibModel &rib, const Messages &messages);

/// Decides by the text itself whose it is. A text that still begins like the label is made anew
/// with the chord in force and counts as the program's; so does an empty one. A text with a ":"
/// that begins otherwise is marked as the user's. A text without ":" changes nothing.
void ActualiseTexte(RibModel &rib, const Messages &messages);

} // namespace loftwing
