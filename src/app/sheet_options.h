/// Sheets of stock as options of the command line.
#pragma once

#include "app/arguments.h"
#include "output/nesting.h"
#include "programme/programme.h"

#include <vector>

namespace loftwing {

std::vector<OptionRule> SheetOptions();

/// Whether pieces shall be laid on sheets. Throws UsageError for an option that wants --sheet and
/// lacks it.
bool WantsSheets(const Arguments &arguments);

struct SheetWish {
    ReglageImbrication reglage;
    int copies = 1;
    bool mirror = false; ///< every second copy is for the other wing
};

/// What the options say, lengths in the unit in force. Throws UsageError for a text that is none of
/// theirs, Refused for one that is no length in inches, which was told.
SheetWish SheetWishOf(const Arguments &arguments, const Programme &programme);

} // namespace loftwing
