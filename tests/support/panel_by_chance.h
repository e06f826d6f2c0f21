/// Wing panels by chance, as a builder might ask for them. A seed gives the same panel in every run
/// and on every machine.
#pragma once

#include "support/naive_panel.h"

#include <random>

namespace loftwing {

/// A panel without its airfoils' points and the words; the ends name the airfoils' files.
naive::PanelAsked PanelByChance(unsigned seed);

/// Dice that fall the same everywhere.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    int Below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
    int From(int least, int most) { return least + Below(most - least + 1); }
    bool OneIn(int count) { return Below(count) == 0; }
    template <class Value>
    Value OneOf(std::initializer_list<Value> values) {
        return *(values.begin() + Below(static_cast<int>(values.size())));
    }

  private:
    std::mt19937 engine_;
};

} // namespace loftwing
