/// Size and place of windows from one run to the next.
#pragma once

#include <QSize>

class QWidget;

namespace loftwing {

/// Under which a window's place is kept.
inline constexpr const char *kPlaceFenetre = "geometry"; ///< of the main window
inline constexpr const char *kPlaceAide = "help";

/// Puts a window where it was, or gives it a size that fits the screen where it never was anywhere.
void LitPlace(QWidget &window, const char *nom = kPlaceFenetre, const QSize &usual = {1000, 600});
void EcritPlace(const QWidget &window, const char *nom = kPlaceFenetre);

} // namespace loftwing
