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

/// An arrow that turns back.
void DrawUndo(QPainter &painter) {
    QPainterPath arrow({4, 10});
    arrow.lineTo(14, 10);
    arrow.arcTo(QRectF(9, 10, 10, 10), 90, -180);
    arrow.lineTo(9, 20);
    painter.drawPath(arrow);
    painter.drawPolyline(QPolygonF({{9, 5}, {4, 10}, {9, 15}}));
}

void DrawRedo(QPainter &painter) {
    painter.translate(kGrid, 0);
    painter.scale(-1, 1);
    DrawUndo(painter);
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
    case 9:
        return pictured(DrawUndo);
    case 10:
        return pictured(DrawRedo);
    default:
        return {};
    }
}

} // namespace loftwing
