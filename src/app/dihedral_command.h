/// `loftwing dihedral`: angle, length and height; two of them give the third.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> DihedralOptions();
/// Prints the one that wasn't given on standard output; the exit status.
int RunDihedral(const Arguments &arguments);

} // namespace loftwing
