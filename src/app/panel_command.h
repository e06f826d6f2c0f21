/// The verb "panel": the ribs between a root and a tip rib, with all that they carry.
#pragma once

#include "app/arguments.h"

#include <vector>

namespace loftwing {

std::vector<OptionRule> PanelOptions();
int RunPanel(const Arguments &arguments);

} // namespace loftwing
