#include "mainwindow/plan_picture.h"

#include "platform/qt_contrast.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>

namespace loftwing {

namespace {

constexpr int kUsualWidth = 720; // pixels
constexpr int kUsualLines = 9;   // of text
constexpr int kLeastLines = 5;
constexpr int kMargin = 10;    // pixels
constexpr double kThick = 1.5; // of a spar, pixels
constexpr double kHalf = 0.5;

QPolygonF Points(const std::vector<PointMm> &line, const QTransform &to) {
    QPolygonF points;
    for (const PointMm &point : line) {
        points << to.map(QPointF(point.x, point.y));
    }
    return points;
}

/// From mm to the middle of `place`; y goes down in both.
QTransform Fit(const PlanPanneau &plan, const QRectF &place) {
    const double chord = std::max({plan.cordes[0], plan.cordes[1], 1e-3});
    const double scale = std::min(place.width() / plan.longueur, place.height() / chord);
    QTransform fit;
    fit.translate(place.center().x() - plan.longueur * scale * kHalf,
                  place.center().y() - chord * scale * kHalf);
    fit.scale(scale, scale);
    return fit;
}

} // namespace

PlanPicture::PlanPicture(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PlanPicture::Montre(PlanPanneau plan) {
    plan_ = std::move(plan);
    update();
}

QSize PlanPicture::sizeHint() const {
    return {kUsualWidth, kUsualLines * fontMetrics().lineSpacing()};
}

QSize PlanPicture::minimumSizeHint() const {
    return {kUsualWidth / 2, kLeastLines * fontMetrics().lineSpacing()};
}

QColor PlanPicture::ContourColour() const {
    return palette().color(QPalette::Text);
}

QColor PlanPicture::SparColour() const {
    return Lisible(palette().color(QPalette::Highlight), palette().color(QPalette::Base),
                   kContrasteTrait);
}

QColor PlanPicture::StockColour() const {
    return Lisible(Melange(palette().color(QPalette::Text), palette().color(QPalette::Base), kHalf),
                   palette().color(QPalette::Base), kContrasteTrait);
}

void PlanPicture::PeintLignes(QPainter &painter, const QTransform &to) const {
    painter.setPen(QPen(StockColour(), 1));
    for (const std::vector<PointMm> &line : plan_.baguettes) {
        painter.drawPolyline(Points(line, to));
    }
    painter.setPen(QPen(SparColour(), kThick));
    for (const std::vector<PointMm> &line : plan_.longerons) {
        painter.drawPolyline(Points(line, to));
    }
    painter.setPen(QPen(ContourColour(), 1));
    painter.drawPolygon(Points(
        {{0, 0}, {plan_.longueur, 0}, {plan_.longueur, plan_.cordes[1]}, {0, plan_.cordes[0]}},
        to));
    for (const NervurePlan &rib : plan_.nervures) {
        painter.drawLine(to.map(QPointF(rib.x, 0)), to.map(QPointF(rib.x, rib.corde)));
    }
}

/// Over the leading edge, as many as there is room for.
void PlanPicture::PeintNumeros(QPainter &painter, const QTransform &to) const {
    painter.setPen(ContourColour());
    double free = -1;
    for (const NervurePlan &rib : plan_.nervures) {
        const QString number = QString::number(rib.numero);
        const double width = fontMetrics().horizontalAdvance(number);
        const QPointF nose = to.map(QPointF(rib.x, 0));
        const double left = nose.x() - width * kHalf;
        if (left > free) {
            painter.drawText(QPointF(left, nose.y() - fontMetrics().descent()), number);
            free = left + width + fontMetrics().averageCharWidth();
        }
    }
}

void PlanPicture::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRectF place = QRectF(rect()).adjusted(2 * kMargin, kMargin + fontMetrics().height(),
                                                 -2 * kMargin, -kMargin);
    if (plan_.longueur <= 0 || place.isEmpty()) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform to = Fit(plan_, place);
    PeintLignes(painter, to);
    PeintNumeros(painter, to);
}

} // namespace loftwing
