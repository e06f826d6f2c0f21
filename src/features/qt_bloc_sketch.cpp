#include "features/qt_bloc_sketch.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

// In lines of text, from the left end of the template, on the reference line.
constexpr QSizeF kCanvas(28.4, 14.2);
constexpr QPointF kOrigin(2.6, 8.6);
constexpr double kFront = 3.8; // leading edge
constexpr double kChord = 14.0;
constexpr double kRear = kFront + kChord;
constexpr double kEnd = kRear + 4.2;
constexpr double kTop = 3.7;
constexpr double kBottom = -3.2;
constexpr double kSlope = 3.5; // washout in degrees, whatever the rib's is
constexpr double kRow = -6.1;  // of the upper dimension line below
constexpr double kSecondRow = -7.7;

} // namespace

BlocSketch::BlocSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void BlocSketch::SetChordWord(const QString &word) {
    chord_ = word;
    update();
}

void BlocSketch::Montre(const AspectBloc &aspect) {
    aspect_ = aspect;
    update();
}

/// How the block leans, degrees. As in the plot a positive washout lifts its rear end.
double BlocSketch::Inclinaison() const {
    return aspect_.vrillage == 0.0 ? 0.0 : std::copysign(kSlope, aspect_.vrillage);
}

/// A point of the level block where the washout has taken it.
QPointF BlocSketch::Tourne(QPointF point) const {
    const double angle = Inclinaison() * std::acos(-1.0) / 180.0;
    const double s = std::sin(angle);
    const double c = std::cos(angle);
    return {point.x() * c - point.y() * s, point.x() * s + point.y() * c};
}

/// The tail's end lies as far on the other side of the reference line as the chosen surface, that
/// far before the trailing edge, lies on its own: a surface that falls towards the edge is led on.
FormeBloc BlocSketch::Forme() const {
    const double mirrored = (kRear - (kEnd - kRear) - kFront) / kChord;
    const double surface = aspect_.Optquebf == 1 ? SketchLower(mirrored) : SketchUpper(mirrored);
    return {Tourne({0, kTop}),       Tourne({kEnd, kTop}), Tourne({0, kBottom}),
            Tourne({kEnd, kBottom}), {kRear, 0},           {kEnd, -surface * kChord}};
}

void BlocSketch::Draw(SketchPainter &shown) const {
    // Upside down there is as much room below the line as there was above it.
    SketchPainter pen =
        aspect_.AffHaut ? shown.Moved({0, kCanvas.height() - 2.0 * kOrigin.y()}).Mirrored() : shown;
    pen.Area(SketchOutline({kFront, 0}, kChord), SketchLine::rib);
    pen.Line(QPointF(kFront, 0), {kEnd + 0.8, 0}, SketchLine::axis);
    DrawBlock(pen);
    DrawHeights(pen);
    DrawAngle(pen);
    DrawLengths(pen);
    pen.Word(LeadingWord(), {kFront - 1.2, 0.9});
    // On the side that the tail leaves free.
    pen.Word(TrailingWord(), {kRear + 1.7, aspect_.Optquebf == 1 ? -0.9 : 0.9});
}

/// The block with its two ramps. Its ends are closed over the tail's end, as the wire leaves it.
void BlocSketch::DrawBlock(SketchPainter &pen) const {
    const FormeBloc block = Forme();
    pen.Line({block.queue, block.haut_arriere, block.haut_avant, block.bas_avant, block.bas_arriere,
              block.queue},
             SketchLine::added);
    pen.Line(QPointF(0, 0), {kFront, 0}, SketchLine::added);
    pen.Line(block.bord, block.queue, SketchLine::added);
}

void BlocSketch::DrawHeights(SketchPainter &pen) const {
    const double left = -1.4;
    pen.Line(QPointF(0, 0), Tourne({left - 0.4, 0}), SketchLine::aid);
    pen.Line(Tourne({0, kBottom}), Tourne({left - 0.4, kBottom}), SketchLine::aid);
    pen.Measure(kBas, Tourne({left, kBottom}), Tourne({left, 0}));

    const double right = kEnd + 2.2;
    pen.Line(Tourne({kEnd, kTop}), Tourne({right + 0.4, kTop}), SketchLine::aid);
    pen.Line(Tourne({kEnd, kBottom}), Tourne({right + 0.4, kBottom}), SketchLine::aid);
    pen.Measure(kHauteur, Tourne({right, kBottom}), Tourne({right, kTop}));

    pen.Measure(kCoupeBF, {kRear, SketchLower(1) * kChord}, {kRear, SketchUpper(1) * kChord});
}

/// Between the level and the block's lower side. A level block shows where a positive angle would
/// take it.
void BlocSketch::DrawAngle(SketchPainter &pen) const {
    const double reach = kEnd + 0.4;
    const double slope = Inclinaison() == 0.0 ? kSlope : Inclinaison();
    const double radians = slope * std::acos(-1.0) / 180.0;
    const QPointF corner = Forme().bas_avant;
    pen.Line(corner, corner + QPointF(reach, 0), SketchLine::aid);
    pen.Line(corner, corner + QPointF(std::cos(radians), std::sin(radians)) * reach,
             SketchLine::aid);
    pen.Angle(kVrillage, corner, reach - 0.3, std::min(slope, 0.0), std::max(slope, 0.0));
}

void BlocSketch::DrawLengths(SketchPainter &pen) const {
    const FormeBloc block = Forme();
    const double foot = kSecondRow - 0.4;
    pen.Line(QPointF(0, block.bas_avant.y()), {0, foot}, SketchLine::aid);
    pen.Line(QPointF(kFront, 0), {kFront, kRow - 0.4}, SketchLine::aid);
    pen.Line(QPointF(kRear, SketchLower(1) * kChord), {kRear, kRow - 0.4}, SketchLine::aid);
    pen.Line(QPointF(kEnd, block.bas_arriere.y()), {kEnd, foot}, SketchLine::aid);
    pen.Measure(kRampeBA, {0, kRow}, {kFront, kRow});
    pen.Measure(chord_, {kFront, kRow}, {kRear, kRow});
    pen.Measure(kRampeBF, {kRear, kRow}, {kEnd, kRow});
    pen.Measure(kLongueur, {0, kSecondRow}, {kEnd, kSecondRow});
}

} // namespace loftwing
