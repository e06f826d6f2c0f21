#include "utilities/qt_panneau_sketch.h"

namespace loftwing {

namespace {

// In lines of text, from the trailing edge at the major chord.
constexpr QSizeF kCanvas(22.6, 12.2);
constexpr QPointF kOrigin(4.4, 2.4);
constexpr double kLength = 13.6;
constexpr double kMajor = 7.2;
constexpr double kMinorFront = 6.6; // leading edge at the minor chord
constexpr double kMinorBack = 1.8;
constexpr double kSparMajor = 4.8;
constexpr double kSparMinor = 4.9;
constexpr int kRibs = 5;
constexpr double kThickness = 0.5;
constexpr double kStep = (kLength - kThickness) / (kRibs - 1);
constexpr double kNear = 1.3; // rows of measures beside the panel
constexpr double kFar = 3.0;

double FrontAt(double x) {
    return kMajor + (kMinorFront - kMajor) * x / kLength;
}

double BackAt(double x) {
    return kMinorBack * x / kLength;
}

double RibAt(int number) {
    return number * kStep;
}

void DrawRib(SketchPainter &pen, double x) {
    const double end = x + kThickness;
    pen.Area({{x, BackAt(x)}, {x, FrontAt(x)}, {end, FrontAt(end)}, {end, BackAt(end)}},
             SketchLine::added);
}

/// A vertical measure beside the panel, with the lines that lead to it.
void DrawChord(SketchPainter &pen, const char *letter, double from, double aside, double low,
               double high) {
    const double row = from + aside;
    const double beyond = row + (aside > 0 ? 0.5 : -0.5);
    pen.Line(QPointF(from, low), {beyond, low}, SketchLine::aid);
    pen.Line(QPointF(from, high), {beyond, high}, SketchLine::aid);
    pen.Measure(letter, {row, low}, {row, high});
}

/// A measure along the span over the panel.
void DrawSpan(SketchPainter &pen, const char *letter, double from, double to) {
    constexpr double kRow = kMajor + 1.3;
    for (const double x : {from, to}) {
        pen.Line(QPointF(x, FrontAt(x)), {x, kRow + 0.4}, SketchLine::aid);
    }
    pen.Measure(letter, {from, kRow}, {to, kRow});
}

} // namespace

PanneauSketch::PanneauSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void PanneauSketch::Draw(SketchPainter &pen) const {
    pen.Area({{0, 0}, {0, kMajor}, {kLength, kMinorFront}, {kLength, kMinorBack}}, SketchLine::rib);
    for (int number = 0; number < kRibs; ++number) {
        DrawRib(pen, RibAt(number));
    }
    pen.Line(QPointF(0, kSparMajor), {kLength, kSparMinor}, SketchLine::axis);
    DrawChord(pen, kLongeronMaj, 0, -kNear, kSparMajor, kMajor);
    DrawChord(pen, kCordeMaj, 0, -kFar, 0, kMajor);
    DrawChord(pen, kLongeronMin, kLength, kNear, kSparMinor, kMinorFront);
    DrawChord(pen, kCordeMin, kLength, kFar, kMinorBack, kMinorFront);
    DrawSpan(pen, kEcart, RibAt(1) + kThickness, RibAt(2));
    DrawSpan(pen, kEprNervure, RibAt(3), RibAt(3) + kThickness);
    for (const double x : {0.0, kLength}) {
        pen.Line(QPointF(x, BackAt(x)), {x, -1.7}, SketchLine::aid);
    }
    pen.Measure(kLongPanneau, {0, -1.3}, {kLength, -1.3});
}

} // namespace loftwing
