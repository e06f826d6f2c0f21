#include "utilities/qt_diedre_sketch.h"

#include <cmath>

namespace loftwing {

namespace {

// In lines of text, from the root.
constexpr QSizeF kCanvas(19.0, 8.4);
constexpr QPointF kOrigin(1.6, 2.6);
constexpr double kLength = 14.0;
constexpr double kHeight = 4.6;
constexpr double kPanel = 0.5; // thickness of the panel
constexpr double kArc = 8.0;

} // namespace

DiedreSketch::DiedreSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void DiedreSketch::Draw(SketchPainter &pen) const {
    const double angle = std::atan2(kHeight, kLength);
    const QPointF up(-std::sin(angle) * kPanel, std::cos(angle) * kPanel);
    const QPointF tip(kLength, kHeight);
    pen.Area({QPointF(0, 0), tip, tip + up, up}, SketchLine::added);
    pen.Line(QPointF(0, 0), {kLength + 2.4, 0}, SketchLine::axis);
    pen.Angle(kAngle, {0, 0}, kArc, 0, angle * 180.0 / std::acos(-1.0));
    pen.Line(tip, tip + QPointF(2.4, 0), SketchLine::aid);
    pen.Measure(kHauteur, {kLength + 1.6, 0}, {kLength + 1.6, kHeight});
    for (const double x : {0.0, kLength}) {
        pen.Line(QPointF(x, 0), {x, -1.9}, SketchLine::aid);
    }
    pen.Measure(kLongueur, {0, -1.5}, {kLength, -1.5});
}

} // namespace loftwing
