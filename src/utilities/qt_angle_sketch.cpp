#include "utilities/qt_angle_sketch.h"

#include <cmath>

namespace loftwing {

namespace {

// All in lines of text.
constexpr QSizeF kCanvas(19.0, 10.4);
constexpr QPointF kOrigin(1.0, 1.4);

constexpr double kSpan = 17.0; // of the panel that is shown
constexpr double kPanel = 7.0; // its chord
constexpr double kSlant = 60.0;
constexpr double kFoot = 7.4; // of the oblique rib, along the trailing edge

constexpr double kDihedral = 15.0;
constexpr double kThickness = 4.6; // of the panel
constexpr double kRoot = 2.6;      // place of the upright rib
constexpr double kSquare = 8.0;    // of the other one, along the panel

double Radians(double degrees) {
    return degrees * std::acos(-1.0) / 180.0;
}

QPointF Direction(double degrees) {
    return {std::cos(Radians(degrees)), std::sin(Radians(degrees))};
}

/// A measure beside the line from `from` to `to`, `aside` away from it.
void MeasureBeside(SketchPainter &pen, const char *letter, QPointF from, QPointF to,
                   QPointF aside) {
    pen.Line(from, from + aside * 1.25, SketchLine::aid);
    pen.Line(to, to + aside * 1.25, SketchLine::aid);
    pen.Measure(letter, from + aside, to + aside);
}

} // namespace

ObliqueSketch::ObliqueSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void ObliqueSketch::Draw(SketchPainter &pen) const {
    const QPointF foot(kFoot, 0);
    const QPointF head = foot + Direction(kSlant) * kPanel / std::sin(Radians(kSlant));
    pen.Line(QPointF(0, 0), {kSpan, 0}, SketchLine::rib);
    pen.Line(QPointF(0, kPanel), {kSpan, kPanel}, SketchLine::rib);
    pen.Line(foot, head, SketchLine::added);
    MeasureBeside(pen, kExterne, foot, head, Direction(kSlant + 90.0) * 1.7);
    pen.Measure(kInterne, {2.0, 0}, {2.0, kPanel});
    pen.Angle(kAngle, foot, 3.6, 0, kSlant);
}

InclineSketch::InclineSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void InclineSketch::Draw(SketchPainter &pen) const {
    const QPointF root(kRoot, 0);
    const QPointF along = Direction(kDihedral);
    const QPointF top = root + QPointF(0, kThickness / std::cos(Radians(kDihedral)));
    const double length = (kSpan - kRoot) / along.x();
    pen.Line(root, root + along * length, SketchLine::rib);
    pen.Line(top, top + along * length, SketchLine::rib);
    pen.Line(root, {kSpan, 0}, SketchLine::axis);

    const QPointF foot = root + along * kSquare;
    const QPointF head = foot + Direction(kDihedral + 90.0) * kThickness;
    pen.Line(foot, head, SketchLine::rib);
    MeasureBeside(pen, kOriginal, foot, head, along * 1.7);
    pen.Line(root, top, SketchLine::added);
    MeasureBeside(pen, kACalculer, root, top, {-1.5, 0});
    pen.Angle(kAngle, root, kSpan - kRoot - 2.0, 0, kDihedral);
}

} // namespace loftwing
