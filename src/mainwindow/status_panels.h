/// The main window's status bar.
#pragma once

#include <array>
#include <string>

class QLabel;
class QMainWindow;

namespace loftwing {

/// Its panels: 1 the version, 2 what is shown, 3 the unit in force.
class StatusPanels {
  public:
    explicit StatusPanels(QMainWindow &window);

    /// Failure 9 for a panel that there isn't.
    void Montre(int number, const std::string &text);

  private:
    std::array<QLabel *, 3> panels_{};
};

} // namespace loftwing
