#include "platform/qt_place.h"

#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

constexpr int kGap = 8; // pixels between a dialog and what it leaves free

/// What a dialog is scrolled in; null as long as there was room for all of it.
QScrollArea *ZoneDefilee(const QDialog &dialog) {
    return dialog.findChild<QScrollArea *>("Defilement", Qt::FindDirectChildrenOnly);
}

bool TientDans(const QSize &size, const QSize &room) {
    return size.width() <= room.width() && size.height() <= room.height();
}

/// Puts all that a dialog has into an area that scrolls. The area is the dialog's before it takes
/// anything in, which keeps the order of Tab.
void MetEnDefilement(QDialog &dialog) {
    auto *area = new QScrollArea(&dialog);
    area->setObjectName("Defilement");
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto *content = new QWidget;
    area->setWidget(content);
    content->setLayout(dialog.layout());
    auto *rows = new QVBoxLayout(&dialog);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(area);
    rows->activate(); // the least size is the area's from now on
}

/// The size of the content and of the bars that it needs.
QSize AvecBarres(const QScrollArea &area, const QSize &room) {
    const QSize content = area.widget()->sizeHint();
    const int bar = area.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize bars(content.height() > room.height() ? bar : 0,
                     content.width() > room.width() ? bar : 0);
    return (content + bars).boundedTo(room);
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

void FitDialog(QDialog &dialog, const QSize &room) {
    const QLayout *layout = dialog.layout();
    if (layout != nullptr && !TientDans(layout->totalMinimumSize(), room)) {
        MetEnDefilement(dialog);
    }
    if (dialog.testAttribute(Qt::WA_Resized)) {
        return;
    }
    // What is smaller than its content would like must count as chosen: the toolkit fits a dialog
    // anew when it comes up. Any other size counts as found.
    if (const QScrollArea *area = ZoneDefilee(dialog)) {
        dialog.resize(AvecBarres(*area, room));
        return;
    }
    dialog.adjustSize();
    if (TientDans(dialog.size(), room)) {
        dialog.setAttribute(Qt::WA_Resized, false);
    } else {
        dialog.resize(dialog.size().boundedTo(room));
    }
}

void PlaceDialog(QDialog &dialog, const QWidget &window, const QRect &clear) {
    // The dialog has no frame yet; it will be like that of the window.
    const QSize frame = window.frameGeometry().size() - window.geometry().size();
    const QRect screen = window.screen()->availableGeometry();
    FitDialog(dialog, screen.size() - frame);
    dialog.move(PlaceBeside(dialog.size() + frame, window.frameGeometry(), clear, screen));
}

} // namespace loftwing
