/// Wings of one to three panels by chance. A seed gives the same wing in every run.
#pragma once

#include "support/naive_wing.h"
#include "support/panel_by_chance.h"

#include <vector>

namespace loftwing {

struct WingOfChance {
    int first = 1; ///< number of its first rib
    std::vector<naive::WingPanelAsked> panels;
};

/// Its panels as PanelByChance has them, all in one unit.
WingOfChance WingByChance(unsigned seed);

} // namespace loftwing
