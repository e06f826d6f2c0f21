#include "mainwindow/tool_icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <functional>

namespace loftwing {

namespace {

constexpr double kGrid = 24.0; // images are drawn on a grid of 24 by 24

using Drawing = std::function<void(QPainter &)>;

QIcon IconOf(const Drawing &draw) {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / kGrid, size / kGrid);
        draw(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

void DrawFolder(QPainter &painter) {
    painter.drawPolyline(QPolygonF({{3, 20}, {3, 5}, {9, 5}, {11, 8}, {19, 8}, {19, 11}}));
    painter.drawPolygon(QPolygonF({{3, 20}, {6.5, 11}, {22, 11}, {18.5, 20}}));
}

void DrawDisk(QPainter &painter) {
    painter.drawPolygon(QPolygonF({{3, 3}, {18, 3}, {21, 6}, {21, 21}, {3, 21}}));
    painter.drawRect(QRectF(7, 3, 9, 6));
    painter.drawRect(QRectF(6, 13, 12, 8));
}

void DrawPage(QPainter &painter) {
    painter.drawRect(QRectF(2, 5, 20, 14));
    painter.setPen(QPen(painter.pen().color(), 1.2, Qt::DashLine));
    painter.drawRect(QRectF(5, 8, 14, 8));
}

void DrawPrinter(QPainter &painter) {
    painter.drawPolyline(QPolygonF({{7, 9}, {7, 3}, {17, 3}, {17, 9}}));
    painter.drawPolygon(
        QPolygonF({{3, 9}, {21, 9}, {21, 17}, {17, 17}, {17, 14}, {7, 14}, {7, 17}, {3, 17}}));
    painter.drawRect(QRectF(7, 14, 10, 7));
}

/// A rib with its spar and sheeting.
void DrawRib(QPainter &painter) {
    QPainterPath rib;
    rib.moveTo(22.5, 13.5);
    rib.cubicTo(15, 7.5, 6, 5.5, 2, 11);
    rib.cubicTo(0.5, 14.5, 6, 15, 22.5, 13.5);
    painter.setPen(QPen(QColor(0x10, 0x40, 0xA0), 1.4));
    painter.setBrush(QColor(0xF4, 0xE2, 0xB8));
    painter.drawPath(rib);
    painter.drawEllipse(QPointF(8, 11.3), 2, 2);
    painter.drawLine(QPointF(13.5, 9), QPointF(13.5, 14.3));
}

} // namespace

QIcon ToolIcon(int index, const QPalette &palette) {
    const auto pictured = [&](void (*draw)(QPainter &)) {
        const QColor ink = palette.color(QPalette::WindowText);
        return IconOf([=](QPainter &painter) {
            painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            draw(painter);
        });
    };
    switch (index) {
    case 2:
        return pictured(DrawFolder);
    case 3:
        return pictured(DrawDisk);
    case 5:
        return pictured(DrawPage);
    case 7:
        return pictured(DrawPrinter);
    default:
        return {};
    }
}

QIcon ProgramIcon() {
    return IconOf(DrawRib);
}

} // namespace loftwing
