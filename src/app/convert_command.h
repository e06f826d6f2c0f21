/// The verb convert: any table of coordinates as an airfoil file.
#pragma once

#include "app/arguments.h"

#include <vector>

namespace loftwing {

std::vector<OptionRule> ConvertOptions();

/// Imports every FILE; a refused one stops no other. The exit status.
int RunConvert(const Arguments &arguments);

} // namespace loftwing
