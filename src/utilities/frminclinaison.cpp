#include "utilities/frminclinaison.h"

#include "core/units.h"
#include "utilities/tool_files.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kAide = 63;

} // namespace

frminclinaison::frminclinaison(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    ConnectAll();
}

void frminclinaison::Form_Load() {
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    setWindowTitle(word({"FrmInclinaisonNervure", "1"}));
    Label1.setText(word({"FrmInclinaisonNervure", "2"}));
    Label2.setText(word({"FrmInclinaisonNervure", "3"}));
    Label3.setText(word({"FrmInclinaisonNervure", "4"}));
    Label4.setText(word({"FrmInclinaisonNervure", "5"}));
    txtprofil.setAccessibleName(Label1.text());
    cmdouvrir.setText(word({"FrmDefaut", "14"}));
    SetTip(cmdouvrir, programme_.Text({"FrmInclinaisonNervure", "5T"}));
    cmdok.setText(word({"TextButton", "6"}));
    SetTip(cmdok, programme_.Text({"TextButton", "6T"}));
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    Text1.SetKeys(kTouchesPositif);
    SelectField(Text1);
}

void frminclinaison::cmdouvrir_Click() {
    programme_.messages.Garde(" Angle/Open", [this] {
        if (const auto chosen =
                view_.ChoisitProfil(programme_.Text({"FrmInclinaisonNervure", "1"}))) {
            profil_ = *chosen;
            txtprofil.setText(Q(profil_.NomProfil));
        }
    });
}

/// The typed angle, nothing when it was refused.
std::optional<float> frminclinaison::Angle() {
    std::optional<float> angle;
    try {
        angle = PrendAngleDiedre(S(Text1.text()), programme_.messages, Titre());
    } catch (const Failure &failure) {
        RapporteAngle(programme_.messages, failure);
    }
    if (!angle) {
        SelectField(Text1);
    }
    return angle;
}

void frminclinaison::Enregistre(float AngleDiedre) {
    const FileQuestion question = QuestionProfil(programme_.Text({"FrmInclinaisonNervure", "14"}),
                                                 programme_.Text({"FrmInclinaisonNervure", "15"}),
                                                 programme_.settings.repertoires.RepProfilevol,
                                                 NomIncline(profil_.NomProfil, AngleDiedre));
    if (!EnregistreProfil(programme_.messages, question,
                          [&] { return TexteIncline(AngleDiedre, profil_); })) {
        view_.affclear();
    }
}

void frminclinaison::cmdok_Click() {
    const std::optional<float> angle = Angle();
    if (!angle) {
        return;
    }
    if (txtprofil.text().isEmpty()) {
        programme_.messages.Inform(programme_.Text({"FrmInclinaisonNervure", "8"}), Titre());
        return;
    }
    programme_.messages.Garde(" Angle/OK", [this, &angle] { Enregistre(*angle); });
}

void frminclinaison::cmdannuler_Click() {
    reject();
}

void frminclinaison::NameAll() {
    NameControl(*this, "frminclinaison");
    const std::pair<QObject *, const char *> names[] = {
        {&Label1, "Label1"},         {&txtprofil, "txtprofil"}, {&cmdouvrir, "cmdouvrir"},
        {&Label2, "Label2"},         {&Text1, "Text1"},         {&Label3, "Label3"},
        {&Label4, "Label4"},         {&Picture1, "Picture1"},   {&cmdok, "cmdok"},
        {&cmdannuler, "cmdannuler"}, {&cmdaide, "cmdaide"},
    };
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
}

void frminclinaison::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label1, 0, 1);
    grid->addWidget(&txtprofil, 0, 2);
    grid->addWidget(&cmdouvrir, 0, 3);
    AddMeasure(*grid, 1, Picture1, {InclineSketch::kAngle, Label2, Text1, "°"});
    grid->addWidget(MeasureLetter(InclineSketch::kOriginal), 2, 0);
    grid->addWidget(&Label3, 2, 1);
    grid->addWidget(MeasureLetter(InclineSketch::kACalculer), 3, 0);
    grid->addWidget(&Label4, 3, 1);
    grid->setRowStretch(4, 1);
    for (QLabel *label : {&Label1, &Label3, &Label4}) {
        label->setTextFormat(Qt::PlainText);
    }
    MakeNameDisplay(txtprofil, kNameLetters);
    auto *above = new QHBoxLayout;
    above->addLayout(grid);
    above->addWidget(&Picture1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above);
    rows->addLayout(ButtonRow({&cmdok, &cmdannuler, &cmdaide}));
    cmdok.setDefault(true);
}

void frminclinaison::ConnectAll() {
    connect(&cmdouvrir, &QPushButton::clicked, this, &frminclinaison::cmdouvrir_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frminclinaison::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frminclinaison::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

} // namespace loftwing
