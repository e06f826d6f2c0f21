#include "utilities/frmribevol.h"

#include "lang/aide.h"

namespace loftwing {

frmribevol::frmribevol(Programme &programme, MainView &view, QWidget *parent)
    : RibSetDialog(programme, view, "frmribevol", kAideJeu, parent) {
    NameAll();
    LayOut();
    Form_Load();
}

void frmribevol::Form_Load() {
    setWindowTitle(Mot({"FrmRibevol", "1"}));
    Frame1[0].setTitle(Mot({"FrmRibevol", "2"}));
    Frame1[1].setTitle(Mot({"FrmRibevol", "3"}));
    Frame3.setTitle(Mot({"FrmRibevol", "6"}));
    Label3.setText(Mot({"FrmRibevol", "7"}));
    for (int i = 0; i < 2; ++i) {
        At(Label1, i).setText(Mot({"FrmRibevol", "4"}));
        At(Label2, i).setText(Mot({"FrmRibevol", "5"}));
        At(Label4, i).setText(Q(programme_.settings.Unite));
    }
    txtnervI.SetKeys(kTouchesEntier);
    cmdouvrir[0].setFocus();
}

QLineEdit *frmribevol::Champ(ChampJeu champ) {
    switch (champ) {
    case ChampJeu::nombre:
        return &txtnervI;
    case ChampJeu::corde_max:
        return &txtcorde[0];
    case ChampJeu::corde_min:
        return &txtcorde[1];
    default:
        return nullptr;
    }
}

void frmribevol::Calcule() {
    const Saisie saisie = programme_.SaisieEnCours();
    Ribevol set;
    const SaisieRibevol typed{
        {Profil(0), Profil(1)}, {S(txtcorde[0].text()), S(txtcorde[1].text())}, S(txtnervI.text())};
    if (Refuse(VerifieRibevol(typed, saisie, set))) {
        return;
    }
    const JeuDeNervures jeu = ComposeRibevol(set, Profils(), Dossier(), saisie);
    Ecrit(jeu, ResultatRibevol(jeu, programme_.messages));
}

} // namespace loftwing
