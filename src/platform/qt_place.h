/// Where a dialog opens.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

class QDialog;
class QWidget;

namespace loftwing {

/// The upper left corner of a window of `size` that leaves `clear` free where `space` has room for
/// that, and stands as near to the middle of `around` as it can then. Without the room, or with
/// nothing to leave free, it stands in the middle. It never leaves `space`.
QPoint PlaceBeside(const QSize &size, const QRect &around, const QRect &clear, const QRect &space);

/// Gives a dialog the size of its content, where nobody has chosen one, and that place on the
/// screen of `window`. `clear` is in the coordinates of the screen.
void PlaceDialog(QDialog &dialog, const QWidget &window, const QRect &clear);

} // namespace loftwing
