/// `ribs`: a full set of ribs between two airfoils.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> RibsOptions();
int RunRibs(const Arguments &arguments);

} // namespace loftwing
