// The picture of the main window: redraw, zoom, scroll and size.

#include "base/version.h"
#include "mainwindow/beside.h"
#include "mainwindow/frmmain.h"
#include "output/view_screen.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_text.h"
#include "programme/rib_steps.h"

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

void frmmain::Dessine(const std::function<Affichage(const Trace &)> &draw,
                      const std::function<std::string()> &words) {
    // A box of an earlier redraw may still be open; its answer doesn't change the drawing.
    if (drawing_) {
        return;
    }
    drawing_ = true;
    auto recording = std::make_unique<Recording>(ScreenAdvance);
    const Affichage result = draw(programme_.TraceSur(*recording));
    drawing_ = false;
    if (result == Affichage::echec) {
        affclear();
    }
    if (result == Affichage::dessine) {
        picture_->Montre(std::move(recording));
        Panneau(1, kVersion);
        Panneau(2, words());
    }
    picture_->RegleDefilement();
}

void frmmain::affiche() {
    Dessine([](const Trace &trace) { return afficheRib(trace); },
            [this] { return TexteEtat(programme_.rib, programme_.settings, programme_.messages); });
}

void frmmain::RetraceVues() {
    const RibModel &rib = programme_.rib;
    if (rib.ModeCompare) {
        afficheCompare();
    } else if (rib.ModeEpCourb) {
        afficheEpcourb();
    } else if (rib.ModeCouple) {
        afficheCouple();
    }
}

void frmmain::afficheCompare() {
    const Comparaison &compare = programme_.compare;
    Dessine([&compare](const Trace &trace) { return loftwing::afficheCompare(trace, compare); },
            [this, &compare] {
                Titre(TitreCompare(compare, programme_.messages));
                return EtatCompare(programme_.rib, compare, programme_.SaisieEnCours());
            });
}

void frmmain::afficheEpcourb() {
    Dessine([](const Trace &trace) { return loftwing::afficheEpcourb(trace); },
            [this] { return EtatEpCourb(programme_.rib, programme_.SaisieEnCours()); });
}

void frmmain::afficheCouple() {
    Dessine([](const Trace &trace) { return loftwing::afficheCouple(trace); },
            [this] { return TexteEtat(programme_.rib, programme_.settings, programme_.messages); });
}

void frmmain::ViewReset() {
    RemetVue(programme_.rib);
    programme_.plot.BlocBA = 0;
    programme_.plot.BlocEp = 0;
    picture_->RemetDefilement();
}

void frmmain::VideImage() {
    picture_->Montre(nullptr);
    picture_->RegleDefilement();
}

void frmmain::RemetZoom() {
    commands_.ListeZoom().setCurrentIndex(kZoomRow100);
}

void frmmain::affclear() {
    VideTout(programme_, *this);
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
    Titre(kTitre);
    // What is typed in a dialog may not fit yet, and a plot that fails costs the rib.
    if (DialogueNervureOuvert(*this)) {
        return;
    }
    RetraceVues();
    affiche();
}

} // namespace loftwing
