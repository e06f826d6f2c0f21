#include "mainwindow/plan_view.h"

#include "output/rib_measures.h"
#include "platform/qt_contrast.h"
#include "platform/qt_focus_mark.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_text.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr int kUsualWidth = 720; // pixels
constexpr int kUsualLines = 16;  // of text
constexpr int kLeastLines = 5;
constexpr int kMargin = 10; // pixels
constexpr double kHalf = 0.5;
constexpr double kThick = 1.5;                         // of a spar, pixels
constexpr double kReadable = 4;                        // least height of capitals, pixels
constexpr double kSame = 1e-9;                         // steps back and forth leave that much
constexpr double kStep = 1.25;                         // of the zoom
constexpr double kTrue = kUnitsPerMm / kUnitsPerPixel; // pixels a mm
constexpr double kLargest = 100;                       // likewise
constexpr double kArrow = 1.0 / 8;                     // of the picture
constexpr double kLeast = 1e-3;                        // mm

double Largeur(const BoitePiece &box) {
    return std::max(box.haut_droite.x - box.bas_gauche.x, kLeast);
}

double Hauteur(const BoitePiece &box) {
    return std::max(box.haut_droite.y - box.bas_gauche.y, kLeast);
}

/// A place from which the picture shows no more beyond the drawing than it must.
double Borne(double centre, double from, double to, double shown) {
    const double middle = (from + to) * kHalf;
    const double play = std::max((to - from - shown) * kHalf, 0.0);
    return std::clamp(centre, middle - play, middle + play);
}

/// Letters of a hundred pixels, scaled: in small ones rounding would make the words wider.
void Ecrit(QPainter &painter, const TextePlan &text, const QTransform &to) {
    constexpr int kPixels = 100;
    QFont face("Arial");
    face.setPixelSize(kPixels);
    const PointMm start = DebutTextePlan(text);
    painter.save();
    painter.setFont(face);
    painter.translate(to.map(QPointF(start.x, start.y)));
    const double scale = text.hauteur / kCapitales * to.m11() / kPixels;
    painter.scale(scale, scale);
    painter.drawText(QPointF(0, 0), Q(text.texte));
    painter.restore();
}

} // namespace

PlanView::PlanView(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus); // for the keys that zoom and scroll
    setAttribute(Qt::WA_OpaquePaintEvent);
    FocusMark::On(*this);
}

void PlanView::Montre(DessinPlan dessin) {
    dessin_ = std::move(dessin);
    mots_.clear();
    boite_ = EtenduePlan(dessin_);
    setAccessibleDescription(Q(dessin_.titre));
    Retient();
}

void PlanView::MontreMots(const QString &mots) {
    dessin_ = {};
    mots_ = mots;
    setAccessibleDescription(mots);
    update();
}

QSize PlanView::sizeHint() const {
    return {kUsualWidth, kUsualLines * fontMetrics().lineSpacing()};
}

QSize PlanView::minimumSizeHint() const {
    return {kUsualWidth / 2, kLeastLines * fontMetrics().lineSpacing()};
}

QColor PlanView::Couleur(CouchePlan couche) const {
    const QColor ground = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    switch (couche) {
    case CouchePlan::longeron:
        return Lisible(palette().color(QPalette::Highlight), ground, kContrasteTrait);
    case CouchePlan::coffrage:
    case CouchePlan::trou:
        return Lisible(palette().color(QPalette::Link), ground, kContrasteTrait);
    case CouchePlan::baguette:
        return Lisible(Melange(text, ground, kHalf), ground, kContrasteTrait);
    case CouchePlan::cote: // which are words too
        return Lisible(Melange(text, ground, kHalf), ground, kContrasteTexte);
    default:
        return text;
    }
}

/// At which all of the drawing can be seen.
double PlanView::EchelleAjustee() const {
    return std::max(std::min((width() - 2 * kMargin) / Largeur(boite_),
                             (height() - 2 * kMargin) / Hauteur(boite_)),
                    kLeast);
}

double PlanView::Echelle() const {
    return ajuste_ ? EchelleAjustee() : echelle_;
}

QTransform PlanView::Vers() const {
    const double scale = Echelle();
    QTransform to;
    to.translate(width() * kHalf, height() * kHalf);
    to.scale(scale, -scale);
    to.translate(-centre_.x, -centre_.y);
    return to;
}

/// Keeps the drawing in sight.
void PlanView::Retient() {
    const double scale = Echelle();
    centre_.x = Borne(centre_.x, boite_.bas_gauche.x, boite_.haut_droite.x,
                      (width() - 2 * kMargin) / scale);
    centre_.y = Borne(centre_.y, boite_.bas_gauche.y, boite_.haut_droite.y,
                      (height() - 2 * kMargin) / scale);
    update();
}

void PlanView::Ajuste() {
    ajuste_ = true;
    Retient();
}

QPointF PlanView::PlaceDuZoom() const {
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    return underMouse() && rect().contains(pointer) ? QPointF(pointer) : QRectF(rect()).center();
}

/// What is seen at `place` stays there.
void PlanView::Zoome(double facteur, const QPointF &place) {
    if (dessin_.traits.empty()) {
        return;
    }
    const QPointF held = Vers().inverted().map(place);
    const double whole = EchelleAjustee();
    const double scale =
        std::clamp(Echelle() * facteur, std::min(whole, kTrue), std::max(kLargest, whole));
    ajuste_ = std::abs(scale - whole) < whole * kSame;
    echelle_ = scale;
    const QPointF from_middle = place - QPointF(width() * kHalf, height() * kHalf);
    centre_ = {held.x() - from_middle.x() / scale, held.y() + from_middle.y() / scale};
    Retient();
}

void PlanView::Agrandit() {
    Zoome(kStep, PlaceDuZoom());
}

void PlanView::Reduit() {
    Zoome(1 / kStep, PlaceDuZoom());
}

void PlanView::VraieGrandeur() {
    Zoome(kTrue / Echelle(), PlaceDuZoom());
}

/// The drawing goes along with the mouse.
void PlanView::Deplace(const QPointF &pixels) {
    const double scale = Echelle();
    centre_.x -= pixels.x() / scale;
    centre_.y += pixels.y() / scale;
    Retient();
}

void PlanView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Retient();
}

void PlanView::wheelEvent(QWheelEvent *event) {
    constexpr double kNotch = 3 * 16; // pixels: three lines
    const QPoint turn = event->angleDelta();
    const Qt::KeyboardModifiers keys = event->modifiers();
    if (keys.testFlag(Qt::ControlModifier)) {
        if (const int steps = molette_.Turn(turn.y()); steps != 0) {
            Zoome(std::pow(kStep, steps), event->position());
        }
    } else {
        const WheelNotches notches =
            NotchesOf(turn.x(), turn.y(), keys.testFlag(Qt::ShiftModifier));
        Deplace({notches.across * kNotch, notches.down * kNotch});
    }
    event->accept();
}

bool PlanView::Touche(int key) {
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift
        Agrandit();
        return true;
    case Qt::Key_Minus:
        Reduit();
        return true;
    case Qt::Key_0:
        VraieGrandeur();
        return true;
    case Qt::Key_F:
        Ajuste();
        return true;
    case Qt::Key_Left:
        Deplace({width() * kArrow, 0});
        return true;
    case Qt::Key_Right:
        Deplace({-width() * kArrow, 0});
        return true;
    case Qt::Key_Up:
        Deplace({0, height() * kArrow});
        return true;
    case Qt::Key_Down:
        Deplace({0, -height() * kArrow});
        return true;
    default:
        return false;
    }
}

void PlanView::keyPressEvent(QKeyEvent *event) {
    const bool letter = event->modifiers().testFlag(Qt::AltModifier);
    if (letter || !Touche(event->key())) {
        QWidget::keyPressEvent(event);
    }
}

void PlanView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        tire_ = true;
        tire_de_ = event->position();
        setCursor(Qt::ClosedHandCursor);
    }
}

void PlanView::mouseMoveEvent(QMouseEvent *event) {
    if (tire_) {
        Deplace(event->position() - tire_de_);
        tire_de_ = event->position();
    }
}

void PlanView::mouseReleaseEvent(QMouseEvent *event) {
    if (tire_ && !(event->buttons() & (Qt::LeftButton | Qt::MiddleButton))) {
        tire_ = false;
        unsetCursor();
    }
}

void PlanView::PeintTraits(QPainter &painter, const QTransform &to) const {
    for (const TraitPlan &line : dessin_.traits) {
        QPolygonF points;
        points.reserve(static_cast<int>(line.points.size()));
        for (const PointMm &point : line.points) {
            points << to.map(QPointF(point.x, point.y));
        }
        QPen pen(Couleur(line.couche), line.couche == CouchePlan::longeron ? kThick : 1);
        if (line.couche == CouchePlan::trou) {
            pen.setStyle(Qt::DashDotLine);
        }
        painter.setPen(pen);
        line.ferme ? painter.drawPolygon(points) : painter.drawPolyline(points);
    }
}

void PlanView::PeintTextes(QPainter &painter, const QTransform &to) const {
    for (const TextePlan &text : dessin_.textes) {
        if (text.hauteur * to.m11() >= kReadable) {
            painter.setPen(Couleur(text.couche));
            Ecrit(painter, text, to);
        }
    }
}

void PlanView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect place = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (place.isEmpty()) {
        return;
    }
    if (dessin_.traits.empty()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap, mots_);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform to = Vers();
    PeintTraits(painter, to);
    PeintTextes(painter, to);
}

} // namespace loftwing
