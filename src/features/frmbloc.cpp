#include "features/frmbloc.h"

#include <QScopedValueRollback>

namespace loftwing {

namespace {

constexpr int kAide = 50;

} // namespace

frmbloc::frmbloc(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmbloc::Form_Load() {
    RibModel &rib = programme_.rib;
    rib.Annule = false;
    setWindowTitle(Q(TitreBloc(programme_.SaisieEnCours())));
    PoseTextes();
    PoseBulles();
    const TextesBloc shown = TextesDuBloc(rib);
    for (int i = 0; i < kChampsBloc; ++i) {
        At(txt, i).setText(Q(At(shown, i)));
    }
    Seul(" Bloc/Load", [&rib] { rib.bloc.LongBloc = LongueurBloc(rib, rib.corde); });
    MontreLongueur();
    Optquebf[rib.bloc.Optquebf == 1 ? 1 : 0].setChecked(true);
    Picture1.Montre(rib.bloc.Optquebf);
    lblpointhaut.setText(Q(TextePointHaut(rib, programme_.settings.Unite)));
    lblpointbas.setText(Q(TextePointBas(rib, programme_.settings.Unite)));
    Retient();
    FormeChargee = true;
}

void frmbloc::Retient() {
    bloc_avant_ = programme_.rib.bloc;
    vrillage_avant_ = programme_.rib.vrillage;
}

void frmbloc::PoseTextes() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    Label1[kBlocBas].setText(word({"FrmBloc", "11"}));
    Label1[kBlocRampeBA].setText(word({"FrmBloc", "13"}));
    Label1[kBlocRampeBF].setText(word({"FrmBloc", "14"}));
    Label1[kBlocCoupeBF].setText(word({"FrmBloc", "12"}));
    Label1[kBlocHauteur].setText(word({"FrmBloc", "10"}));
    Label1[kBlocVrillage].setText(word({"FrmBloc", "3"}));
    LabelLong.setText(word({"FrmBloc", "2"}));
    Optquebf[0].setText(word({"FrmBloc", "4"}));
    Optquebf[1].setText(word({"FrmBloc", "5"}));
    LabelQueue.setText(word({"FrmBloc", "6"}));
    LabelPointHaut.setText(word({"FrmBloc", "15"}));
    LabelPointBas.setText(word({"FrmBloc", "16"}));
    Picture1.SetEdgeWords(word({"MainTolbar", "15"}), word({"MainTolbar", "21"}));
    Picture1.SetChordWord(word({"FrmBloc", "7"}));
    SetButtonWord(CmdApply, programme_.language, SharedWord::apply);
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
}

void frmbloc::PoseBulles() {
    SetTip(Optquebf[0], programme_.Text({"FrmBloc", "4T"}));
    SetTip(Optquebf[1], programme_.Text({"FrmBloc", "5T"}));
    SetTip(txt[kBlocHauteur], programme_.Text({"FrmBloc", "10T"}));
    SetTip(txt[kBlocBas], programme_.Text({"FrmBloc", "11T"}));
    SetTip(txt[kBlocCoupeBF], programme_.Text({"FrmBloc", "12T"}));
    SetTip(txt[kBlocRampeBA], programme_.Text({"FrmBloc", "13T"}));
    SetTip(txt[kBlocRampeBF], programme_.Text({"FrmBloc", "14T"}));
    for (NumericField &field : txt) {
        field.SetKeys(
            TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    }
    txt[kBlocVrillage].SetKeys(kTouchesSigne); // degrees take no fraction
}

/// Runs `action` unless another one is at work: a text that changes while a box is open, or by the
/// window's own hand, starts nothing. A failure is told once; the window goes on.
template <class Action>
void frmbloc::Seul(const char *label, Action action) {
    if (EnCours) {
        return;
    }
    const QScopedValueRollback<bool> busy(EnCours, true);
    programme_.messages.Garde(label, action);
}

TextesBloc frmbloc::TextesTapes() const {
    TextesBloc typed;
    for (int i = 0; i < kChampsBloc; ++i) {
        At(typed, i) = S(At(txt, i).text());
    }
    return typed;
}

void frmbloc::MontreLongueur() {
    lbllongb.setText(Q(TexteLongBloc(programme_.rib, programme_.settings.Unite)));
}

void frmbloc::Optquebf_Click(int index) {
    programme_.rib.bloc.Optquebf = ToByte(index);
    Picture1.Montre(index);
}

void frmbloc::txt_Change(int index) {
    if (!FormeChargee) {
        return;
    }
    Seul(" Bloc/Txt", [this, index] {
        const auto angle =
            SuitBloc(programme_.rib, index, TextesTapes(), programme_.SaisieEnCours(), Titre());
        MontreLongueur();
        if (angle) {
            txt[kBlocVrillage].setText(Q(*angle));
            txt[kBlocVrillage].selectAll(); // ready to be typed over
        }
    });
}

/// Puts the template on the rib.
void frmbloc::Applique() {
    ValideBloc(programme_.rib, TextesTapes(), programme_.SaisieEnCours(), Titre());
    MontreLongueur();
    txt[kBlocVrillage].setText(Q(TextesDuBloc(programme_.rib)[kBlocVrillage]));
    Retient();
    view_.affiche();
}

void frmbloc::CmdApply_Click() {
    Seul(" Bloc/Apply", [this] { Applique(); });
}

void frmbloc::cmdok_Click() {
    Seul(" Bloc/OK", [this] {
        if (const auto refused = RefuseRampe(programme_.rib, programme_.SaisieEnCours(), Titre())) {
            SelectField(At(txt, *refused));
            return;
        }
        Applique();
        accept();
    });
}

void frmbloc::cmdannuler_Click() {
    Seul(" Bloc/Cancel", [this] {
        // Ramps and angle go into the rib while they are typed.
        programme_.rib.bloc = bloc_avant_;
        programme_.rib.vrillage = vrillage_avant_;
        programme_.rib.TypeGabarit = kSansGabarit;
        programme_.rib.Annule = true;
        view_.affiche();
        QDialog::reject();
    });
}

void frmbloc::reject() {
    cmdannuler_Click();
}

void frmbloc::ConnectAll() {
    for (int i = 0; i < kChampsBloc; ++i) {
        connect(&At(txt, i), &QLineEdit::textChanged, this, [this, i] { txt_Change(i); });
    }
    for (int i = 0; i < 2; ++i) {
        connect(&At(Optquebf, i), &QRadioButton::clicked, this, [this, i] { Optquebf_Click(i); });
    }
    connect(&CmdApply, &QPushButton::clicked, this, &frmbloc::CmdApply_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmbloc::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmbloc::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

} // namespace loftwing
