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

/// Gives a dialog the size of its content, where nobody has chosen one. If `room` is too small even
/// for the least size that shows all of it, the content gets bars and is scrolled: on a small
/// screen at a large scale the buttons would otherwise lie beyond the edge.
void FitDialog(QDialog &dialog, const QSize &room);

/// Fits a dialog to the screen of `window` and gives it that place there. `clear` is in the
/// coordinates of the screen.
void PlaceDialog(QDialog &dialog, const QWidget &window, const QRect &clear);

} // namespace loftwing
