#include "platform/qt_plot_device.h"

#include "output/line_look.h"
#include "platform/qt_text.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kPointsPerInch = 72.0;
/// A little more than the 3.78 that a millimetre has, so that marks and gaps are whole pixels.
constexpr double kDashPixelsPerMm = 4.0;
/// Sheets are measured at this fineness, where a face's advances have no rounding left.
constexpr double kMeasuringDpi = 1200.0;

/// Faces of Arial's widths stand in where it isn't installed. A font that is `height` painter units
/// high. The toolkit takes whole pixels or points of the device's own resolution; points keep the
/// fraction, and the resolution cancels out.
QFont FontOf(const TextFont &font, double height, int device_dpi) {
    QFont face;
    face.setFamilies({Q(font.name), "Liberation Sans", "Arimo", "Nimbus Sans", "Helvetica"});
    face.setPointSizeF(height * kPointsPerInch / device_dpi);
    // Without hinting a text keeps its proportions at every zoom.
    face.setHintingPreference(QFont::PreferNoHinting);
    return face;
}

double HeightOf(const TextFont &font, const PlotSurface &surface) {
    return font.size * kUnitsPerPoint * surface.scale;
}

double Advance(const std::string &text, const TextFont &font, const PlotSurface &surface) {
    const double height = HeightOf(font, surface);
    if (!(height > 0)) {
        return 0;
    }
    static const QImage device(1, 1, QImage::Format_RGB32);
    const QFontMetricsF metrics(FontOf(font, height, device.logicalDpiY()), &device);
    return metrics.horizontalAdvance(Q(text)) / surface.scale;
}

QColor ColorOf(Colour colour) {
    return QColor::fromRgb(0xFF000000U | colour);
}

} // namespace

PlotSurface ScreenSurface() {
    return {1.0 / kUnitsPerPixel, {1, 2, 3}, kDashPixelsPerMm};
}

PlotSurface PaperSurface(double dpi) {
    const double mm = dpi / kMmPerInch;
    PlotSurface surface{mm / kUnitsPerMm, kPenWidthsMm, mm};
    for (double &width : surface.pen_widths) {
        width *= mm;
    }
    return surface;
}

PlotPainter::PlotPainter(QPainter &painter, const PlotSurface &surface)
    : painter_(painter), surface_(surface) {
    painter_.save();
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter_.setBrush(Qt::NoBrush);
}

PlotPainter::~PlotPainter() {
    Flush();
    painter_.restore();
}

QPen PlotPainter::PenFor(const Pen &pen) const {
    const double width = surface_.pen_widths.at(static_cast<std::size_t>(pen.width - 1));
    // Flat ends, so that no line is drawn longer than it is.
    QPen result(ColorOf(pen.colour), width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    QList<qreal> pattern;
    for (const double mm : DashesMm(pen.style)) {
        pattern.append(mm * surface_.dash_scale / width);
    }
    if (!pattern.isEmpty()) {
        result.setDashPattern(pattern);
    }
    return result;
}

void PlotPainter::Segment(double x1, double y1, double x2, double y2, const Pen &pen) {
    const QPointF from(x1 * surface_.scale, y1 * surface_.scale);
    const QPointF to(x2 * surface_.scale, y2 * surface_.scale);
    // Exact: a run goes on only where the very point is met again.
    const bool joins = !run_.isEmpty() && pen == run_pen_ && run_.back().x() == from.x() &&
                       run_.back().y() == from.y();
    if (!joins) {
        Flush();
        run_pen_ = pen;
        run_.append(from);
    }
    run_.append(to);
}

void PlotPainter::Flush() {
    if (run_.isEmpty()) {
        return;
    }
    const QPolygonF run = std::exchange(run_, {});
    const QPointF first = run.front();
    const bool one_point = std::all_of(run.begin(), run.end(), [&first](const QPointF &point) {
        return point.x() == first.x() && point.y() == first.y();
    });
    if (one_point) {
        Dot(first, run_pen_);
        return;
    }
    painter_.setPen(PenFor(run_pen_));
    painter_.drawPolyline(run);
}

// A line without length has no flat-ended stroke; it shows as a dot as wide as its pen.
void PlotPainter::Dot(const QPointF &at, const Pen &pen) {
    const double radius = surface_.pen_widths.at(static_cast<std::size_t>(pen.width - 1)) / 2;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(ColorOf(pen.colour));
    painter_.drawEllipse(at, radius, radius);
    painter_.setBrush(Qt::NoBrush);
}

void PlotPainter::Circle(double x, double y, double radius, const Pen &pen) {
    Flush();
    const QPointF centre(x * surface_.scale, y * surface_.scale);
    const double length = std::abs(radius) * surface_.scale;
    if (length == 0) {
        Dot(centre, pen);
        return;
    }
    painter_.setPen(PenFor(pen));
    painter_.drawEllipse(centre, length, length);
}

double PlotPainter::Text(double x, double y, const std::string &text, const TextFont &font,
                         Colour colour) {
    Flush();
    const double height = HeightOf(font, surface_);
    if (!(height > 0)) {
        return 0;
    }
    painter_.setFont(FontOf(font, height, painter_.device()->logicalDpiY()));
    painter_.setPen(ColorOf(colour));
    const QFontMetricsF metrics(painter_.font(), painter_.device());
    const QString letters = Q(text);
    painter_.drawText(QPointF(x * surface_.scale, y * surface_.scale + metrics.ascent()), letters);
    return metrics.horizontalAdvance(letters) / surface_.scale;
}

void Replay(const Recording &recording, QPainter &painter, const PlotSurface &surface) {
    PlotPainter plot(painter, surface);
    for (const Operation &operation : recording.Operations()) {
        if (const auto *segment = std::get_if<DrawnSegment>(&operation)) {
            plot.Segment(segment->x1, segment->y1, segment->x2, segment->y2, segment->pen);
        } else if (const auto *circle = std::get_if<DrawnCircle>(&operation)) {
            plot.Circle(circle->x, circle->y, circle->radius, circle->pen);
        } else if (const auto *text = std::get_if<DrawnText>(&operation)) {
            plot.Text(text->x, text->y, text->text, text->font, text->colour);
        }
    }
}

double ScreenAdvance(const std::string &text, const TextFont &font) {
    return Advance(text, font, ScreenSurface());
}

double PaperAdvance(const std::string &text, const TextFont &font) {
    return Advance(text, font, PaperSurface(kMeasuringDpi));
}

} // namespace loftwing
