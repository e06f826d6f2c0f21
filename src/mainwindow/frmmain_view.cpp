// The picture of the main window: redraw, zoom, scroll and size.

#include "base/version.h"
#include "mainwindow/beside.h"
#include "mainwindow/frmmain.h"
#include "output/view_screen.h"
#include "platform/qt_form.h"
#include "platform/qt_plot_device.h"

namespace loftwing {

void frmmain::ConnectPicture() {
    setCentralWidget(picture_);
    connect(picture_, &PictureArea::Defile, this, [this] {
        RetraceVues();
        affiche();
    });
    connect(picture_, &PictureArea::MenuDemande, this,
            [this](const QPoint &place) { commands_.OuvreMenu("mnuprofil", place); });
    connect(picture_, &PictureArea::ZoomDemande, this, &frmmain::ZoomSur);
    connect(picture_, &PictureArea::Redimensionne, this, &frmmain::Form_Resize);
}

void frmmain::affiche() {
    // A box of an earlier redraw may still be open; its answer doesn't change the drawing.
    if (drawing_) {
        return;
    }
    if (Dessine([](const Trace &trace) { return afficheRib(trace); })) {
        panels_.Montre(2, TexteEtat(programme_.rib, programme_.settings, programme_.messages));
    }
    picture_->RegleDefilement();
}

bool frmmain::Dessine(const std::function<Affichage(const Trace &)> &draw) {
    drawing_ = true;
    auto recording = std::make_unique<Recording>(ScreenAdvance);
    const Affichage result = draw(programme_.TraceSur(*recording));
    drawing_ = false;
    if (result == Affichage::echec) {
        affclear();
    }
    if (result != Affichage::dessine) {
        return false;
    }
    picture_->Montre(std::move(recording));
    panels_.Montre(1, kVersion);
    return true;
}

void frmmain::ZoomSur(int steps) {
    QComboBox &zoom = commands_.ListeZoom();
    const int wanted = ZoomRow(zoom.currentIndex(), steps);
    if (wanted != zoom.currentIndex()) {
        zoom.setCurrentIndex(wanted);
        Combo1_Click(wanted);
    }
}

void frmmain::Combo1_Click(int row) {
    programme_.rib.Zoom = FacteurZoom(S(commands_.ListeZoom().itemText(row)));
    picture_->RemetDefilement();
    RetraceVues();
    affiche();
}

void frmmain::Form_Resize() {
    setWindowTitle(QString::fromUtf8(kTitre));
    // What is typed in a dialog may not fit yet, and a plot that fails costs the rib.
    if (DialogueNervureOuvert(*this)) {
        return;
    }
    RetraceVues();
    affiche();
}

} // namespace loftwing
