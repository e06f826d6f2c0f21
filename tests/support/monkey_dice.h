/// Chance that is the same for the same seed on every machine.
#pragma once

#include <cstddef>
#include <random>
#include <vector>

namespace loftwing {

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    /// 0 to count - 1; `count` is 1 at least. The library's distributions differ between systems.
    int Below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    /// Whether the one case of so many has come.
    bool OneIn(int cases) { return Below(cases) == 0; }
    /// One of a list that isn't empty.
    template <class List>
    auto &Of(List &list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

  private:
    std::mt19937 engine_;
};

} // namespace loftwing
