#include "mainwindow/import_picture.h"

#include "platform/qt_contrast.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr QSize kUsualSize(680, 240);
constexpr QSize kLeastSize(320, 120);
constexpr int kMargin = 12;    // pixels
constexpr double kCross = 2.5; // arms of a point's cross, pixels
constexpr double kLine = 1.5;  // width of the contour, pixels
constexpr int kSample = 24;    // length of the legend's samples, pixels
constexpr int kGap = 6;        // between a sample and its word, pixels

QPolygonF Polygon(const Curve &curve) {
    QPolygonF polygon;
    for (const CurvePoint &point : curve) {
        polygon << QPointF(point.x, point.y);
    }
    return polygon;
}

/// From fractions of the chord, y upwards, to the middle of `place`.
QTransform Fit(const QRectF &extent, const QRectF &place) {
    const double width = std::max(extent.width(), 1e-9);
    const double height = std::max(extent.height(), 1e-9);
    const double scale = std::min(place.width() / width, place.height() / height);
    QTransform fit;
    fit.translate(place.center().x(), place.center().y());
    fit.scale(scale, -scale);
    fit.translate(-extent.center().x(), -extent.center().y());
    return fit;
}

void DrawCross(QPainter &painter, const QPointF &at) {
    painter.drawLine(at - QPointF(kCross, kCross), at + QPointF(kCross, kCross));
    painter.drawLine(at - QPointF(kCross, -kCross), at + QPointF(kCross, -kCross));
}

} // namespace

ImportPicture::ImportPicture(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ImportPicture::Montre(const Curve &points, const Curve &contour) {
    points_ = Polygon(points);
    contour_ = Polygon(contour);
    update();
}

void ImportPicture::Nomme(const QString &points, const QString &contour) {
    words_ = {points, contour};
    setAccessibleName(points + ", " + contour);
    update();
}

QSize ImportPicture::sizeHint() const {
    return kUsualSize;
}

QSize ImportPicture::minimumSizeHint() const {
    return kLeastSize.expandedTo({static_cast<int>(std::ceil(LegendSize().width())), 0});
}

QColor ImportPicture::PointsColour() const {
    return palette().color(QPalette::Text);
}

QColor ImportPicture::ContourColour() const {
    return Lisible(palette().color(QPalette::Highlight), palette().color(QPalette::Base),
                   kContrasteTrait);
}

/// Two entries side by side.
QSizeF ImportPicture::LegendSize() const {
    double width = kMargin;
    for (const QString &word : words_) {
        width += kSample + kGap + fontMetrics().horizontalAdvance(word) + kMargin;
    }
    return {width, static_cast<double>(fontMetrics().height())};
}

void ImportPicture::PeintLegende(QPainter &painter) const {
    const double text = height() - kMargin - fontMetrics().descent();
    const double middle = height() - kMargin - fontMetrics().height() / 2.0;
    double x = kMargin;
    for (std::size_t i = 0; i < words_.size(); ++i) {
        if (i == 0) {
            painter.setPen(QPen(PointsColour(), 1));
            DrawCross(painter, {x + kSample - 2 * kCross, middle});
        } else {
            painter.setPen(QPen(ContourColour(), kLine));
            painter.drawLine(QPointF(x, middle), QPointF(x + kSample, middle));
        }
        x += kSample + kGap;
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QPointF(x, text), words_.at(i));
        x += fontMetrics().horizontalAdvance(words_.at(i)) + kMargin;
    }
}

void ImportPicture::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    PeintLegende(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF extent = points_.boundingRect().united(contour_.boundingRect());
    const QRectF place =
        QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -2 * kMargin - LegendSize().height());
    if (points_.empty() || place.isEmpty()) {
        return;
    }
    const QTransform fit = Fit(extent, place);
    painter.setPen(QPen(ContourColour(), kLine));
    painter.drawPolyline(fit.map(contour_));
    painter.setRenderHint(QPainter::Antialiasing, false); // small crosses stay crisp
    painter.setPen(QPen(PointsColour(), 1));
    for (const QPointF &point : fit.map(points_)) {
        DrawCross(painter, point);
    }
}

} // namespace loftwing
