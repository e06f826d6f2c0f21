/// `loftwing modify`: an airfoil with other thickness and camber.
#pragma once

#include "app/arguments.h"

namespace loftwing {

std::vector<OptionRule> ModifyOptions();
/// Writes the new airfoil; the exit status. Nothing is written when a value is refused.
int RunModify(const Arguments &arguments);

} // namespace loftwing
