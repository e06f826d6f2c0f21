#include "features/qt_sketch.h"

#include "platform/qt_contrast.h"
#include "platform/qt_form.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kArrow = 0.45;   // length of an arrow head in lines
constexpr double kShortest = 2.4; // a dimension line with its arrows inside, in lines
constexpr double kAround = 0.25;  // room on each side of a word in a line, in lines
constexpr double kThin = 1.0;     // pen widths in pixels of a screen of usual scale
constexpr double kStrong = 2.0;
constexpr double kThickness = 0.18; // of the schematic airfoil
constexpr double kCamber = 0.03;
constexpr double kBlunt = 0.028; // half the height of its trailing edge

double HalfThickness(double x) {
    const double thickness = 5.0 * kThickness *
                             (0.2969 * std::sqrt(x) - 0.1260 * x - 0.3516 * x * x +
                              0.2843 * x * x * x - 0.1036 * x * x * x * x);
    return thickness + kBlunt * x;
}

double Camber(double x) {
    return 4.0 * kCamber * x * (1.0 - x);
}

double Length(QPointF vector) {
    return std::hypot(vector.x(), vector.y());
}

QPointF Turned(QPointF vector, double radians) {
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    return {vector.x() * c - vector.y() * s, vector.x() * s + vector.y() * c};
}

} // namespace

double SketchUpper(double x) {
    return Camber(x) + HalfThickness(x);
}

double SketchLower(double x) {
    return Camber(x) - HalfThickness(x);
}

QPolygonF SketchOutline(QPointF nose, double length, double last) {
    constexpr int kSteps = 40;
    QPolygonF outline;
    for (int step = -kSteps; step <= kSteps; ++step) {
        const double part = static_cast<double>(step) / kSteps;
        const double x = last * part * part; // close together at the nose
        const double y = step < 0 ? SketchUpper(x) : SketchLower(x);
        outline << nose + QPointF(x, y) * length;
    }
    return outline;
}

SketchPainter::SketchPainter(QPainter &painter, const QWidget &widget, QPointF origin, double unit,
                             QString strong, std::vector<SketchWord> &words)
    : painter_(painter), widget_(widget), origin_(origin), unit_(unit), strong_(std::move(strong)),
      words_(words) {}

SketchPainter SketchPainter::Moved(QPointF origin) const {
    SketchPainter moved = *this;
    moved.origin_ = At(origin);
    return moved;
}

SketchPainter SketchPainter::Mirrored() const {
    SketchPainter mirrored = *this;
    mirrored.up_ = -up_;
    return mirrored;
}

QPointF SketchPainter::At(QPointF point) const {
    return {origin_.x() + point.x() * unit_, origin_.y() - up_ * point.y() * unit_};
}

QPolygonF SketchPainter::At(const QPolygonF &points) const {
    QPolygonF placed;
    for (const QPointF &point : points) {
        placed << At(point);
    }
    return placed;
}

QColor SketchColour(const QPalette &palette, SketchLine kind) {
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    switch (kind) {
    case SketchLine::rib:
        return text;
    case SketchLine::added:
        return Lisible(palette.color(QPalette::Highlight), window, kContrasteTrait);
    case SketchLine::axis:
        return Melange(window, text, 0.7);
    case SketchLine::aid:
        break;
    }
    return Lisible(Melange(window, text, 0.45), window, kContrasteTrait);
}

QPen SketchPainter::PenFor(SketchLine kind) const {
    const QColor colour = SketchColour(widget_.palette(), kind);
    switch (kind) {
    case SketchLine::added:
        return QPen(colour, kStrong);
    case SketchLine::axis:
        return QPen(colour, kThin, Qt::DashDotLine);
    default:
        return QPen(colour, kThin);
    }
}

QPen SketchPainter::MeasurePen(const QString &letter) const {
    return QPen(SketchColour(widget_.palette(), SketchLine::rib),
                letter == strong_ ? kStrong : kThin);
}

void SketchPainter::Line(QPointF from, QPointF to, SketchLine kind) {
    painter_.setPen(PenFor(kind));
    painter_.drawLine(At(from), At(to));
}

void SketchPainter::Line(const QPolygonF &points, SketchLine kind) {
    painter_.setPen(PenFor(kind));
    painter_.drawPolyline(At(points));
}

void SketchPainter::Area(const QPolygonF &points, SketchLine kind) {
    painter_.setPen(PenFor(kind));
    QColor fill = PenFor(kind).color();
    fill.setAlphaF(0.12F);
    painter_.setBrush(fill);
    painter_.drawPolygon(At(points));
    painter_.setBrush(Qt::NoBrush);
}

/// An arrow head at `tip`, whose line comes from `from`, both in pixels.
void SketchPainter::Arrow(QPointF tip, QPointF from) {
    const QPointF back = (from - tip) / Length(from - tip) * kArrow * unit_;
    constexpr double kHalfAngle = 0.28;
    painter_.setBrush(painter_.pen().color());
    painter_.drawPolygon(
        QPolygonF{tip, tip + Turned(back, kHalfAngle), tip + Turned(back, -kHalfAngle)});
    painter_.setBrush(Qt::NoBrush);
}

QSizeF SketchPainter::SizeOf(const QString &text) const {
    QFont bold = widget_.font();
    bold.setBold(true);
    const QFontMetricsF metrics(bold);
    return {metrics.horizontalAdvance(text), metrics.ascent() + metrics.descent()};
}

void SketchPainter::Put(const QString &text, QPointF centre, bool bold) {
    const QSizeF size = SizeOf(text);
    const QRectF place(centre - QPointF(size.width(), size.height()) / 2.0, size);
    QFont font = widget_.font();
    font.setBold(bold);
    painter_.setFont(font);
    painter_.setPen(SketchColour(widget_.palette(), SketchLine::rib));
    painter_.drawText(place, static_cast<int>(Qt::AlignCenter), text);
    words_.push_back({text, place});
}

void SketchPainter::Word(const QString &text, QPointF centre) {
    Put(text, At(centre), false);
}

/// How much of a line in that direction (length 1) its letter takes on each side of its middle.
double SketchPainter::GapFor(const QString &letter, QPointF direction) const {
    const QSizeF size = SizeOf(letter);
    const double across = std::abs(direction.x()) > 1E-9
                              ? size.width() / 2.0 / std::abs(direction.x())
                              : size.height();
    const double down = std::abs(direction.y()) > 1E-9
                            ? size.height() / 2.0 / std::abs(direction.y())
                            : size.width();
    return std::min(across, down) + kAround * unit_;
}

void SketchPainter::Measure(const QString &letter, QPointF from, QPointF to) {
    const QPointF start = At(from);
    const QPointF end = At(to);
    const double length = Length(end - start);
    const QPointF way = (end - start) / length;
    const double gap = GapFor(letter, way);
    painter_.setPen(MeasurePen(letter));
    QPointF middle = (start + end) / 2.0;
    if (length < kShortest * unit_) {
        const QPointF tail = way * (2.0 * kArrow * unit_);
        painter_.drawLine(start - tail, start);
        painter_.drawLine(end, end + tail);
        Arrow(start, start - tail);
        Arrow(end, end + tail);
        middle = end + tail + way * gap;
    } else {
        painter_.drawLine(start, middle - way * gap);
        painter_.drawLine(middle + way * gap, end);
        Arrow(start, end);
        Arrow(end, start);
    }
    Put(letter, middle, letter == strong_);
}

void SketchPainter::Angle(const QString &letter, QPointF centre, double radius, double start,
                          double end) {
    const QPointF middle = At(centre);
    const double pixels = radius * unit_;
    const QRectF circle(middle - QPointF(pixels, pixels), QSizeF(2.0 * pixels, 2.0 * pixels));
    painter_.setPen(MeasurePen(letter));
    constexpr double kSixteenths = 16.0; // the toolkit's unit of angles
    painter_.drawArc(circle, static_cast<int>(std::lround(up_ * start * kSixteenths)),
                     static_cast<int>(std::lround(up_ * (end - start) * kSixteenths)));
    const auto on_arc = [&](double degrees) {
        const double radians = up_ * degrees * std::acos(-1.0) / 180.0;
        return middle + QPointF(std::cos(radians), -std::sin(radians)) * pixels;
    };
    const double step = (end - start) / 4.0;
    Arrow(on_arc(start), on_arc(start + step));
    Arrow(on_arc(end), on_arc(end - step));
    const QPointF beside(SizeOf(letter).width() / 2.0 + 2.0 * kAround * unit_, 0);
    Put(letter, on_arc((start + end) / 2.0) + beside, letter == strong_);
}

Sketch::Sketch(QSizeF canvas, QPointF origin, QWidget *parent)
    : QWidget(parent), canvas_(canvas), origin_(origin) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Sketch::SetEdgeWords(const QString &leading, const QString &trailing) {
    leading_ = leading;
    trailing_ = trailing;
    update();
}

void Sketch::Follow(QWidget &field, const QString &letter) {
    field.setProperty("sketch_letter", letter);
    field.installEventFilter(this);
}

bool Sketch::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const bool entered = event->type() == QEvent::FocusIn;
        strong_ = entered ? watched->property("sketch_letter").toString() : QString();
        update();
    }
    return QWidget::eventFilter(watched, event);
}

QSize Sketch::sizeHint() const {
    return (canvas_ * fontMetrics().height()).toSize();
}

void Sketch::paintEvent(QPaintEvent *) {
    words_.clear();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = std::min(width() / canvas_.width(), height() / canvas_.height());
    const QPointF corner((width() - canvas_.width() * unit) / 2.0,
                         (height() + canvas_.height() * unit) / 2.0);
    const QPointF origin = corner + QPointF(origin_.x(), -origin_.y()) * unit;
    SketchPainter pen(painter, *this, origin, unit, strong_, words_);
    Draw(pen);
}

QLabel *MeasureLetter(const QString &letter) {
    auto *label = new QLabel(letter);
    QFont bold; // says nothing but the weight, so that the size goes on following the window's
    bold.setBold(true);
    label->setFont(bold);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void AddMeasure(QGridLayout &grid, int row, Sketch &sketch, const MeasureRow &measure) {
    auto *unit = new QLabel(measure.unit);
    unit->setTextFormat(Qt::PlainText);
    SetCaption(measure.caption, measure.field);
    // A small screen may take room from the sketch, but not from what is typed.
    constexpr int kDigits = 11;
    measure.field.setMinimumWidth(measure.field.fontMetrics().horizontalAdvance('0') * kDigits);
    grid.addWidget(MeasureLetter(measure.letter), row, 0);
    grid.addWidget(&measure.caption, row, 1);
    grid.addWidget(&measure.field, row, 2);
    grid.addWidget(unit, row, 3);
    sketch.Follow(measure.field, measure.letter);
}

} // namespace loftwing
