/// Trying a value on the rib before it is kept.
#pragma once

#include "programme/programme.h"

#include <functional>
#include <optional>

namespace loftwing {

/// The way back to the rib's dimensions, add-ons and text as they are now.
std::function<void()> RetourDuRib(RibModel &rib);

/// Why the rib can't be drawn with the values that it has now; nothing where it can. Nothing is
/// drawn.
std::optional<Failure> EchecDuTrace(Programme &programme);

/// Whether the rib that is shown can be drawn with the values that it has now. A plot that fails
/// would clear it; here a box with title `titre` says what doesn't fit, and nothing is drawn.
bool RibTracable(Programme &programme, const std::string &titre);

} // namespace loftwing
