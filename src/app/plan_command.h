/// `plan`: the building plan of a wing of several panels.
#pragma once

#include "app/arguments.h"

#include <vector>

namespace loftwing {

std::vector<OptionRule> PlanVerbOptions();

/// Writes plan and list or, where a panel is refused, nothing. Gives the exit status.
int RunPlan(const Arguments &arguments);

} // namespace loftwing
