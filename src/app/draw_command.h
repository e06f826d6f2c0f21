/// `loftwing draw`: rib drawings as files.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> DrawOptions();
/// Draws each FILE, or one rib on several airfoils; the exit status. Nothing half written is left
/// under the name of OUT.
int RunDraw(const Arguments &arguments);

} // namespace loftwing
