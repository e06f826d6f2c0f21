#include "mainwindow/picture_area.h"

#include "platform/qt_focus_mark.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_text.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace loftwing {

namespace {

void SetRange(QScrollBar &bar, const ScrollRange &range) {
    bar.setRange(range.lowest, range.highest);
    bar.setPageStep(range.page);
    bar.setSingleStep(range.step);
    bar.setEnabled(range.lowest != range.highest);
}

/// Puts a bar to a value that the present drawing may have no room for.
void MetBarre(QScrollBar &bar, int value) {
    const QSignalBlocker quiet(bar);
    bar.setRange(std::min(bar.minimum(), value), std::max(bar.maximum(), value));
    bar.setValue(value);
}

} // namespace

PictureArea::PictureArea(RibModel &rib, QWidget *parent)
    : QWidget(parent), rib_(rib), notices_(this), Pic_(this), hint_(&Pic_),
      Hsbpic_(Qt::Horizontal, this), Vsbpic_(Qt::Vertical, this) {
    Hsbpic_.setObjectName("Hsbpic");
    Vsbpic_.setObjectName("Vsbpic");
    // Runs from 0 at the top to a negative value at the bottom.
    Vsbpic_.setInvertedAppearance(true);
    Vsbpic_.setInvertedControls(true);
    for (QScrollBar *bar : {&Hsbpic_, &Vsbpic_}) {
        bar->setRange(0, 0);
    }
    setFocusProxy(&Pic_);
    FocusMark::On(Pic_);
    LayOut();
    Connect();
}

void PictureArea::LayOut() {
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(&notices_, 0, 0, 1, 2);
    grid->addWidget(&Pic_, 1, 0);
    grid->addWidget(&Vsbpic_, 1, 1);
    grid->addWidget(&Hsbpic_, 2, 0);
    auto *cover = new QVBoxLayout(&Pic_);
    cover->setContentsMargins(0, 0, 0, 0);
    cover->addWidget(&hint_);
}

void PictureArea::Connect() {
    connect(&Hsbpic_, &QScrollBar::valueChanged, this, &PictureArea::Hsbpic_Change);
    connect(&Vsbpic_, &QScrollBar::valueChanged, this, &PictureArea::Vsbpic_Change);
    connect(&Pic_, &PicView::MenuDemande, this, &PictureArea::MenuDemande);
    connect(&Pic_, &PicView::ZoomDemande, this, [this](int steps, const QPointF &place) {
        Q_EMIT ZoomDemande(steps, {place.x() * kUnitsPerPixel, place.y() * kUnitsPerPixel});
    });
    connect(&Pic_, &PicView::Roule, this,
            [this](const WheelNotches &notches) { Deplace(WheelMove(notches, Pas())); });
    connect(&Pic_, &PicView::Tire, this, [this](const QPoint &pixels) {
        Deplace(drag_.Drag(pixels.x(), pixels.y(), UniteDefilement(rib_) / kUnitsPerPixel));
    });
    // One redraw when the window has come to rest, not one at each step of a drag.
    resized_.setSingleShot(true);
    resized_.setInterval(0);
    connect(&Pic_, &PicView::Redimensionne, &resized_, qOverload<>(&QTimer::start));
    connect(&resized_, &QTimer::timeout, this, &PictureArea::Repose);
}

void PictureArea::PoseTextes(const LngIni &language) {
    hint_.PoseTextes(language);
    Pic_.setAccessibleName(Q(language.LngText({"MainTolbar", "241"})));
    Pic_.PoseMotEssai(Q(language.LngText({"Undo", "20"})));
    Hsbpic_.setAccessibleName(Q(language.LngText({"MainTolbar", "242"})));
    Vsbpic_.setAccessibleName(Q(language.LngText({"MainTolbar", "243"})));
}

void PictureArea::Decrit(const std::string &words) {
    Pic_.setAccessibleDescription(Q(words));
}

void PictureArea::Repose() {
    // A notice that comes or goes moves the picture's edge only; the drawing is the same.
    if (size() == size_at_rest_) {
        RegleDefilement();
        return;
    }
    size_at_rest_ = size();
    Q_EMIT Redimensionne();
}

void PictureArea::Montre(std::unique_ptr<Recording> drawing) {
    Pic_.Montre(std::move(drawing));
    MontreAccueil();
}

void PictureArea::MontreFeuilles(std::unique_ptr<Recording> sheets) {
    Pic_.MontreDessus(Pic_.Dessin() == nullptr ? nullptr : std::move(sheets));
}

void PictureArea::MontrePiece(std::vector<QPainterPath> wood) {
    Pic_.MontreDessous(Pic_.Dessin() == nullptr ? std::vector<QPainterPath>() : std::move(wood));
}

std::optional<Extent> PictureArea::Etendu() const {
    if (Pic_.Dessin() == nullptr) {
        return std::nullopt;
    }
    const Extent drawn = Pic_.Dessin()->Bounds();
    return Pic_.Dessus() == nullptr ? drawn : AvecDessus(rib_, drawn, Pic_.Dessus()->Bounds());
}

void PictureArea::MontreAccueil() {
    hint_.setVisible(Pic_.Dessin() == nullptr && !rib_.ProfilCharge);
}

void PictureArea::RegleDefilement() {
    MontreAccueil();
    const Defilement bars = DefilementSur(rib_, Etendu(), Pic_.width() * kUnitsPerPixel,
                                          Pic_.height() * kUnitsPerPixel);
    // A value that falls out of the new range comes back through the bar's own change.
    SetRange(Hsbpic_, bars.across);
    SetRange(Vsbpic_, bars.down);
}

void PictureArea::MetDefilement(const ScrollMove &bars) {
    rib_.DecalX = DecalageDe(bars.across);
    rib_.DecalY = DecalageDe(bars.down);
    MetBarre(Hsbpic_, bars.across);
    MetBarre(Vsbpic_, bars.down);
}

QRect PictureArea::PlaceDuDessin() const {
    const Recording *drawing = Pic_.Dessin();
    if (drawing == nullptr) {
        return {};
    }
    const Extent extent = drawing->Bounds();
    const QRectF pixels(QPointF(extent.left, extent.top) / kUnitsPerPixel,
                        QPointF(extent.right, extent.bottom) / kUnitsPerPixel);
    const QRect seen = pixels.toAlignedRect() & Pic_.rect();
    return {Pic_.mapToGlobal(seen.topLeft()), seen.size()};
}

std::optional<WholeView> PictureArea::VueEntiere() const {
    const std::optional<Extent> all = Etendu();
    if (!all) {
        return std::nullopt;
    }
    return FitTo(rib_, *all, Pic_.width() * kUnitsPerPixel, Pic_.height() * kUnitsPerPixel);
}

PicturePlace PictureArea::Milieu() const {
    return {Pic_.width() * kUnitsPerPixel / 2.0, Pic_.height() * kUnitsPerPixel / 2.0};
}

void PictureArea::Hsbpic_Change(int value) {
    rib_.DecalX = DecalageDe(value);
    Q_EMIT Defile();
}

void PictureArea::Vsbpic_Change(int value) {
    rib_.DecalY = DecalageDe(value);
    Q_EMIT Defile();
}

void PictureArea::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Left:
        return Deplace(ArrowMove(-1, 0, Pas()));
    case Qt::Key_Right:
        return Deplace(ArrowMove(1, 0, Pas()));
    case Qt::Key_Up:
        return Deplace(ArrowMove(0, -1, Pas()));
    case Qt::Key_Down:
        return Deplace(ArrowMove(0, 1, Pas()));
    default:
        return QWidget::keyPressEvent(event);
    }
}

void PictureArea::Deplace(const ScrollMove &move) {
    Hsbpic_.setValue(Hsbpic_.value() + move.across);
    Vsbpic_.setValue(Vsbpic_.value() + move.down);
}

} // namespace loftwing
