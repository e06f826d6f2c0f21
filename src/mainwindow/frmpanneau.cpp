#include "mainwindow/frmpanneau.h"

#include "base/text_encoding.h"
#include "lang/aide.h"
#include "persist/default_entry.h"
#include "programme/panel_ends.h"
#include "programme/panel_sheets.h"

#include <QScreen>

namespace loftwing {

namespace {

constexpr double kShareOfScreen = 0.9;

} // namespace

frmpanneau::frmpanneau(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmpanneau", kAidePanneau, parent),
      dossier_(programme.settings.repertoires.RepProfilevol),
      planches_(PlanchesRetenues(programme)), travail_(programme), Onglets(programme), Plan(this),
      Picture1(this) {
    NameAll();
    PrepareTables(); // whose headers are words
    PoseTextes();
    PoseBulles();
    PoseTextesPlan();
    LayOut();
    Refait();
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
    Connect();
    etat_ = Etat();
}

void frmpanneau::PoseTextes() {
    setWindowTitle(Mot({"Panel", "40"}));
    Label1[0].setText(Mot({"Panel", "101"}));
    Label1[1].setText(Mot({"Panel", "102"}));
    for (int i = 0; i < kBouts; ++i) {
        At(cmdchoisir, i).setText(Mot({"Panel", "103"}));
        At(cmdfenetre, i).setText(Mot({"Panel", "104"}));
        for (QPushButton *button : {&At(cmdchoisir, i), &At(cmdfenetre, i)}) {
            button->setAccessibleName(At(Label1, i).text() + ", " + button->text());
        }
        At(cmdfenetre, i).setEnabled(RibDeFenetre(programme_.rib));
    }
    Label5.setText(Mot({"Panel", "133"}));
    cmdouvrir.setText(Mot({"Panel", "134"}));
    cmdenregistrer.setText(Mot({"Panel", "135"}));
    optecart[0].setText(Mot({"Panel", "138"}));
    optecart[kVariable].setText(Mot({"Panel", "139"}));
    Label4[0].setText(Mot({"Panel", "140"}));
    Label4[1].setText(Mot({"Panel", "141"}));
    Label2[kNombre].setText(Mot({"FrmNervure", "7"}));
    Label2[kEpaisseur].setText(Mot({"FrmNervure", "8"}));
    Label2[kPremier].setText(Mot({"Panel", "107"}));
    Label2[kLongueur].setText(Mot({"FrmNervure", "6"}));
    txt[kNombre].SetKeys(kTouchesEntier);
    txt[kPremier].SetKeys(kTouchesEntier);
    AdmetLongueur(txt[kEpaisseur]);
    AdmetLongueur(txt[kLongueur]);
    txt[kPremier].setText("1");
    for (QLabel &unit : Label3) {
        unit.setText(Q(programme_.settings.Unite).trimmed());
    }
    Plan.setAccessibleName(Mot({"Panel", "109"}));
    Nervures.setAccessibleName(Mot({"FrmRibevol", "6"}));
    Nervures.setHorizontalHeaderLabels({Mot({"FrmNervure", "9"}),
                                        Mot({"FrmNervure", "10"}) + Q(programme_.settings.Unite),
                                        Mot({"FrmInsText", "7"}), Mot({"Panel", "112"})});
    Portees.setAccessibleName(Mot({"Panel", "110"}));
    Portees.setHorizontalHeaderLabels(
        {Mot({"Panel", "113"}), Mot({"Panel", "114"}), Mot({"Panel", "115"})});
    Picture1.setAccessibleName(Mot({"Piece", "125"}));
    Avancement.setAccessibleName(Mot({"Panel", "186"}));
    cmdnervures.setText(Mot({"Panel", "121"}));
    cmdplanches.setText(Mot({"Panel", "147"}));
    cmddessins.setText(Mot({"Panel", "149"}));
    cmdimprimer.setText(Mot({"Panel", "151"}));
}

void frmpanneau::PoseBulles() {
    for (int i = 0; i < kBouts; ++i) {
        SetTip(At(cmdchoisir, i), programme_.Text({"Panel", "105"}));
        SetTip(At(cmdfenetre, i), programme_.Text({"Panel", "106"}));
    }
    SetTip(txt[kPremier], programme_.Text({"Panel", "108"}));
    SetTip(txt[kLongueur], programme_.Text({"Panel", "131"}));
    SetTip(Portees, programme_.Text({"Panel", "132"}));
    SetTip(cmdnervures, programme_.Text({"Panel", "122"}));
    SetTip(cmdouvrir, programme_.Text({"Panel", "136"}));
    SetTip(cmdenregistrer, programme_.Text({"Panel", "137"}));
    SetTip(txtliste[0], programme_.Text({"Panel", "142"}));
    SetTip(txtliste[1], programme_.Text({"Panel", "143"}));
    SetTip(cmdplanches, programme_.Text({"Panel", "148"}));
    SetTip(cmddessins, programme_.Text({"Panel", "150"}));
    SetTip(cmdimprimer, programme_.Text({"Panel", "152"}));
}

void frmpanneau::cmdchoisir_Click(int index) {
    Garde(" frmpanneau/cmdchoisir", [this, index] {
        const std::string path = ChoisitBout(programme_, S(At(Label1, index).text()));
        if (path.empty()) {
            return;
        }
        if (const auto bout = LitBout(programme_, path)) {
            PrendBout(index, *bout);
        }
    });
}

void frmpanneau::cmdfenetre_Click(int index) {
    Garde(" frmpanneau/cmdfenetre",
          [this, index] { PrendBout(index, programme_.rib.Partie<PartiesRib>()); });
}

void frmpanneau::PrendBout(int index, const PartiesRib &bout) {
    At(panneau_.bouts, index) = bout;
    At(choisis_, index) = true;
    At(txtbout, index).setText(Q(NomDuBout(bout)));
    Refait();
}

/// Makes the panel as the fields have it, and shows it.
void frmpanneau::Refait() {
    attente_.stop();
    travail_.Abandonne();
    feuilles_ = {};
    lblenregistre.hide(); // that was another panel
    if (Compose()) {
        travail_.Commence(panneau_, demande_);
    } else {
        Montre();
    }
}

void frmpanneau::PrendFait(const PanneauFait &fait) {
    fait_ = fait;
    refus_.insert(refus_.end(), fait_.refus.begin(), fait_.refus.end());
    avis_.insert(avis_.end(), fait_.avis.begin(), fait_.avis.end());
    Montre();
}

void frmpanneau::Montre() {
    Avancement.hide();
    MontreEcart();
    MontrePlan();
    MontreAile();
    MontreNervures();
    MontreAvis();
}

void frmpanneau::MontreEnregistre(LngKey mots, const std::string &path) {
    lblenregistre.setText(Mot(mots) + " " + Q(ToUtf8(path)));
    lblenregistre.show();
}

} // namespace loftwing
