/// `loftwing cut`: the pieces themselves as files for a cutter.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> CutOptions();
/// Makes the pieces of each FILE; the exit status. Nothing half written is left under the name of
/// OUT.
int RunCut(const Arguments &arguments);

} // namespace loftwing
