#include "features/frmbacarre.h"

#include "lang/aide.h"

namespace loftwing {

frmbacarre::frmbacarre(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmbacarre", kAideValeurs, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
}

void frmbacarre::Form_Load() {
    setWindowTitle(Q(TitreCarre(programme_.SaisieEnCours())));
    Label1[kCarreCote].setText(Mot({"FrmBacarre", "2"}));
    Label1[kCarreX].setText(Mot({"FrmBacarre", "3"}));
    Label1[kCarreY].setText(Mot({"FrmBacarre", "4"}));
    Picture1.SetEdgeWords(Mot({"MainTolbar", "15"}), Mot({"MainTolbar", "21"}));
    NommeEsquisse(Picture1);
    AdmetLongueurs(infotxt);
    AdmetLongueurSignee(infotxt[kCarreY]);
    ShowTexts(infotxt, TextesDuCarre(programme_.rib));
}

EssaiDuRib frmbacarre::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        TextesCarre typed = FieldTexts(infotxt);
        ValideCarre(rib, typed, saisie, Titre());
        return true;
    };
}

/// Puts the square on the rib; false after a failure, which has been told.
bool frmbacarre::Applique() {
    bool applied = false;
    Garde(" BaCarre/Apply", [this, &applied] {
        TextesCarre typed = FieldTexts(infotxt);
        ValideCarre(programme_.rib, typed, programme_.SaisieEnCours(), Titre());
        infotxt[kCarreCote].setText(Q(typed[kCarreCote]));
        applied = true;
        view_.affiche();
    });
    return applied;
}

void frmbacarre::CmdApply_Click() {
    Applique();
}

void frmbacarre::cmdok_Click() {
    if (Applique()) {
        accept();
    }
}

} // namespace loftwing
