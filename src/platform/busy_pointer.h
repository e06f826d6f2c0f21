/// The busy pointer while something takes its time.
#pragma once

#include "platform/platform.h"

namespace loftwing {

/// Shows the busy pointer for as long as it lives, however its scope is left.
class Sablier {
  public:
    explicit Sablier(Platform &platform) : platform_(platform) {
        platform_.SetPointer(Pointer::busy);
    }
    Sablier(const Sablier &) = delete;
    Sablier &operator=(const Sablier &) = delete;
    ~Sablier() { platform_.SetPointer(Pointer::normal); }

  private:
    Platform &platform_;
};

} // namespace loftwing
