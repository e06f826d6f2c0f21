#include "output/frmcoul.h"

#include "base/version.h"
#include "lang/aide.h"
#include "output/test_page.h"

namespace loftwing {

namespace {

constexpr const char *kLargeurFixe = "Non Modifiable";

} // namespace

frmcoul::frmcoul(Programme &programme, QWidget *parent)
    : Dialogue(programme, "frmcoul", kAideDessin, parent), avant_(programme.settings.traits) {
    NameAll();
    LayOut();
    ConnectEach(txtcoul, &QLineEdit::textChanged, this, &frmcoul::txtcoul_Change);
    Form_Load();
    connect(&cmdImprtest, &QPushButton::clicked, this, &frmcoul::cmdImprtest_Click);
}

void frmcoul::Form_Load() {
    PoseTextes();
    NommeChamps();
    const TextesTraits texts = TextesDe(avant_);
    ShowTexts(txtcoul, texts.couleur);
    ShowTexts(txtline, texts.style);
    ShowTexts(txtEpR, texts.epaisseur);
    Picture1.Show(programme_.language);
    SelectField(txtcoul.front());
}

void frmcoul::PoseTextes() {
    setWindowTitle(Mot({"FrmLines", "1"}));
    Label2[0].setText(Mot({"FrmLines", "2"}));
    Label2[1].setText(Mot({"FrmLines", "3"}));
    Label2[2].setText(Mot({"FrmLines", "4"}));
    Label3.setText(Mot({"FrmLines", "14"}));
    LabelFixe.setText(Q(kLargeurFixe));
    for (std::size_t i = 0; i < kElements; ++i) {
        Label1[i].setText(Mot(DrawingElements()[i].label));
    }
    cmdImprtest.setText(Mot({"FrmLines", "19"}));
    SetTip(cmdImprtest, programme_.Text({"FrmLines", "1T"}));
}

/// Tells assistive tools the row and column of each box.
void frmcoul::NommeChamps() {
    const auto name = [this](QWidget &field, std::size_t row, int column) {
        field.setAccessibleName(Label1[row].text() + ", " + At(Label2, column).text());
    };
    for (std::size_t i = 0; i < kElements; ++i) {
        name(txtcoul[i], i, 0);
        name(Swatch[i], i, 0);
        name(txtline[i], i, 1);
    }
    for (int i = 0; i < static_cast<int>(kEpaisseurs); ++i) {
        name(At(txtEpR, i), static_cast<std::size_t>(ElementDeEpaisseur(i)), 2);
    }
    Picture1.setAccessibleName(Mot({"FrmLines", "17"}));
}

TextesTraits frmcoul::TextesTapes() const {
    return {FieldTexts(txtcoul), FieldTexts(txtline), FieldTexts(txtEpR)};
}

NumericField &frmcoul::Champ(const ChampTrait &champ) {
    switch (champ.liste) {
    case ListeTraits::couleur:
        return At(txtcoul, champ.index);
    case ListeTraits::style:
        return At(txtline, champ.index);
    case ListeTraits::epaisseur:
        break;
    }
    return At(txtEpR, champ.index);
}

/// Tells of the first fault and leads the user to its box; true when there is none.
bool frmcoul::Accepte(const LectureTraits &read, const char *label) {
    if (!read.faute) {
        return true;
    }
    const Messages &messages = programme_.messages;
    if (read.echec) {
        messages.Report(*read.echec, label);
    } else {
        messages.Tell(TexteFaute(read.faute->liste, programme_.language), kTitre, BoxIcon::warning);
    }
    SelectField(Champ(*read.faute));
    return false;
}

void frmcoul::cmdok_Click() {
    const LectureTraits read = LitTraits(TextesTapes(), programme_.settings.traits);
    if (!read.echec) {
        programme_.settings.traits = read.traits;
    }
    if (!Accepte(read, " Lines/OK")) {
        return;
    }
    const Reglages reglages = programme_.ReglagesEnCours();
    EcritCouleurs(reglages);
    EcritStyles(reglages);
    EcritEpaisseurs(reglages);
    accept();
}

void frmcoul::cmdannuler_Click() {
    if (!Accepte(LitTraits(TextesTapes(), avant_), " Lines/Cancel")) {
        return;
    }
    programme_.settings.traits = avant_;
    Renonce();
}

void frmcoul::txtcoul_Change(int index) {
    At(Swatch, index).Montre(CouleurTapee(S(At(txtcoul, index).text())));
}

void frmcoul::cmdImprtest_Click() {
    loftwing::cmdImprtest(programme_.messages);
}

} // namespace loftwing
