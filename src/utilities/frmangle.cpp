#include "utilities/frmangle.h"

#include "base/number_text.h"
#include "lang/aide.h"
#include "utilities/tool_files.h"

namespace loftwing {

frmangle::frmangle(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmangle", kAideOblique, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectEach(Option1, &QRadioButton::clicked, this, &frmangle::Option1_Click);
    connect(&cmdouvrir, &QPushButton::clicked, this, &frmangle::cmdouvrir_Click);
}

void frmangle::Form_Load() {
    setWindowTitle(Q(programme_.Text({"FrmAngle", "1"}) + " " + programme_.settings.Unite));
    PoseTextes();
    AdmetLongueurs(Text1);
    Text1[kChampAngle].SetNotation({}); // degrees
    Text1[kChampAngle].setText(kAngleUsuel);
    Option1[kGabaritDonne].setChecked(true);
    Option1_Click(kGabaritDonne);
}

void frmangle::PoseTextes() {
    Option1[0].setText(Mot({"FrmAngle", "2"}));
    Option1[1].setText(Mot({"FrmAngle", "3"}));
    SetTip(Option1[0], programme_.Text({"FrmAngle", "2T"}));
    SetTip(Option1[1], programme_.Text({"FrmAngle", "3T"}));
    Label1[0].setText(Mot({"FrmAngle", "4"}));
    Label1[1].setText(Mot({"FrmAngle", "5"}));
    Label1[2].setText(Mot({"FrmAngle", "6"}));
    Label1[3].setText(Mot({"FrmAngle", "7"}));
    Label2[0].setText(Mot({"MainTolbar", "15"}));
    Label2[1].setText(Mot({"MainTolbar", "21"}));
    NommeEsquisse(Picture1);
    txtprofil.setAccessibleName(Label1[3].text());
    cmdouvrir.setText(Mot({"FrmDefaut", "14"}));
    SetTip(cmdouvrir, programme_.Text({"FrmAngle", "7T"}));
    Bouton(SharedWord::ok).setText(Mot({"TextButton", "6"}));
    SetTip(Bouton(SharedWord::ok), programme_.Text({"TextButton", "6T"}));
}

void frmangle::Option1_Click(int index) {
    oblique_.OptionCorde = ToByte(index);
    NumericField &given = At(Text1, index);
    NumericField &computed = At(Text1, ChampCalcule(oblique_));
    given.setEnabled(true);
    SelectField(given);
    computed.setEnabled(false);
    computed.clear();
}

void frmangle::cmdouvrir_Click() {
    Garde(" Angle/Open", [this] {
        if (const auto chosen = view_.ChoisitProfil(programme_.Text({"FrmAngle", "1"}))) {
            profil_ = *chosen;
            txtprofil.setText(Q(profil_.NomProfil));
        }
    });
}

bool frmangle::Calcule() {
    try {
        if (const auto refused =
                CalculeOblique(oblique_, FieldTexts(Text1), programme_.SaisieEnCours(), Titre())) {
            SelectField(At(Text1, *refused));
            return false;
        }
    } catch (const Failure &failure) {
        RapporteAngle(programme_.messages, failure);
        return false;
    }
    At(Text1, ChampCalcule(oblique_)).setText(Q(CordeCalculee(oblique_)));
    return true;
}

void frmangle::Enregistre() {
    const Saisie saisie = programme_.SaisieEnCours();
    const FileQuestion question =
        QuestionProfil(programme_.Text({"FrmAngle", "14"}), programme_.Text({"FrmAngle", "15"}),
                       programme_.settings.repertoires.RepProfilevol,
                       NomOblique(oblique_, profil_.NomProfil, saisie));
    if (!EnregistreProfil(programme_.messages, question,
                          [&] { return TexteOblique(oblique_, profil_, saisie); })) {
        view_.affclear();
    }
}

void frmangle::cmdok_Click() {
    if (!Calcule()) {
        return;
    }
    if (txtprofil.text().isEmpty()) {
        programme_.messages.Inform(programme_.Text({"FrmAngle", "13"}), Titre());
        return;
    }
    Garde(" Angle/OK", [this] { Enregistre(); });
}

} // namespace loftwing
