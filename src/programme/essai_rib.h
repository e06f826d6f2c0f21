/// The rib as it would be with what is typed in a dialog.
#pragma once

#include "output/recording.h"
#include "programme/programme.h"

#include <functional>

namespace loftwing {

/// Puts what a dialog holds into a rib that stands in for the one on the screen, with the checks of
/// its Apply; false where it doesn't pass. A failure or a box counts as that too, and nobody sees
/// it.
using EssaiDuRib = std::function<bool(RibModel &rib, const Saisie &saisie)>;

/// Draws what the screen would show then; false where that can't be. Neither the rib nor the state
/// of the last plot changes.
bool DessineEssai(const Programme &programme, const EssaiDuRib &essai, Recording &drawing);

} // namespace loftwing
