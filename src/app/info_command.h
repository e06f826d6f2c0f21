/// `loftwing info`: what the program knows of an airfoil.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> InfoOptions();
/// Prints the facts of each FILE on standard output; the exit status.
int RunInfo(const Arguments &arguments);

} // namespace loftwing
