#include "features/frmTalon.h"

#include "base/number_text.h"
#include "lang/aide.h"
#include "programme/rib_trial.h"

namespace loftwing {

frmTalon::frmTalon(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmTalon", kAideValeurs, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    // Not before: what Form_Load shows is no entry of the user's.
    ConnectEach(txt, &QLineEdit::textChanged, this, &frmTalon::txt_Change);
    ConnectEach(OptTalon, &QRadioButton::clicked, this, &frmTalon::OptTalon_Click);
}

void frmTalon::Form_Load() {
    // Before the window proposes heights, brings margins into force and puts away a template.
    retour_ = RetourDuRib(programme_.rib);
    programme_.rib.Annule = false;
    programme_.rib.TypeGabarit = kSansGabarit;
    const Saisie saisie = programme_.SaisieEnCours();
    setWindowTitle(Q(TitreTalon(programme_.rib, saisie)));
    PoseTextes();
    PoseBulles();
    AdmetLongueurs(txt);
    AdmetLongueurSignee(txt[kTalonVrillage]);
    // A stored text that is no length must not keep the window from putting it right.
    Seul(" Talon/Load", [&] { OuvreTalon(programme_.rib, saisie); });
    const TextesTalon shown = TextesDuTalon(programme_.rib);
    ShowTexts(txt, shown);
    const auto opening = [&saisie](const std::string &afich) {
        return Q(Trim(afich)) + Q(saisie.Unite);
    };
    Label2.setText(opening(shown[kTalonIntra]));
    Label3.setText(opening(shown[kTalonExtra]));
    MontreMarges();
    OptTalon_Click(programme_.rib.talon.OptTalon);
    SelectField(txt[programme_.rib.talon.OptTalon == 0 ? kTalonIntra : kTalonExtra]);
}

void frmTalon::PoseTextes() {
    Label1.setText(Mot({"FrmTalon", "2"}) + " : -/+");
    OptTalon[0].setText(Mot({"FrmTalon", "7"}));
    OptTalon[1].setText(Mot({"FrmTalon", "6"}));
    LabelHaut.setText(Mot({"FrmTalon", "8"}));
    LabelBA.setText(Mot({"FrmTalon", "9"}));
    LabelBF.setText(Mot({"FrmTalon", "10"}));
    LabelLong.setText(Mot({"FrmTalon", "11"}));
    LabelAvant.setText(Mot({"FrmTalon", "12"}));
    LabelOpt.setText(Mot({"FrmTalon", "13"}));
    Picture1.SetEdgeWords(Mot({"MainTolbar", "15"}), Mot({"MainTolbar", "21"}));
    NommeEsquisse(Picture1);
}

void frmTalon::PoseBulles() {
    SetTip(OptTalon[0], programme_.Text({"FrmTalon", "7T"}));
    SetTip(OptTalon[1], programme_.Text({"FrmTalon", "6T"}));
    SetTip(txt[kTalonVrillage], programme_.Text({"FrmTalon", "2T"}));
    SetTip(txt[kTalonIntra], programme_.Text({"FrmTalon", "8T"}));
    SetTip(txt[kTalonExtra], programme_.Text({"FrmTalon", "8T"}));
    SetTip(txt[kTalonMargeBA], programme_.Text({"FrmTalon", "9T"}));
    SetTip(txt[kTalonMargeBF], programme_.Text({"FrmTalon", "10T"}));
}

void frmTalon::MontreMarges() {
    lbllongb.setText(Q(TexteMarges(programme_.rib.talon, programme_.settings.Unite)));
}

void frmTalon::OptTalon_Click(int index) {
    programme_.rib.talon.OptTalon = ToInt16(index);
    const bool extra = index != 0; // as the heel is drawn
    OptTalon[extra ? 1 : 0].setChecked(true);
    Label3.setVisible(extra);
    txt[kTalonExtra].setVisible(extra);
    Label2.setVisible(!extra);
    txt[kTalonIntra].setVisible(!extra);
    LabelHaut.setBuddy(&txt[extra ? kTalonExtra : kTalonIntra]);
    Picture1.Montre(index);
}

void frmTalon::txt_Change(int index) {
    Seul(" Talon/Txt", [this, index] {
        if (SuitTalon(programme_.rib, index, FieldTexts(txt), programme_.SaisieEnCours(),
                      Titre())) {
            txt[kTalonVrillage].setText(kTexteVrillageMaxi);
            txt[kTalonVrillage].selectAll(); // ready to be typed over
        }
        MontreMarges();
    });
}

EssaiDuRib frmTalon::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        return ValideTalon(rib, FieldTexts(txt), saisie, Titre());
    };
}

/// Puts the heel on the rib; false when it was refused.
bool frmTalon::Applique() {
    Echec = !ValideTalon(programme_.rib, FieldTexts(txt), programme_.SaisieEnCours(), Titre());
    if (Echec) {
        const bool leading = programme_.rib.talon.TalonBA >= programme_.rib.talon.TalonBF;
        SelectField(txt[leading ? kTalonMargeBA : kTalonMargeBF]);
        return false;
    }
    MontreMarges();
    retour_ = RetourDuRib(programme_.rib);
    view_.affiche();
    return true;
}

void frmTalon::CmdApply_Click() {
    Seul(" Talon/Apply", [this] { Applique(); });
}

void frmTalon::cmdok_Click() {
    Seul(" Talon/OK", [this] {
        if (Applique()) {
            accept();
        }
    });
}

void frmTalon::cmdannuler_Click() {
    Seul(" Talon/Cancel", [this] { Abandonne(); });
}

void frmTalon::Abandonne() {
    RibModel &rib = programme_.rib;
    if (Echec && MargesTropLongues(rib)) {
        RefuseMarges(rib, programme_.SaisieEnCours(), Titre());
        return;
    }
    // Margins and angle go into the rib while they are typed, the angle even with the sign that
    // its box has: a heel that is in use must not be drawn by them.
    retour_();
    rib.Annule = true;
    view_.affiche();
    Renonce();
}

} // namespace loftwing
