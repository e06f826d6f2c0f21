/// When the main window's unsaved work is written for the case of a crash.
#pragma once

#include "programme/programme.h"

#include <QTimer>

#include <functional>

namespace loftwing {

/// Follows the steps of the window. A change is on disk a moment later, however many come after it
/// meanwhile, and at once where the desktop asks for it before it ends.
class GardeSecours {
  public:
    /// `dit` is called when writing begins to fail or works again.
    GardeSecours(Programme &programme, std::function<void()> dit);

    /// The rib may have changed, or may have been saved or thrown away.
    void Suit();
    /// The window closes, and all questions have been answered: nothing is kept of it.
    void Finit();

  private:
    Programme &programme_;
    std::function<void()> dit_;
    QTimer attente_;
    bool finie_ = false;

    void Ecrit();
};

} // namespace loftwing
