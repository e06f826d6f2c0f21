#include "features/qt_bloc_sketch.h"

#include <cmath>

namespace loftwing {

namespace {

// In lines of text, from the left end of the template, on the reference line.
constexpr QSizeF kCanvas(28.4, 13.6);
constexpr QPointF kOrigin(2.6, 9.2);
constexpr double kFront = 3.8; // leading edge
constexpr double kChord = 14.0;
constexpr double kRear = kFront + kChord;
constexpr double kEnd = kRear + 4.2;
constexpr double kTop = 3.8;
constexpr double kBottom = -2.8;
constexpr double kSlope = 4.5; // washout in degrees
constexpr double kRow = -6.6;  // of the upper dimension line below
constexpr double kSecondRow = -8.2;

} // namespace

BlocSketch::BlocSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void BlocSketch::SetChordWord(const QString &word) {
    chord_ = word;
    update();
}

void BlocSketch::Montre(int Optquebf) {
    lower_tail_ = Optquebf == 1;
    update();
}

void BlocSketch::Draw(SketchPainter &pen) const {
    pen.Area(SketchOutline({kFront, 0}, kChord), SketchLine::rib);
    pen.Line(QPointF(kFront, 0), {kEnd + 0.8, 0}, SketchLine::axis);
    DrawBlock(pen);
    DrawHeights(pen);
    DrawAngle(pen);
    DrawLengths(pen);
    pen.Word(LeadingWord(), {kFront - 1.2, 0.9});
    pen.Word(TrailingWord(), {kRear + 1.6, -1.5});
}

/// The block with its two ramps. The rear one ends as high as the chosen surface is as far before
/// the trailing edge.
void BlocSketch::DrawBlock(SketchPainter &pen) const {
    const double mirrored = (kRear - (kEnd - kRear) - kFront) / kChord;
    const double tail = (lower_tail_ ? SketchLower(mirrored) : SketchUpper(mirrored)) * kChord;
    const double edge = (lower_tail_ ? SketchLower(1) : SketchUpper(1)) * kChord;
    pen.Line({{0, kBottom}, {0, kTop}, {kEnd, kTop}, {kEnd, kBottom}, {0, kBottom}},
             SketchLine::added);
    pen.Line(QPointF(0, 0), {kFront, 0}, SketchLine::added);
    pen.Line(QPointF(kRear, edge), {kEnd, tail}, SketchLine::added);
}

void BlocSketch::DrawHeights(SketchPainter &pen) {
    const double left = -1.4;
    pen.Line(QPointF(0, 0), {left - 0.4, 0}, SketchLine::aid);
    pen.Line(QPointF(0, kBottom), {left - 0.4, kBottom}, SketchLine::aid);
    pen.Measure(kBas, {left, kBottom}, {left, 0});

    const double right = kEnd + 2.2;
    pen.Line(QPointF(kEnd, kTop), {right + 0.4, kTop}, SketchLine::aid);
    pen.Line(QPointF(kEnd, kBottom), {right + 0.4, kBottom}, SketchLine::aid);
    pen.Measure(kHauteur, {right, kBottom}, {right, kTop});

    pen.Measure(kCoupeBF, {kRear, SketchLower(1) * kChord}, {kRear, SketchUpper(1) * kChord});
}

/// The washout turns the block about its left end.
void BlocSketch::DrawAngle(SketchPainter &pen) {
    const double reach = kEnd + 0.4;
    const double fall = reach * std::tan(kSlope * std::acos(-1.0) / 180.0);
    pen.Line(QPointF(0, kBottom), {reach, kBottom - fall}, SketchLine::aid);
    pen.Line(QPointF(kEnd, kBottom), {reach, kBottom}, SketchLine::aid);
    pen.Angle(kVrillage, {0, kBottom}, reach - 0.3, -kSlope, 0);
}

void BlocSketch::DrawLengths(SketchPainter &pen) const {
    const double foot = kSecondRow - 0.4;
    pen.Line(QPointF(0, kBottom), {0, foot}, SketchLine::aid);
    pen.Line(QPointF(kFront, 0), {kFront, kRow - 0.4}, SketchLine::aid);
    pen.Line(QPointF(kRear, SketchLower(1) * kChord), {kRear, kRow - 0.4}, SketchLine::aid);
    pen.Line(QPointF(kEnd, kBottom), {kEnd, foot}, SketchLine::aid);
    pen.Measure(kRampeBA, {0, kRow}, {kFront, kRow});
    pen.Measure(chord_, {kFront, kRow}, {kRear, kRow});
    pen.Measure(kRampeBF, {kRear, kRow}, {kEnd, kRow});
    pen.Measure(kLongueur, {0, kSecondRow}, {kEnd, kSecondRow});
}

} // namespace loftwing
