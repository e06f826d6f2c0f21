#include "features/frmbacarre.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kAide = 40;

} // namespace

frmbacarre::frmbacarre(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view) {
    NameAll();
    LayOut();
    Form_Load();
    connect(&CmdApply, &QPushButton::clicked, this, &frmbacarre::CmdApply_Click);
    connect(&cmdok, &QPushButton::clicked, this, &frmbacarre::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmbacarre::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

void frmbacarre::NameAll() {
    NameControl(*this, "frmbacarre");
    NameControls(Label1, "Label1");
    NameControls(infotxt, "infotxt");
    NameControl(Picture1, "Picture1");
    NameControl(CmdApply, "CmdApply");
    NameControl(cmdok, "cmdok");
    NameControl(cmdannuler, "cmdannuler");
    NameControl(cmdaide, "cmdaide");
}

void frmbacarre::LayOut() {
    constexpr std::array<const char *, kChampsCarre> letters = {CarreSketch::kCote, CarreSketch::kX,
                                                                CarreSketch::kY};
    const QString unit = Q(programme_.settings.Unite).trimmed();
    auto *grid = new QGridLayout;
    for (int i = 0; i < kChampsCarre; ++i) {
        AddMeasure(*grid, i, Picture1, {At(letters, i), At(Label1, i), At(infotxt, i), unit});
    }
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addWidget(&Picture1, 1); // below: the labels are long
    rows->addLayout(ButtonRow({&CmdApply, &cmdok, &cmdannuler, &cmdaide}));
    cmdok.setDefault(true);
}

void frmbacarre::Form_Load() {
    programme_.rib.Annule = false;
    const auto word = [this](LngKey key) { return Q(programme_.Text(key)); };
    setWindowTitle(Q(TitreCarre(programme_.SaisieEnCours())));
    Label1[kCarreCote].setText(word({"FrmBacarre", "2"}));
    Label1[kCarreX].setText(word({"FrmBacarre", "3"}));
    Label1[kCarreY].setText(word({"FrmBacarre", "4"}));
    Picture1.SetEdgeWords(word({"MainTolbar", "15"}), word({"MainTolbar", "21"}));
    SetButtonWord(CmdApply, programme_.language, SharedWord::apply);
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    const std::string &Unite = programme_.settings.Unite;
    for (NumericField &field : infotxt) {
        field.SetKeys(TouchesSelonUnite(Unite, kTouchesPositif, kTouchesFraction));
    }
    infotxt[kCarreY].SetKeys(TouchesSelonUnite(Unite, kTouchesSigne, kTouchesFractionSigne));
    const TextesCarre shown = TextesDuCarre(programme_.rib);
    for (int i = 0; i < kChampsCarre; ++i) {
        At(infotxt, i).setText(Q(At(shown, i)));
    }
}

/// Puts the square on the rib; false after a failure, which has been told.
bool frmbacarre::Applique() {
    TextesCarre typed;
    for (int i = 0; i < kChampsCarre; ++i) {
        At(typed, i) = S(At(infotxt, i).text());
    }
    try {
        ValideCarre(programme_.rib, typed, programme_.SaisieEnCours(), S(windowTitle()));
    } catch (const Failure &failure) {
        programme_.messages.Report(failure, " BaCarre/Apply");
        return false;
    }
    infotxt[kCarreCote].setText(Q(typed[kCarreCote]));
    view_.affiche();
    return true;
}

void frmbacarre::CmdApply_Click() {
    Applique();
}

void frmbacarre::cmdok_Click() {
    if (Applique()) {
        accept();
    }
}

void frmbacarre::cmdannuler_Click() {
    programme_.rib.Annule = true;
    QDialog::reject();
}

void frmbacarre::reject() {
    cmdannuler_Click();
}

} // namespace loftwing
