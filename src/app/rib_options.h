/// Rib values and page values as options of the command line.
#pragma once

#include "app/arguments.h"
#include "programme/programme.h"

namespace loftwing {

std::vector<OptionRule> RibOptions();
/// --paper and --overlap.
std::vector<OptionRule> PaperOptions();
/// These and all others of a page.
std::vector<OptionRule> PageOptions();

/// The margins of an opened rib's heel come into force by --heel and are told of without it, or
/// they are in force anyway.
enum class HeelMargins { as_asked, in_force };

/// Puts the rib options into the rib as the value dialogs do; on a rib from a rib components file
/// each sets its own value only. False when a value was refused.
/// Throws UsageError for a text that the dialogs' fields wouldn't admit.
bool ApplyRibOptions(const Arguments &arguments, Programme &programme,
                     HeelMargins margins = HeelMargins::as_asked);

/// Puts paper and overlap into the page settings. Throws as ApplyPageOptions.
void ApplyPaperOptions(const Arguments &arguments, Programme &programme);

/// Puts the page options into the page settings. Throws UsageError for an unknown paper or a text
/// that isn't a length.
void ApplyPageOptions(const Arguments &arguments, Programme &programme);

} // namespace loftwing
