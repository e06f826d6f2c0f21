#include "mainwindow/program_icon.h"

#include "base/number_text.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kGrid = 48.0; // the picture is drawn on a grid of 48 by 48
constexpr double kStroke = 2.0;
constexpr double kThinnest = 1.1; // pixels; a finer line is lost on a dark panel

const QColor kWood(0xF4, 0xD9, 0x9C);
const QColor kInk(0x10, 0x40, 0xA0);

/// The wood with a spar's two notches, and a hole for lightness behind them: thicker than any rib,
/// so that what is cut into it still shows in 16 pixels.
QPainterPath Rib() {
    QPainterPath rib;
    rib.moveTo(46.8, 33);
    rib.cubicTo(39, 25.5, 31, 15.2, 19, 13.6);
    rib.lineTo(19, 19);
    rib.lineTo(14, 19);
    rib.lineTo(14, 13.4);
    rib.cubicTo(7, 13.6, 1.2, 19, 1.2, 26.5);
    rib.cubicTo(1.2, 31.5, 6, 34.2, 14, 34.4);
    rib.lineTo(14, 29);
    rib.lineTo(19, 29);
    rib.lineTo(19, 34.4);
    rib.cubicTo(28, 34.5, 38, 34, 46.8, 33);
    rib.closeSubpath();
    rib.addEllipse(QPointF(26.5, 26), 3.8, 3.8);
    return rib;
}

std::string Number(double value) {
    return NumberText(std::round(value * 1000) / 1000);
}

std::string Point(const QPainterPath::Element &at) {
    return Number(at.x) + " " + Number(at.y);
}

/// A path as SVG writes it. Of a curve the toolkit has the three points one after the other.
std::string PathData(const QPainterPath &path) {
    std::string data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element at = path.elementAt(i);
        const bool starts = at.type == QPainterPath::MoveToElement;
        const char *letter = starts                                    ? "M"
                             : at.type == QPainterPath::LineToElement  ? "L"
                             : at.type == QPainterPath::CurveToElement ? "C"
                                                                       : "";
        data += (starts && i > 0 ? "Z " : i > 0 ? " " : "") + std::string(letter) + Point(at);
    }
    return data + "Z";
}

} // namespace

QImage ProgramImage(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = size / kGrid;
    painter.scale(scale, scale);
    painter.setPen(QPen(kInk, std::max(kStroke, kThinnest / scale), Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.setBrush(kWood);
    painter.drawPath(Rib());
    return image;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : kIconSizes) {
        icon.addPixmap(QPixmap::fromImage(ProgramImage(size)));
    }
    return icon;
}

std::string ProgramSvg() {
    const std::string side = Number(kGrid);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + side + "\" height=\"" + side +
           "\" viewBox=\"0 0 " + side + " " + side + "\">\n<path fill-rule=\"evenodd\" fill=\"" +
           kWood.name().toStdString() + "\" stroke=\"" + kInk.name().toStdString() +
           "\" stroke-width=\"" + Number(kStroke) + "\" stroke-linejoin=\"round\" d=\"" +
           PathData(Rib()) + "\"/>\n</svg>\n";
}

} // namespace loftwing
