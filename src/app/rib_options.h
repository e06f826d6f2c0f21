/// Rib values and page values as options of the command line.
#pragma once

#include "app/arguments.h"
#include "programme/programme.h"

namespace loftwing {

std::vector<OptionRule> RibOptions();
std::vector<OptionRule> PageOptions();

/// Puts the rib options into the rib as the value dialogs do; on a rib from a rib components file
/// each sets its own value only. False when a value was refused.
/// Throws UsageError for a text that the dialogs' fields wouldn't admit.
bool ApplyRibOptions(const Arguments &arguments, Programme &programme);

/// Puts the page options into the page settings. Throws UsageError for an unknown paper or a text
/// that isn't a length.
void ApplyPageOptions(const Arguments &arguments, Programme &programme);

} // namespace loftwing
