/// Size and place of the main window from one run to the next.
#pragma once

class QWidget;

namespace loftwing {

/// Puts a window where it was, or gives it a size that fits the screen where it never was anywhere.
void LitPlace(QWidget &window);
void EcritPlace(const QWidget &window);

} // namespace loftwing
