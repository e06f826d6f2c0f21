/// `loftwing draw`: a rib drawing as a file.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> DrawOptions();
/// Draws each FILE; the exit status. Nothing half written is left under the name of OUT.
int RunDraw(const Arguments &arguments);

} // namespace loftwing
