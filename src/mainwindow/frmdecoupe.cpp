#include "mainwindow/frmdecoupe.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "lang/aide.h"
#include "output/view_screen.h"
#include "platform/qt_title.h"
#include "programme/qt_cut_command.h"

namespace loftwing {

namespace {

/// In the order of the boxes.
constexpr std::array<bool ChoixDecoupe::*, 5> kCases = {
    &ChoixDecoupe::reference, &ChoixDecoupe::stations, &ChoixDecoupe::axes, &ChoixDecoupe::talon,
    &ChoixDecoupe::etiquette};

void MontreTexte(QLabel &label, const std::string &text) {
    label.setText(Q(text));
    label.setVisible(!text.empty());
}

} // namespace

frmdecoupe::frmdecoupe(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmdecoupe", kAideDecoupe, parent), choix_(LitChoixDecoupe(programme)),
      Picture1(this), Label1(this), txtsaignee(this), Label2(this), Label3(this), txtfil(this),
      Label4(this), Frame1(this), txtetiquette(&Frame1), chkpolylignes(this), lblmesures(this),
      lblavis(this), lblenregistre(this), cmdenregistrer(this) {
    NameAll();
    PoseTextes();
    PoseBulles();
    MontreChoix();
    Refait();
    LayOut();
    Connect();
}

void frmdecoupe::PoseTextes() {
    setWindowTitle(TitreDeFenetre(programme_.Text({"Piece", "103"}) + " : " +
                                  NomDuDessin(programme_.rib, programme_.compare)));
    Picture1.setAccessibleName(Mot({"Piece", "125"}));
    Label1.setText(Mot({"Piece", "104"}));
    Label3.setText(Mot({"Piece", "126"}));
    for (QLabel *unit : {&Label2, &Label4}) {
        unit->setText(Q(programme_.settings.Unite).trimmed());
    }
    Frame1.setTitle(Mot({"Piece", "108"}));
    chkmarque[0].setText(Mot({"Piece", "109"}));
    chkmarque[1].setText(Mot({"Piece", "110"}));
    chkmarque[2].setText(Mot({"Piece", "111"}));
    chkmarque[3].setText(Mot({"Piece", "112"}));
    chkmarque[kEtiquette].setText(Mot({"Piece", "106"}));
    txtetiquette.setAccessibleName(Mot({"Piece", "106"}));
    txtetiquette.setPlaceholderText(Q(EtiquetteDuRib(programme_.rib, programme_.settings.Unite)));
    chkpolylignes.setText(Mot({"Piece", "114"}));
    cmdenregistrer.setText(Mot({"Piece", "116"}));
}

void frmdecoupe::PoseBulles() {
    SetTip(txtsaignee, programme_.Text({"Piece", "105"}));
    SetTip(txtfil, programme_.Text({"Piece", "127"}));
    SetTip(txtetiquette, programme_.Text({"Piece", "107"}));
    SetTip(chkpolylignes, programme_.Text({"Piece", "115"}));
    SetTip(cmdenregistrer, programme_.Text({"Piece", "117"}));
}

void frmdecoupe::MontreChoix() {
    const auto montre = [this](NumericField &field, double mm) {
        AdmetLongueur(field);
        field.setText(Q(Trim(DepuisMm(mm, programme_.settings.Unite))));
    };
    montre(txtsaignee, choix_.saignee);
    montre(txtfil, choix_.fil);
    for (QWidget *control : std::initializer_list<QWidget *>{&Label3, &txtfil, &Label4}) {
        control->setVisible(programme_.rib.TypeGabarit == kGabaritMousse);
    }
    for (int i = 0; i < kMarques; ++i) {
        At(chkmarque, i).setChecked(choix_.*At(kCases, i));
    }
    chkpolylignes.setChecked(choix_.polylignes);
    txtetiquette.setEnabled(choix_.etiquette);
}

void frmdecoupe::PrendChoix() {
    for (int i = 0; i < kMarques; ++i) {
        choix_.*At(kCases, i) = At(chkmarque, i).isChecked();
    }
    choix_.polylignes = chkpolylignes.isChecked();
    txtetiquette.setEnabled(choix_.etiquette);
}

/// Why one of the widths is none; empty where all are.
std::string frmdecoupe::PrendLargeurs() {
    const auto prend = [this](Largeur width, NumericField &field, double &mm) {
        if (!field.isVisibleTo(this)) {
            return std::string();
        }
        const LargeurLue read = LitLargeur(width, S(field.text()), programme_);
        if (read.refus.empty()) {
            mm = read.mm;
        } else {
            fautif_ = &field;
        }
        return read.refus;
    };
    fautif_ = nullptr;
    const std::string refused = prend(Largeur::saignee, txtsaignee, choix_.saignee);
    return refused.empty() ? prend(Largeur::fil, txtfil, choix_.fil) : refused;
}

/// Makes the pieces as the fields have it.
void frmdecoupe::Refait() {
    PrendChoix();
    const std::string refused = PrendLargeurs();
    if (refused.empty()) {
        faites_ = FaitPiecesDuRib(programme_, DemandeDe(choix_, S(txtetiquette.text().trimmed())));
    } else {
        faites_ = {{}, refused};
    }
    Picture1.Montre(EnDessous(faites_.pieces), CouleursDe(programme_.settings));
    lblmesures.setText(
        Q(TexteMesures(programme_.messages, faites_.pieces, programme_.settings.Unite)));
    MontreTexte(lblavis, TexteDesAvis(programme_.messages, faites_));
    MontreTexte(lblenregistre, ""); // that was another piece
}

void frmdecoupe::cmdenregistrer_Click() {
    if (!faites_.refus.empty()) {
        programme_.messages.Inform(faites_.refus, Titre());
        SelectField(fautif_ == nullptr ? txtsaignee : *fautif_);
        return;
    }
    const std::string path = EnregistreDecoupe(programme_, faites_.pieces, choix_);
    if (!path.empty()) {
        MontreTexte(lblenregistre, programme_.Text({"Piece", "118"}) + " " + ToUtf8(path));
    }
}

void MontreDecoupe(Programme &programme, const QRect &clear, QWidget *parent) {
    const PiecesFaites plain = FaitPiecesDuRib(programme, {});
    if (!plain.refus.empty()) {
        programme.messages.Inform(plain.refus, programme.Text({"Piece", "103"}));
        return;
    }
    frmdecoupe dialog(programme, parent);
    ShowModal(dialog, clear);
}

} // namespace loftwing
