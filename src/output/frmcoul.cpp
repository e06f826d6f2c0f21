#include "output/frmcoul.h"

#include "base/version.h"
#include "output/test_page.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace loftwing {

namespace {

constexpr int kAide = 70;
constexpr const char *kBulle = " Entre 0 et 3 ";
constexpr const char *kLargeurFixe = "Non Modifiable";
/// The row of the grid over which the compared airfoils have a head of their own.
constexpr int kPremierCompare = 9;
constexpr int kEcart = 8; // pixels that set the legend off

template <class Fields, class Texts>
void Remplit(Fields &fields, const Texts &texts) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i].setText(Q(texts[i]));
    }
}

template <class Fields, class Texts>
void Releve(const Fields &fields, Texts &texts) {
    std::transform(fields.begin(), fields.end(), texts.begin(),
                   [](const NumericField &field) { return S(field.text()); });
}

template <class Fields>
void Prepare(Fields &fields) {
    for (NumericField &field : fields) {
        field.SetKeys(kTouchesEntier);
        field.setToolTip(Q(kBulle));
        field.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        field.setMaximumWidth(field.fontMetrics().horizontalAdvance("0000000"));
    }
}

} // namespace

frmcoul::frmcoul(Programme &programme, QWidget *parent)
    : QDialog(parent), programme_(programme), avant_(programme.settings.traits) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmcoul::Form_Load() {
    PoseTextes();
    NommeChamps();
    const TextesTraits texts = TextesDe(avant_);
    Remplit(txtcoul, texts.couleur);
    Remplit(txtline, texts.style);
    Remplit(txtEpR, texts.epaisseur);
    Picture1.Show(programme_.language);
    SelectField(txtcoul.front());
}

void frmcoul::PoseTextes() {
    const LngIni &language = programme_.language;
    setWindowTitle(Q(programme_.Text({"FrmLines", "1"})));
    Label2[0].setText(Q(programme_.Text({"FrmLines", "2"})));
    Label2[1].setText(Q(programme_.Text({"FrmLines", "3"})));
    Label2[2].setText(Q(programme_.Text({"FrmLines", "4"})));
    Label3.setText(Q(programme_.Text({"FrmLines", "14"})));
    LabelFixe.setText(Q(kLargeurFixe));
    for (std::size_t i = 0; i < kElements; ++i) {
        Label1[i].setText(Q(programme_.Text(DrawingElements()[i].label)));
    }
    cmdImprtest.setText(Q(programme_.Text({"FrmLines", "19"})));
    SetTip(cmdImprtest, programme_.Text({"FrmLines", "1T"}));
    SetButtonWord(cmdok, language, SharedWord::ok);
    SetButtonWord(cmdannuler, language, SharedWord::cancel);
    SetButtonWord(cmdaide, language, SharedWord::help);
}

/// Tells assistive tools the row and column of each box.
void frmcoul::NommeChamps() {
    const auto name = [this](QWidget &field, std::size_t row, int column) {
        field.setAccessibleName(Label1[row].text() + ", " + At(Label2, column).text());
    };
    for (std::size_t i = 0; i < kElements; ++i) {
        name(txtcoul[i], i, 0);
        name(txtline[i], i, 1);
    }
    for (int i = 0; i < static_cast<int>(kEpaisseurs); ++i) {
        name(At(txtEpR, i), static_cast<std::size_t>(ElementDeEpaisseur(i)), 2);
    }
    Picture1.setAccessibleName(Q(programme_.Text({"FrmLines", "17"})));
}

TextesTraits frmcoul::TextesTapes() const {
    TextesTraits typed;
    Releve(txtcoul, typed.couleur);
    Releve(txtline, typed.style);
    Releve(txtEpR, typed.epaisseur);
    return typed;
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
    QDialog::reject();
}

void frmcoul::reject() {
    cmdannuler_Click();
}

void frmcoul::cmdImprtest_Click() {
    loftwing::cmdImprtest(programme_.messages);
}

void frmcoul::NameAll() {
    NameControl(*this, "frmcoul");
    NameControls(Label1, "Label1");
    NameControls(Label2, "Label2");
    NameControl(Label3, "Label3");
    NameControls(txtcoul, "txtcoul");
    NameControls(txtline, "txtline");
    NameControls(txtEpR, "txtEpR");
    NameControl(LabelFixe, "LabelFixe");
    NameControl(Picture1, "Picture1");
    NameControl(cmdImprtest, "cmdImprtest");
    NameControl(cmdok, "cmdok");
    NameControl(cmdannuler, "cmdannuler");
    NameControl(cmdaide, "cmdaide");
}

void frmcoul::ConnectAll() {
    connect(&cmdok, &QPushButton::clicked, this, &frmcoul::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmcoul::cmdannuler_Click);
    connect(&cmdImprtest, &QPushButton::clicked, this, &frmcoul::cmdImprtest_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

void frmcoul::LayOut() {
    Prepare(txtcoul);
    Prepare(txtline);
    Prepare(txtEpR);
    auto *grid = new QGridLayout;
    LayOutGrid(*grid);
    auto *left = new QVBoxLayout;
    left->addLayout(grid);
    left->addStretch();
    auto *above = new QHBoxLayout;
    above->addLayout(left);
    above->addSpacing(kEcart);
    above->addWidget(&Picture1, 1);
    auto *buttons = ButtonRow({&cmdok, &cmdannuler, &cmdaide});
    buttons->insertWidget(0, &cmdImprtest);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above, 1);
    rows->addLayout(buttons);
    cmdok.setDefault(true);
}

void frmcoul::LayOutGrid(QGridLayout &grid) {
    for (int column = 0; column < 3; ++column) {
        grid.addWidget(&At(Label2, column), 0, column + 1);
    }
    int row = 1;
    int width = 0;
    for (int i = 0; i < static_cast<int>(kElements); ++i, ++row) {
        if (i == kPremierCompare) {
            grid.addWidget(&Label3, row++, 0, 1, 4);
        }
        grid.addWidget(&At(Label1, i), row, 0);
        grid.addWidget(&At(txtcoul, i), row, 1);
        grid.addWidget(&At(txtline, i), row, 2);
        At(Label1, i).setBuddy(&At(txtcoul, i));
        const DrawingElement &element = At(DrawingElements(), i);
        if (element.width_key != nullptr) {
            grid.addWidget(&At(txtEpR, width++), row, 3);
        } else if (element.element == Element::axe) {
            grid.addWidget(&LabelFixe, row, 3);
        }
    }
}

} // namespace loftwing
