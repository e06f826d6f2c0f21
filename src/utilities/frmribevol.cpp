#include "utilities/frmribevol.h"

#include <QHBoxLayout>

namespace loftwing {

namespace {

constexpr int kAide = 61;

} // namespace

frmribevol::frmribevol(Programme &programme, MainView &view, QWidget *parent)
    : RibSetDialog(programme, view, kAide, parent) {
    NameAll();
    LayOut();
    Form_Load();
}

void frmribevol::NameAll() {
    NameControl(*this, "frmribevol");
    NameControl(Frame3, "Frame3");
    NameControl(Label3, "Label3");
    NameControl(txtnervI, "txtnervI");
    NameControls(Label4, "Label4");
}

void frmribevol::LayOut() {
    auto *ends = new QHBoxLayout;
    for (const std::size_t end : {0U, 1U}) {
        const auto index = static_cast<long>(end);
        QLabel &unit = At(Label4, index);
        unit.setTextFormat(Qt::PlainText);
        Grille(end).addWidget(&unit, 1, 2);
        ends->addWidget(&At(Frame1, index), 1);
    }
    auto *count = new QHBoxLayout(&Frame3);
    count->addWidget(&Label3);
    count->addWidget(&txtnervI);
    count->addStretch();
    Label3.setTextFormat(Qt::PlainText);
    Label3.setBuddy(&txtnervI);
    Elargit(txtnervI);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(ends);
    rows->addWidget(&Frame3);
    PoseBas(*rows);
}

void frmribevol::Form_Load() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    setWindowTitle(word({"FrmRibevol", "1"}));
    Frame1[0].setTitle(word({"FrmRibevol", "2"}));
    Frame1[1].setTitle(word({"FrmRibevol", "3"}));
    Frame3.setTitle(word({"FrmRibevol", "6"}));
    Label3.setText(word({"FrmRibevol", "7"}));
    for (int i = 0; i < 2; ++i) {
        At(Label1, i).setText(word({"FrmRibevol", "4"}));
        At(Label2, i).setText(word({"FrmRibevol", "5"}));
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
