#include "mainwindow/tool_icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kGrid = 24.0; // images are drawn on a grid of 24 by 24

using Drawing = void (*)(QPainter &);

/// Draws an image whenever it is shown, in the size that the screen has for it then. A desktop may
/// turn dark while the program runs.
class DrawnIcon : public QIconEngine {
  public:
    DrawnIcon(Drawing drawing, QPalette::ColorRole ink) : drawing_(drawing), ink_(ink) {}

    QIconEngine *clone() const override { return new DrawnIcon(*this); } // its icon owns it

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor ink = QGuiApplication::palette().color(group, ink_);
        const double side = std::min(place.width(), place.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.x() + (place.width() - side) / 2,
                           place.y() + (place.height() - side) / 2);
        painter->scale(side / kGrid, side / kGrid);
        painter->setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        drawing_(*painter);
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

  private:
    Drawing drawing_;
    QPalette::ColorRole ink_;
};

QIcon Drawn(Drawing drawing, QPalette::ColorRole ink = QPalette::WindowText) {
    return QIcon(new DrawnIcon(drawing, ink)); // the icon owns it
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

void DrawBack(QPainter &painter) {
    painter.drawLine(QLineF(4, 12, 20, 12));
    painter.drawPolyline(QPolygonF({{11, 5}, {4, 12}, {11, 19}}));
}

void DrawForward(QPainter &painter) {
    painter.translate(kGrid, 0);
    painter.scale(-1, 1);
    DrawBack(painter);
}

/// Lines of a list.
void DrawContents(QPainter &painter) {
    for (const double y : {6.0, 12.0, 18.0}) {
        painter.drawPoint(QPointF(4, y));
        painter.drawLine(QLineF(8, y, 20, y));
    }
}

void DrawClose(QPainter &painter) {
    painter.drawLine(QLineF(6, 6, 18, 18));
    painter.drawLine(QLineF(18, 6, 6, 18));
}

} // namespace

QIcon ToolIcon(int index) {
    switch (index) {
    case 2:
        return Drawn(DrawFolder);
    case 3:
        return Drawn(DrawDisk);
    case 5:
        return Drawn(DrawPage);
    case 7:
        return Drawn(DrawPrinter);
    case 9:
        return Drawn(DrawUndo);
    case 10:
        return Drawn(DrawRedo);
    default:
        return {};
    }
}

QIcon ImageOf(Image image) {
    switch (image) {
    case Image::back:
        return Drawn(DrawBack);
    case Image::forward:
        return Drawn(DrawForward);
    case Image::contents:
        return Drawn(DrawContents);
    case Image::close:
        break;
    }
    return Drawn(DrawClose, QPalette::ToolTipText); // it stands in a notice
}

} // namespace loftwing
