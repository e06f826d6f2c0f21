#include "features/frmInstxt.h"

#include "base/number_text.h"
#include "lang/ini_file.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kAide = 70;
// The fields by their index.
constexpr int kTexte = 0;
constexpr int kPositionX = 1;
constexpr int kPositionY = 2;
/// A field has room for this.
constexpr const char *kLongueurUsuelle = "-12.31/64--";

} // namespace

frmInstxt::frmInstxt(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frmInstxt::Form_Load() {
    programme_.rib.Annule = false;
    PoseTextes();
    const TexteTape shown = TexteAffiche(programme_.rib, programme_.messages);
    infotxt[kTexte].setText(Q(shown.texte));
    infotxt[kTexte].setCursorPosition(0);
    infotxt[kPositionX].setText(Q(shown.x));
    infotxt[kPositionY].setText(Q(shown.y));
    const float size = programme_.rib.texte.TailleFont;
    taille_avant_ = size;
    for (const std::string &entry : TaillesProposees(size)) {
        ComboTaille.addItem(Q(entry));
    }
    ComboTaille.setCurrentIndex(ComboTaille.findText(Q(NumberText(size))));
    SelectField(infotxt[kTexte]);
}

void frmInstxt::PoseTextes() {
    const LngIni &language = programme_.language;
    const std::string &Unite = programme_.settings.Unite;
    setWindowTitle(Q(programme_.Text({"FrmInsText", "1"}) + Unite));
    Label1[kTexte].setText(Q(programme_.Text({"FrmInsText", "2"})));
    Label1[kPositionX].setText(Q(programme_.Text({"FrmInsText", "3"})));
    Label1[kPositionY].setText(Q(programme_.Text({"FrmInsText", "4"})));
    Label2.setText(Q(programme_.Text({"FrmInsText", "5"})));
    SetTip(ComboTaille, programme_.Text({"FrmInsText", "3T"}));
    SetButtonWord(CmdApply, language, SharedWord::apply);
    SetButtonWord(cmdok, language, SharedWord::ok);
    SetButtonWord(cmdannuler, language, SharedWord::cancel);
    SetButtonWord(cmdaide, language, SharedWord::help);
    // The text takes every character.
    infotxt[kTexte].setInputMethodHints(Qt::ImhNone);
    infotxt[kPositionX].SetKeys(TouchesSelonUnite(Unite, kTouchesPositif, kTouchesFraction));
    infotxt[kPositionY].SetKeys(TouchesSelonUnite(Unite, kTouchesSigne, kTouchesFractionSigne));
}

void frmInstxt::Applique() {
    PrendTexteInsere(
        programme_.rib,
        {S(infotxt[kTexte].text()), S(infotxt[kPositionX].text()), S(infotxt[kPositionY].text())},
        programme_.SaisieEnCours());
    infotxt[kTexte].setText(Q(programme_.rib.texte.InsTexte));
    taille_avant_ = programme_.rib.texte.TailleFont;
    Redessine();
}

/// By the route of the view that is up: only one of the two draws.
void frmInstxt::Redessine() {
    view_.RetraceVues();
    view_.affiche();
}

void frmInstxt::CmdApply_Click() {
    programme_.messages.Garde(" InsText/Apply", [this] { Applique(); });
}

void frmInstxt::cmdok_Click() {
    programme_.messages.Garde(" InsText/OK", [this] {
        Applique();
        // A redraw that failed has cleared the rib and closed this dialog with it.
        if (!isVisible()) {
            return;
        }
        WriteINIFile("InsText", "TailleFont", NumberText(programme_.rib.texte.TailleFont),
                     programme_.paths.fichier);
        accept();
    });
}

void frmInstxt::cmdannuler_Click() {
    programme_.rib.Annule = true;
    // A size counts as soon as it is chosen; only Apply and OK make it stay.
    programme_.rib.texte.TailleFont = taille_avant_;
    programme_.messages.Garde(" InsText/Cancel", [this] { Redessine(); });
    QDialog::reject();
}

void frmInstxt::reject() {
    cmdannuler_Click();
}

void frmInstxt::ComboTaille_Click() {
    programme_.messages.Garde(" InsText/ComboTaille", [this] {
        programme_.rib.texte.TailleFont = TailleChoisie(S(ComboTaille.currentText()));
    });
}

void frmInstxt::NameAll() {
    NameControl(*this, "frmInstxt");
    NameControls(Label1, "Label1");
    NameControls(infotxt, "infotxt");
    NameControl(Label2, "Label2");
    NameControl(ComboTaille, "ComboTaille");
    NameControl(CmdApply, "CmdApply");
    NameControl(cmdok, "cmdok");
    NameControl(cmdannuler, "cmdannuler");
    NameControl(cmdaide, "cmdaide");
}

void frmInstxt::ConnectAll() {
    connect(&ComboTaille, &QComboBox::activated, this, &frmInstxt::ComboTaille_Click);
    connect(&CmdApply, &QPushButton::clicked, this, &frmInstxt::CmdApply_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmInstxt::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmInstxt::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

void frmInstxt::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label1[kTexte], 0, 0, 1, 2);
    grid->addWidget(&infotxt[kTexte], 1, 0, 1, 2);
    for (const int index : {kPositionX, kPositionY}) {
        grid->addWidget(&At(Label1, index), index + 1, 0);
        grid->addWidget(&At(infotxt, index), index + 1, 1);
        At(infotxt, index).setMinimumWidth(fontMetrics().horizontalAdvance(kLongueurUsuelle));
    }
    grid->addWidget(&Label2, 4, 0);
    grid->addWidget(&ComboTaille, 4, 1);
    grid->setColumnStretch(0, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addStretch();
    rows->addLayout(ButtonRow({&CmdApply, &cmdok, &cmdannuler, &cmdaide}));
    for (int i = 0; i < static_cast<int>(Label1.size()); ++i) {
        At(Label1, i).setTextFormat(Qt::PlainText);
        At(Label1, i).setBuddy(&At(infotxt, i));
    }
    Label2.setBuddy(&ComboTaille);
    cmdok.setDefault(true);
}

} // namespace loftwing
