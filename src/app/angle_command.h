/// `loftwing oblique` and `loftwing incline`: airfoils of ribs at an angle.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> ObliqueOptions();
/// Writes the airfoil and prints the chord that was computed; the exit status.
int RunOblique(const Arguments &arguments);

std::vector<OptionRule> InclineOptions();
/// Writes the airfoil; the exit status.
int RunIncline(const Arguments &arguments);

} // namespace loftwing
