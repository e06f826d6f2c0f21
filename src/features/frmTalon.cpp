#include "features/frmTalon.h"

#include "base/number_text.h"

#include <QScopedValueRollback>

namespace loftwing {

namespace {

constexpr int kAide = 40;

} // namespace

frmTalon::frmTalon(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmTalon::Form_Load() {
    programme_.rib.Annule = false;
    const Saisie saisie = programme_.SaisieEnCours();
    setWindowTitle(Q(TitreTalon(programme_.rib, saisie)));
    PoseTextes();
    PoseBulles();
    // A stored text that is no length must not keep the window from putting it right.
    Seul(" Talon/Load", [&] { OuvreTalon(programme_.rib, saisie); });
    const TextesTalon shown = TextesDuTalon(programme_.rib);
    for (int i = 0; i < kChampsTalon; ++i) {
        At(txt, i).setText(Q(At(shown, i)));
    }
    const auto opening = [&saisie](const std::string &afich) {
        return Q(Trim(afich)) + Q(saisie.Unite);
    };
    Label2.setText(opening(shown[kTalonIntra]));
    Label3.setText(opening(shown[kTalonExtra]));
    MontreMarges();
    OptTalon_Click(programme_.rib.talon.OptTalon);
    SelectField(txt[programme_.rib.talon.OptTalon == 0 ? kTalonIntra : kTalonExtra]);
    Retient();
    FormeChargee = true;
}

void frmTalon::Retient() {
    talon_avant_ = programme_.rib.talon;
    vrillage_avant_ = programme_.rib.vrillage;
}

void frmTalon::PoseTextes() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    Label1.setText(word({"FrmTalon", "2"}) + " : -/+");
    OptTalon[0].setText(word({"FrmTalon", "7"}));
    OptTalon[1].setText(word({"FrmTalon", "6"}));
    LabelHaut.setText(word({"FrmTalon", "8"}));
    LabelBA.setText(word({"FrmTalon", "9"}));
    LabelBF.setText(word({"FrmTalon", "10"}));
    LabelLong.setText(word({"FrmTalon", "11"}));
    LabelAvant.setText(word({"FrmTalon", "12"}));
    LabelOpt.setText(word({"FrmTalon", "13"}));
    Picture1.SetEdgeWords(word({"MainTolbar", "15"}), word({"MainTolbar", "21"}));
    SetButtonWord(CmdApply, programme_.language, SharedWord::apply);
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    const std::string &Unite = programme_.settings.Unite;
    for (NumericField &field : txt) {
        field.SetKeys(TouchesSelonUnite(Unite, kTouchesPositif, kTouchesFraction));
    }
    txt[kTalonVrillage].SetKeys(TouchesSelonUnite(Unite, kTouchesSigne, kTouchesFractionSigne));
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

/// Runs `action` unless another one is at work: a text that changes while a box is open, or by the
/// window's own hand, starts nothing. A failure is told once; the window goes on.
template <class Action>
void frmTalon::Seul(const char *label, Action action) {
    if (EnCours) {
        return;
    }
    const QScopedValueRollback<bool> busy(EnCours, true);
    programme_.messages.Garde(label, action);
}

TextesTalon frmTalon::TextesTapes() const {
    TextesTalon typed;
    for (int i = 0; i < kChampsTalon; ++i) {
        At(typed, i) = S(At(txt, i).text());
    }
    return typed;
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
    if (!FormeChargee) {
        return;
    }
    Seul(" Talon/Txt", [this, index] {
        if (SuitTalon(programme_.rib, index, TextesTapes(), programme_.SaisieEnCours(), Titre())) {
            txt[kTalonVrillage].setText(kTexteVrillageMaxi);
            txt[kTalonVrillage].selectAll(); // ready to be typed over
        }
        MontreMarges();
    });
}

/// Puts the heel on the rib; false when it was refused.
bool frmTalon::Applique() {
    Echec = !ValideTalon(programme_.rib, TextesTapes(), programme_.SaisieEnCours(), Titre());
    if (Echec) {
        const bool leading = programme_.rib.talon.TalonBA >= programme_.rib.talon.TalonBF;
        SelectField(txt[leading ? kTalonMargeBA : kTalonMargeBF]);
        return false;
    }
    MontreMarges();
    Retient();
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
    AbandonneTalon(rib);
    if (Echec && MargesTropLongues(rib)) {
        RefuseMarges(rib, programme_.SaisieEnCours(), Titre());
        return;
    }
    // Margins and angle go into the rib while they are typed, the angle even with the sign that
    // its box has: a heel that is in use must not be drawn by them.
    rib.talon = talon_avant_;
    rib.vrillage = vrillage_avant_;
    rib.Annule = true;
    view_.affiche();
    QDialog::reject();
}

void frmTalon::reject() {
    cmdannuler_Click();
}

void frmTalon::ConnectAll() {
    for (int i = 0; i < kChampsTalon; ++i) {
        connect(&At(txt, i), &QLineEdit::textChanged, this, [this, i] { txt_Change(i); });
    }
    for (int i = 0; i < 2; ++i) {
        connect(&At(OptTalon, i), &QRadioButton::clicked, this, [this, i] { OptTalon_Click(i); });
    }
    connect(&CmdApply, &QPushButton::clicked, this, &frmTalon::CmdApply_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmTalon::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmTalon::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

} // namespace loftwing
