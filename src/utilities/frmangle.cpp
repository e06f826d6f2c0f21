#include "utilities/frmangle.h"

#include "base/number_text.h"
#include "utilities/tool_files.h"

namespace loftwing {

namespace {

constexpr int kAide = 62;

} // namespace

frmangle::frmangle(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmangle::Form_Load() {
    setWindowTitle(Q(programme_.Text({"FrmAngle", "1"}) + " " + programme_.settings.Unite));
    PoseTextes();
    for (NumericField &field : Text1) {
        field.SetKeys(
            TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    }
    Text1[kChampAngle].setText(kAngleUsuel);
    Option1[kGabaritDonne].setChecked(true);
    Option1_Click(kGabaritDonne);
}

void frmangle::PoseTextes() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    Option1[0].setText(word({"FrmAngle", "2"}));
    Option1[1].setText(word({"FrmAngle", "3"}));
    SetTip(Option1[0], programme_.Text({"FrmAngle", "2T"}));
    SetTip(Option1[1], programme_.Text({"FrmAngle", "3T"}));
    Label1[0].setText(word({"FrmAngle", "4"}));
    Label1[1].setText(word({"FrmAngle", "5"}));
    Label1[2].setText(word({"FrmAngle", "6"}));
    Label1[3].setText(word({"FrmAngle", "7"}));
    Label2[0].setText(word({"MainTolbar", "15"}));
    Label2[1].setText(word({"MainTolbar", "21"}));
    txtprofil.setAccessibleName(Label1[3].text());
    cmdouvrir.setText(word({"FrmDefaut", "14"}));
    SetTip(cmdouvrir, programme_.Text({"FrmAngle", "7T"}));
    cmdok.setText(word({"TextButton", "6"}));
    SetTip(cmdok, programme_.Text({"TextButton", "6T"}));
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
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
    programme_.messages.Garde(" Angle/Open", [this] {
        if (const auto chosen = view_.ChoisitProfil(programme_.Text({"FrmAngle", "1"}))) {
            profil_ = *chosen;
            txtprofil.setText(Q(profil_.NomProfil));
        }
    });
}

bool frmangle::Calcule() {
    TextesOblique typed;
    for (int i = 0; i < kChampsOblique; ++i) {
        At(typed, i) = S(At(Text1, i).text());
    }
    try {
        if (const auto refused =
                CalculeOblique(oblique_, typed, programme_.SaisieEnCours(), Titre())) {
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
    programme_.messages.Garde(" Angle/OK", [this] { Enregistre(); });
}

void frmangle::cmdannuler_Click() {
    reject();
}

void frmangle::ConnectAll() {
    for (int i = 0; i < 2; ++i) {
        connect(&At(Option1, i), &QRadioButton::clicked, this, [this, i] { Option1_Click(i); });
    }
    connect(&cmdouvrir, &QPushButton::clicked, this, &frmangle::cmdouvrir_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmangle::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmangle::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

} // namespace loftwing
