#include "mainwindow/picture_area.h"

#include "platform/qt_plot_device.h"

#include <QGridLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace loftwing {

namespace {

void SetRange(QScrollBar &bar, const ScrollRange &range) {
    bar.setRange(range.lowest, range.highest);
    bar.setPageStep(range.page);
    bar.setSingleStep(range.step);
    bar.setEnabled(range.lowest != range.highest);
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
    connect(&Pic_, &PicView::ZoomDemande, this, &PictureArea::ZoomDemande);
    connect(&Pic_, &PicView::Roule, this, [this](const WheelNotches &notches) {
        Deplace(WheelMove(notches, {Hsbpic_.singleStep(), Vsbpic_.singleStep()}));
    });
    connect(&Pic_, &PicView::Tire, this, [this](const QPoint &pixels) {
        Deplace(drag_.Drag(pixels.x(), pixels.y(), UniteDefilement(rib_) / kUnitsPerPixel));
    });
    // One redraw when the window has come to rest, not one at each step of a drag.
    resized_.setSingleShot(true);
    resized_.setInterval(0);
    connect(&Pic_, &PicView::Redimensionne, &resized_, qOverload<>(&QTimer::start));
    connect(&resized_, &QTimer::timeout, this, &PictureArea::Repose);
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

void PictureArea::MontreAccueil() {
    hint_.setVisible(Pic_.Dessin() == nullptr && !rib_.ProfilCharge);
}

void PictureArea::RegleDefilement() {
    MontreAccueil();
    const Recording *drawing = Pic_.Dessin();
    const Defilement bars =
        DefilementSur(rib_, drawing == nullptr ? std::nullopt : std::optional(drawing->Bounds()),
                      Pic_.width() * kUnitsPerPixel, Pic_.height() * kUnitsPerPixel);
    // A value that falls out of the new range comes back through the bar's own change.
    SetRange(Hsbpic_, bars.across);
    SetRange(Vsbpic_, bars.down);
}

void PictureArea::RemetDefilement() {
    const QSignalBlocker across(Hsbpic_);
    const QSignalBlocker down(Vsbpic_);
    rib_.DecalX = 0;
    rib_.DecalY = 0;
    Hsbpic_.setValue(0);
    Vsbpic_.setValue(0);
}

void PictureArea::Hsbpic_Change(int value) {
    rib_.DecalX = DecalageDe(value);
    Q_EMIT Defile();
}

void PictureArea::Vsbpic_Change(int value) {
    rib_.DecalY = DecalageDe(value);
    Q_EMIT Defile();
}

void PictureArea::Deplace(const ScrollMove &move) {
    Hsbpic_.setValue(Hsbpic_.value() + move.across);
    Vsbpic_.setValue(Vsbpic_.value() + move.down);
}

} // namespace loftwing
