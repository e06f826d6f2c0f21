// The picture of the main window: redraw, zoom, scroll and size.

#include "lang/ini_file.h"
#include "mainwindow/beside.h"
#include "mainwindow/frmmain.h"
#include "output/view_screen.h"
#include "platform/qt_text.h"
#include "programme/panel_file.h"
#include "programme/rib_file.h"
#include "programme/rib_steps.h"
#include "programme/wing_file.h"

namespace loftwing {

void frmmain::ConnectPicture() {
    connect(picture_, &PictureArea::Defile, this, [this] {
        RetraceVues();
        affiche();
    });
    connect(picture_, &PictureArea::MenuDemande, this,
            [this](const QPoint &place) { commands_.OuvreMenu("mnuprofil", place); });
    connect(picture_, &PictureArea::ZoomDemande, this, &frmmain::ZoomSur);
    connect(picture_, &PictureArea::Redimensionne, this, &frmmain::Form_Resize);
    const EmptyHint &hint = picture_->Accueil();
    connect(&hint, &EmptyHint::Ouvre, &commands_.Entree("mnu_fileprofilopen"), &QAction::trigger);
    connect(&hint, &EmptyHint::OuvreRecent, this, [this](const std::string &path) {
        EstComposants(path) || EstPanneau(path) || EstAile(path) ? mnuRibMRU_Click(path)
                                                                 : mnuFileMRU_Click(path);
    });
}

void frmmain::affiche() {
    Dessine([](const Trace &trace) { return afficheRib(trace); },
            [this] {
                Panneau(2, TexteEtat(programme_.rib, programme_.settings, programme_.messages));
                NotePas(); // each Apply of a dialog that stays open is a step
            });
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
                Panneau(2, EtatCompare(programme_.rib, compare, programme_.SaisieEnCours()));
            });
}

void frmmain::afficheEpcourb() {
    Dessine([](const Trace &trace) { return loftwing::afficheEpcourb(trace); },
            [this] { Panneau(2, EtatEpCourb(programme_.rib, programme_.SaisieEnCours())); });
}

void frmmain::afficheCouple() {
    Dessine([](const Trace &trace) { return loftwing::afficheCouple(trace); },
            [this] {
                Panneau(2, TexteEtat(programme_.rib, programme_.settings, programme_.messages));
            });
}

void frmmain::ViewReset() {
    RemetVue(programme_.rib);
    programme_.plot.BlocBA = 0;
    programme_.plot.BlocEp = 0;
    picture_->MetDefilement();
}

void frmmain::affclear() {
    Garde(" Main/AffichClear", [this] { VideTout(programme_, *this); });
}

void frmmain::ZoomSur(int steps, const PicturePlace &place) {
    const int present = commands_.ListeZoom().currentIndex();
    const int wanted = ZoomRow(present, steps);
    if (wanted != present) {
        MetZoom(wanted, ZoomAt(programme_.rib, place, FacteurZoom(At(kZoomRows, wanted))));
    }
}

void frmmain::MetZoom(int row, const ScrollMove &bars) {
    commands_.ListeZoom().setCurrentIndex(row);
    programme_.rib.Zoom = FacteurZoom(S(commands_.ListeZoom().itemText(row)));
    picture_->MetDefilement(bars);
    RetraceVues();
    affiche();
}

void frmmain::Combo1_Click(int row) {
    MetZoom(row, {});
}

void frmmain::mnu_affzoomplus_Click() {
    ZoomSur(1, picture_->Milieu());
}

void frmmain::mnu_affzoommoins_Click() {
    ZoomSur(-1, picture_->Milieu());
}

void frmmain::mnu_affzoom100_Click() {
    MetZoom(kZoomRow100, {});
}

void frmmain::mnu_affajuste_Click() {
    if (const auto whole = picture_->VueEntiere()) {
        MetZoom(whole->row, whole->bars);
    }
}

void frmmain::mnu_afffeuilles_Click() {
    sheets_.Montre(commands_.Entree("mnu_afffeuilles").isChecked());
}

void frmmain::mnu_affpiece_Click() {
    piece_.Montre(commands_.Entree("mnu_affpiece").isChecked());
    MontreAvis();
}

void frmmain::mnu_affessai_Click() {
    const bool on = commands_.Entree("mnu_affessai").isChecked();
    WriteINIFile("Apercu", "Saisie", on ? "1" : "0", programme_.paths.fichier);
}

void frmmain::mnu_affmesure_Click() {
    const bool on = commands_.Entree("mnu_affmesure").isChecked();
    touche_.Active(!on);
    mesure_.Active(on);
}

void frmmain::FinMesure() {
    commands_.Entree("mnu_affmesure").setChecked(false);
    mnu_affmesure_Click();
}

void frmmain::Form_Resize() {
    // What is typed in a dialog may not fit yet, and a plot that fails costs the rib.
    if (DialogueNervureOuvert(*this)) {
        return;
    }
    RetraceVues();
    affiche();
}

} // namespace loftwing
