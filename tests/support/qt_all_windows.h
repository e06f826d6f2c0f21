/// Every window of the program, one after the other, for tests of what holds for all of them.
#pragma once

#include "support/qt_window_world.h"

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

/// Looks at a window that is shown and active.
using Look = std::function<void(QWidget &window)>;

/// A window in one of its states.
struct KnownWindow {
    std::string name;
    /// Brings it up in a world whose main window shows a rib with spars and holes.
    std::function<void(WindowWorld &world, const Look &look)> show;
};

/// All of them, in an order in which each finds the rib that it wants. Whoever adds a window to the
/// program adds its line here.
const std::vector<KnownWindow> &KnownWindows();

/// The names of the languages that the program has.
std::vector<std::string> LanguagesHeld();

/// Looks at all windows in one language and unit ("mm" or "in"). A failed expectation tells which
/// window it was.
void LookAtAllWindows(const std::string &language, const std::string &unit, const Look &look);
/// The same in all languages, in millimetres.
void LookAtAllWindows(const Look &look);

} // namespace loftwing
