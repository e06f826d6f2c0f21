#include "features/qt_carre_sketch.h"

namespace loftwing {

namespace {

// In lines of text, from the leading edge.
constexpr QSizeF kCanvas(20.0, 12.4);
constexpr QPointF kOrigin(3.0, 5.0);
constexpr double kChord = 58.0;
constexpr double kShown = 14.5; // of the chord
constexpr QPointF kAxis(4.6, 1.5);
constexpr double kHalf = 2.6; // of the square's diagonal
constexpr double kRow = -4.0; // of the dimension line below

/// Where the rib goes on outside the picture.
QPolygonF Break() {
    const double top = SketchUpper(kShown / kChord) * kChord + 0.5;
    const double bottom = SketchLower(kShown / kChord) * kChord - 0.5;
    const double middle = (top + bottom) / 2.0;
    return {{kShown, top},
            {kShown, middle + 0.6},
            {kShown - 0.5, middle + 0.2},
            {kShown + 0.5, middle - 0.2},
            {kShown, middle - 0.6},
            {kShown, bottom}};
}

} // namespace

CarreSketch::CarreSketch(QWidget *parent) : Sketch(kCanvas, kOrigin, parent) {}

void CarreSketch::Draw(SketchPainter &pen) const {
    pen.Line(SketchOutline({0, 0}, kChord, kShown / kChord), SketchLine::rib);
    pen.Line(Break(), SketchLine::aid);
    pen.Line(QPointF(0, 0), {kShown + 1.5, 0}, SketchLine::axis);
    pen.Area({kAxis + QPointF(0, kHalf), kAxis + QPointF(kHalf, 0), kAxis - QPointF(0, kHalf),
              kAxis - QPointF(kHalf, 0)},
             SketchLine::added);
    DrawMeasures(pen);
    pen.Word(LeadingWord(), {-1.4, 0});
}

void CarreSketch::DrawMeasures(SketchPainter &pen) {
    const QPointF left = kAxis - QPointF(kHalf, 0);
    const QPointF top = kAxis + QPointF(0, kHalf);
    const QPointF outwards(-1.7, 1.7);
    pen.Line(left, left + outwards * 1.2, SketchLine::aid);
    pen.Line(top, top + outwards * 1.2, SketchLine::aid);
    pen.Measure(kCote, left + outwards, top + outwards);

    pen.Line(QPointF(0, 0), {0, kRow - 0.4}, SketchLine::aid);
    pen.Line(kAxis, {kAxis.x(), kRow - 0.4}, SketchLine::aid);
    pen.Measure(kX, {0, kRow}, {kAxis.x(), kRow});

    const double column = kAxis.x() + kHalf + 1.4;
    pen.Line(kAxis, {column + 0.4, kAxis.y()}, SketchLine::aid);
    pen.Measure(kY, {column, 0}, {column, kAxis.y()});
}

} // namespace loftwing
