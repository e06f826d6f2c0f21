/// Whether a window shows all that it holds.
#pragma once

#include <QFont>
#include <QWidget>

namespace loftwing {

/// Fails the test for each visible label, button, field or picture of `window` that is smaller than
/// its content needs, reaches over the window's edge or covers another one.
void ExpectNothingCut(QWidget &window);

/// The program's font at another size, for as long as this lives. Windows made meanwhile have it.
class FontScale {
  public:
    explicit FontScale(double scale);
    ~FontScale();
    FontScale(const FontScale &) = delete;
    FontScale &operator=(const FontScale &) = delete;

  private:
    QFont before_;
};

} // namespace loftwing
