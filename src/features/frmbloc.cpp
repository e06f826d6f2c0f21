#include "features/frmbloc.h"

#include "lang/aide.h"
#include "programme/rib_trial.h"

namespace loftwing {

frmbloc::frmbloc(Programme &programme, MainView &view, QWidget *parent)
    : Dialogue(programme, "frmbloc", kAideGabarit, parent), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    // Not before: what Form_Load shows is no entry of the user's.
    ConnectEach(txt, &QLineEdit::textChanged, this, &frmbloc::txt_Change);
    ConnectEach(Optquebf, &QRadioButton::clicked, this, &frmbloc::Optquebf_Click);
}

void frmbloc::Form_Load() {
    RibModel &rib = programme_.rib;
    retour_ = RetourDuRib(rib); // before the window puts away a heel
    rib.Annule = false;
    rib.TypeGabarit = kSansGabarit;
    setWindowTitle(Q(TitreBloc(programme_.SaisieEnCours())));
    PoseTextes();
    PoseBulles();
    AdmetLongueurs(txt);
    txt[kBlocVrillage].SetKeys(kTouchesSigne); // degrees take no fraction
    ShowTexts(txt, TextesDuBloc(rib));
    Seul(" Bloc/Load", [&rib] { rib.bloc.LongBloc = LongueurBloc(rib, rib.corde); });
    MontreLongueur();
    Optquebf[rib.bloc.Optquebf == 1 ? 1 : 0].setChecked(true);
    MontreEsquisse();
    lblpointhaut.setText(Q(TextePointHaut(rib, programme_.settings.Unite)));
    lblpointbas.setText(Q(TextePointBas(rib, programme_.settings.Unite)));
}

void frmbloc::PoseTextes() {
    Label1[kBlocBas].setText(Mot({"FrmBloc", "11"}));
    Label1[kBlocRampeBA].setText(Mot({"FrmBloc", "13"}));
    Label1[kBlocRampeBF].setText(Mot({"FrmBloc", "14"}));
    Label1[kBlocCoupeBF].setText(Mot({"FrmBloc", "12"}));
    Label1[kBlocHauteur].setText(Mot({"FrmBloc", "10"}));
    Label1[kBlocVrillage].setText(Mot({"FrmBloc", "3"}));
    LabelLong.setText(Mot({"FrmBloc", "2"}));
    Optquebf[0].setText(Mot({"FrmBloc", "4"}));
    Optquebf[1].setText(Mot({"FrmBloc", "5"}));
    LabelQueue.setText(Mot({"FrmBloc", "6"}));
    LabelPointHaut.setText(Mot({"FrmBloc", "15"}));
    LabelPointBas.setText(Mot({"FrmBloc", "16"}));
    Picture1.SetEdgeWords(Mot({"MainTolbar", "15"}), Mot({"MainTolbar", "21"}));
    NommeEsquisse(Picture1);
    Picture1.SetChordWord(Mot({"FrmBloc", "7"}));
}

void frmbloc::PoseBulles() {
    SetTip(Optquebf[0], programme_.Text({"FrmBloc", "4T"}));
    SetTip(Optquebf[1], programme_.Text({"FrmBloc", "5T"}));
    SetTip(txt[kBlocHauteur], programme_.Text({"FrmBloc", "10T"}));
    SetTip(txt[kBlocBas], programme_.Text({"FrmBloc", "11T"}));
    SetTip(txt[kBlocCoupeBF], programme_.Text({"FrmBloc", "12T"}));
    SetTip(txt[kBlocRampeBA], programme_.Text({"FrmBloc", "13T"}));
    SetTip(txt[kBlocRampeBF], programme_.Text({"FrmBloc", "14T"}));
}

void frmbloc::MontreLongueur() {
    lbllongb.setText(Q(TexteLongBloc(programme_.rib, programme_.settings.Unite)));
}

void frmbloc::Optquebf_Click(int index) {
    programme_.rib.bloc.Optquebf = ToByte(index);
    MontreEsquisse();
}

void frmbloc::MontreEsquisse() {
    const RibModel &rib = programme_.rib;
    Picture1.Montre({rib.bloc.Optquebf, Wide(rib.vrillage), rib.AffHaut});
}

void frmbloc::txt_Change(int index) {
    Seul(" Bloc/Txt", [this, index] {
        const auto angle =
            SuitBloc(programme_.rib, index, FieldTexts(txt), programme_.SaisieEnCours(), Titre());
        MontreLongueur();
        MontreEsquisse();
        if (angle) {
            txt[kBlocVrillage].setText(Q(*angle));
            txt[kBlocVrillage].selectAll(); // ready to be typed over
        }
    });
}

EssaiDuRib frmbloc::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        if (RefuseRampe(rib, saisie, Titre())) {
            return false;
        }
        ValideBloc(rib, FieldTexts(txt), saisie, Titre());
        return true;
    };
}

/// Puts the template on the rib.
void frmbloc::Applique() {
    ValideBloc(programme_.rib, FieldTexts(txt), programme_.SaisieEnCours(), Titre());
    MontreLongueur();
    txt[kBlocVrillage].setText(Q(TextesDuBloc(programme_.rib)[kBlocVrillage]));
    retour_ = RetourDuRib(programme_.rib);
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
        retour_(); // ramps and angle go into the rib while they are typed
        programme_.rib.Annule = true;
        view_.affiche();
        Renonce();
    });
}

} // namespace loftwing
