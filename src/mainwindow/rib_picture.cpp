#include "mainwindow/rib_picture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

// The picture is drawn on a sheet of these sides. Its chord is long, since curves that are cut out
// of each other become polygons of about one unit's fineness.
constexpr double kChord = 1000;
constexpr double kSheetWidth = 1200;
constexpr double kSheetHeight = 380;
constexpr double kChordStart = 100;
constexpr double kChordHeight = 235; // from the top
constexpr double kSheeting = 7;

const QColor kPaper(0xFB, 0xFA, 0xF5);
const QColor kWood(0xF4, 0xE2, 0xB8);
const QColor kInk(0x10, 0x40, 0xA0);
const QColor kSkin(0xC0, 0x40, 0x30);
const QColor kAxis(0xA8, 0xB4, 0xC4);

/// Half thickness of a plain section, 13 % thick, at x from the leading edge.
double HalfThickness(double x) {
    const double t = x / kChord;
    return 0.65 * kChord *
           (0.2969 * std::sqrt(t) - t * (0.126 + t * (0.3516 - t * (0.2843 - 0.1036 * t))));
}

double Camber(double x) {
    return 0.14 * x * (1 - x / kChord);
}

/// The section, made smaller all round by `inset`.
QPainterPath Outline(double inset) {
    constexpr int kSteps = 60;
    QPolygonF points;
    for (int i = -kSteps; i <= kSteps; ++i) {
        const double part = std::abs(i) / static_cast<double>(kSteps);
        const double x = part * part * (kChord - 2 * inset) + inset;
        const double half = std::max(0.0, HalfThickness(x) - inset);
        points << QPointF(x, -Camber(x) + (i < 0 ? -half : half));
    }
    QPainterPath path;
    path.addPolygon(points);
    path.closeSubpath();
    return path;
}

/// What is cut out: the seats of the spars and the holes.
QPainterPath Cuts() {
    constexpr double kSpar = 330;
    constexpr double kSparWidth = 22;
    constexpr double kSparDepth = 18;
    QPainterPath cuts;
    const double top = -(Camber(kSpar) + HalfThickness(kSpar));
    const double bottom = -(Camber(kSpar) - HalfThickness(kSpar));
    cuts.addRect(QRectF(kSpar, top - kSparDepth, kSparWidth, 2 * kSparDepth));
    cuts.addRect(QRectF(kSpar, bottom - kSparDepth, kSparWidth, 2 * kSparDepth));
    for (const auto &[x, radius] : {std::pair(180, 30), std::pair(520, 32), std::pair(670, 22)}) {
        cuts.addEllipse(QPointF(x, -Camber(x)), radius, radius);
    }
    return cuts;
}

QPen Ink(const QColor &colour, Qt::PenStyle style = Qt::SolidLine) {
    QPen pen(colour, 1.4, style, Qt::RoundCap, Qt::RoundJoin);
    pen.setCosmetic(true);
    return pen;
}

} // namespace

RibPicture::RibPicture(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize RibPicture::sizeHint() const {
    const int width = fontMetrics().averageCharWidth() * 60;
    return {width, static_cast<int>(width * kSheetHeight / kSheetWidth)};
}

void RibPicture::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), kPaper);
    const double scale = std::min(width() / kSheetWidth, height() / kSheetHeight);
    painter.translate((width() - kSheetWidth * scale) / 2, (height() - kSheetHeight * scale) / 2);
    painter.scale(scale, scale);
    painter.translate(kChordStart, kChordHeight);
    painter.setPen(Ink(kAxis, Qt::DashDotLine));
    painter.drawLine(QPointF(-60, 0), QPointF(kChord + 60, 0));
    painter.setPen(Ink(kSkin));
    painter.setBrush(kPaper);
    painter.drawPath(Outline(0));
    painter.setPen(Ink(kInk));
    painter.setBrush(kWood);
    painter.drawPath(Outline(kSheeting).subtracted(Cuts()));
}

void RibPicture::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT Clique();
    }
}

} // namespace loftwing
