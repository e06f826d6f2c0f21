/// The airfoils, chords and names of the naive panel's ribs.
#pragma once

#include "support/naive_panel.h"

namespace loftwing::naive {

struct SetRib {
    double ratio = 0;
    double distance = 0;
    std::string chord; ///< as the title has it, without unit
    std::string name;
    std::string bytes;
};

struct PanelSet {
    std::vector<SetRib> ribs;
};

PanelSet MakeSet(const PanelAsked &asked);

} // namespace loftwing::naive
