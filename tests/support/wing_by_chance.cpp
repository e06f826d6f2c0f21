#include "support/wing_by_chance.h"

#include "support/naive_panel_text.h"

namespace loftwing {

WingOfChance WingByChance(unsigned seed) {
    constexpr unsigned kOther = 4; // panels by seeds that far apart agree in unit and spacing
    constexpr unsigned kFarSeeds = 1000;
    Dice dice(seed + kFarSeeds);
    WingOfChance wing;
    wing.first = dice.OneIn(2) ? 1 : dice.From(2, 60);
    const int count = dice.From(1, 3);
    const int density = dice.OneOf({0, 95, 160, 480});
    for (int i = 0; i < count; ++i) {
        // Every second panel has the other spacing; the unit stays.
        const auto number = static_cast<unsigned>(i);
        naive::WingPanelAsked panel;
        panel.panel = PanelByChance(seed % kOther + kOther * static_cast<unsigned>(dice.Below(9)) +
                                    (number % 2 == 1 ? 2 : 0));
        panel.length = dice.From(2500, 9000) / 10.0;
        panel.thickness = dice.OneIn(4) ? "" : panel.panel.inches ? "3/32" : "2.5";
        panel.sweep = dice.OneIn(5) ? 0 : dice.From(-1200, 1200) / 10.0;
        panel.dihedral = dice.OneIn(4) ? 0 : dice.From(-500, 1500) / 100.0;
        panel.density = density;
        wing.panels.push_back(panel);
    }
    return wing;
}

} // namespace loftwing
