#include "platform/qt_place.h"

#include <QDialog>
#include <QScreen>

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

constexpr int kGap = 8; // pixels between a dialog and what it leaves free

// Only where nobody has chosen a size; the size found here counts as found, not as chosen.
void FitToContent(QDialog &dialog) {
    if (!dialog.testAttribute(Qt::WA_Resized)) {
        dialog.adjustSize();
        dialog.setAttribute(Qt::WA_Resized, false);
    }
}

/// A window that reaches beyond the screen must not take its dialogs along.
QRect Inside(QRect place, const QRect &space) {
    place.moveRight(std::min(place.right(), space.right()));
    place.moveBottom(std::min(place.bottom(), space.bottom()));
    place.moveLeft(std::max(place.left(), space.left()));
    place.moveTop(std::max(place.top(), space.top()));
    return place;
}

/// `middle` moved off `clear` in each direction.
std::array<QRect, 4> Sides(const QRect &middle, const QRect &clear) {
    std::array<QRect, 4> sides;
    sides.fill(middle);
    sides[0].moveTop(clear.bottom() + 1 + kGap);
    sides[1].moveLeft(clear.right() + 1 + kGap);
    sides[2].moveRight(clear.left() - 1 - kGap);
    sides[3].moveBottom(clear.top() - 1 - kGap);
    return sides;
}

} // namespace

QPoint PlaceBeside(const QSize &size, const QRect &around, const QRect &clear, const QRect &space) {
    QRect middle({}, size);
    middle.moveCenter(around.center());
    middle = Inside(middle, space);
    if (!middle.intersects(clear)) {
        return middle.topLeft();
    }
    const QRect *best = nullptr;
    const auto way = [&middle](const QRect &side) {
        return (side.topLeft() - middle.topLeft()).manhattanLength();
    };
    const std::array<QRect, 4> sides = Sides(middle, clear);
    for (const QRect &side : sides) {
        if (space.contains(side) && (best == nullptr || way(side) < way(*best))) {
            best = &side;
        }
    }
    return best == nullptr ? middle.topLeft() : best->topLeft();
}

void PlaceDialog(QDialog &dialog, const QWidget &window, const QRect &clear) {
    FitToContent(dialog);
    // The dialog has no frame yet; it will be like that of the window.
    const QSize frame = window.frameGeometry().size() - window.geometry().size();
    dialog.move(PlaceBeside(dialog.size() + frame, window.frameGeometry(), clear,
                            window.screen()->availableGeometry()));
}

} // namespace loftwing
