/// `loftwing table`: chords and spar places of a tapered panel.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> TableOptions();
/// Prints the spacing and one line a rib on standard output; the exit status.
int RunTable(const Arguments &arguments);

} // namespace loftwing
