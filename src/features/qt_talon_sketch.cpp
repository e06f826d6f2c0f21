#include "features/qt_talon_sketch.h"

#include <cmath>

namespace loftwing {

namespace {

// In lines of text, from the leading edge.
constexpr QSizeF kCanvas(24.4, 11.6);
constexpr double kLeft = 3.4;
constexpr double kOverFloor = 8.2; // of the reference line, the heel under the rib
constexpr double kOverFloorExtra = 3.6;
constexpr double kChord = 17.0;
constexpr double kDepth = 2.9; // of the foot at the leading edge
constexpr double kDepthExtra = 4.6;
constexpr double kSlope = 7.0; // washout in degrees
constexpr double kMargin = 3.4;
constexpr double kHeel = 6.4;

double Radians(double degrees) {
    return degrees * std::acos(-1.0) / 180.0;
}

} // namespace

TalonSketch::TalonSketch(QWidget *parent) : Sketch(kCanvas, {kLeft, 0}, parent) {}

void TalonSketch::Montre(int OptTalon) {
    extra_ = OptTalon != 0;
    update();
}

/// The point of the foot that stands `distance` from the leading edge. The foot leans away from
/// the reference line by the washout, its start square off it under (over) the leading edge.
QPointF TalonSketch::FootAt(double distance) const {
    const double angle = Radians(kSlope);
    const double depth = extra_ ? kDepthExtra : -kDepth;
    const QPointF start(std::sin(angle) * depth, std::cos(angle) * depth);
    return start + QPointF(std::cos(angle), -std::sin(angle)) * distance * std::cos(angle);
}

void TalonSketch::DrawLeg(SketchPainter &pen, double distance) const {
    const double part = distance / kChord;
    const double height = (extra_ ? SketchUpper(part) : SketchLower(part)) * kChord;
    pen.Line(FootAt(distance), {distance, height}, SketchLine::added);
}

void TalonSketch::Draw(SketchPainter &shown) const {
    SketchPainter pen = shown.Moved({0, extra_ ? kOverFloorExtra : kOverFloor});
    pen.Area(SketchOutline({0, 0}, kChord), SketchLine::rib);
    pen.Line(QPointF(0, 0), {kChord + 2.0, 0}, SketchLine::axis);
    pen.Line(FootAt(0), FootAt(kChord), SketchLine::added);
    DrawLeg(pen, kChord - kMargin);
    DrawLeg(pen, kChord - kMargin - kHeel);
    DrawMeasures(pen);
    const double aside = extra_ ? -0.9 : 0.9;
    pen.Word(LeadingWord(), {-1.0, aside});
    pen.Word(TrailingWord(), {kChord + 1.4, aside});
}

void TalonSketch::DrawMeasures(SketchPainter &pen) const {
    const double beyond = extra_ ? 1.0 : -1.0;
    const QPointF aside = QPointF(-std::cos(Radians(kSlope)), std::sin(Radians(kSlope))) * 1.6;
    pen.Line(QPointF(0, 0), aside * 1.2, SketchLine::aid);
    pen.Line(FootAt(0), FootAt(0) + aside * 1.2, SketchLine::aid);
    pen.Measure(kHauteur, aside, FootAt(0) + aside);

    const double row = (extra_ ? FootAt(0).y() : FootAt(kChord).y()) + beyond * 1.5;
    const double rear = kChord - kMargin;
    const double front = rear - kHeel;
    pen.Line(QPointF(kChord, 0), {kChord, row + beyond * 0.4}, SketchLine::aid);
    for (const double x : {rear, front}) {
        pen.Line(QPointF(x, FootAt(x).y()), {x, row + beyond * 0.4}, SketchLine::aid);
    }
    pen.Measure(kMargeBA, {front, row}, {rear, row});
    pen.Measure(kMargeBF, {rear, row}, {kChord, row});

    const double reach = kChord + 2.0;
    pen.Line(FootAt(0), FootAt(0) + QPointF(reach, 0), SketchLine::aid);
    pen.Line(FootAt(kChord), FootAt(reach), SketchLine::aid);
    pen.Angle(kVrillage, FootAt(0), reach - 0.8, -kSlope, 0);
}

} // namespace loftwing
