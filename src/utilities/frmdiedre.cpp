#include "utilities/frmdiedre.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kAide = 60;

/// What asks for a field's value: a double click or, without a mouse, Return in it.
bool DemandeValeur(const QEvent &event) {
    return event.type() == QEvent::MouseButtonDblClick ||
           (event.type() == QEvent::KeyPress &&
            IsReturn(static_cast<const QKeyEvent &>(event).key()));
}

} // namespace

frmdiedre::frmdiedre(Programme &programme, QWidget *parent)
    : QDialog(parent), programme_(programme) {
    NameAll();
    LayOut();
    Form_Load();
    for (NumericField &field : txt) {
        field.installEventFilter(this);
    }
    connect(&cmdok, &QPushButton::clicked, this, &frmdiedre::cmdok_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, kAide);
}

void frmdiedre::NameAll() {
    NameControl(*this, "frmdiedre");
    NameControls(txt, "txt");
    NameControl(Label1, "Label1");
    NameControl(Label2, "Label2");
    NameControl(Label3, "Label3");
    NameControl(Image1, "Image1");
    NameControl(cmdok, "cmdok");
    NameControl(cmdaide, "cmdaide");
}

void frmdiedre::LayOut() {
    auto *grid = new QGridLayout;
    const QString unit = Q(programme_.settings.Unite).trimmed();
    AddMeasure(*grid, 0, Image1, {DiedreSketch::kAngle, Label1, txt[kDiedreAngle], "°"});
    AddMeasure(*grid, 1, Image1, {DiedreSketch::kLongueur, Label2, txt[kDiedreLongueur], unit});
    AddMeasure(*grid, 2, Image1, {DiedreSketch::kHauteur, Label3, txt[kDiedreHauteur], unit});
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Image1, 1);
    rows->addLayout(grid);
    rows->addLayout(ButtonRow({&cmdok, &cmdaide}));
    cmdok.setDefault(true);
}

void frmdiedre::Form_Load() {
    PoseTextes();
    for (NumericField &field : txt) {
        field.SetKeys(
            TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    }
    SelectField(txt[kDiedreAngle]);
}

void frmdiedre::PoseTextes() {
    setWindowTitle(Q(programme_.Text({"FrmDiedre", "1"}) + " " + programme_.settings.Unite));
    Label1.setText(Q(programme_.Text({"FrmDiedre", "2"})));
    Label2.setText(Q(programme_.Text({"FrmDiedre", "4"})));
    Label3.setText(Q(programme_.Text({"FrmDiedre", "5"})));
    for (NumericField &field : txt) {
        SetTip(field, programme_.Text({"FrmDiedre", "2T"}));
    }
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
}

bool frmdiedre::eventFilter(QObject *watched, QEvent *event) {
    if (DemandeValeur(*event)) {
        for (int index = 0; index < kChampsDiedre; ++index) {
            if (watched == &At(txt, index)) {
                txt_dblClick(index);
                return true; // it would select a word, or close the window
            }
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmdiedre::txt_dblClick(int index) {
    TextesDiedre texts;
    for (int i = 0; i < kChampsDiedre; ++i) {
        At(texts, i) = S(At(txt, i).text());
    }
    programme_.messages.Garde(" Diedre/txt", [&] {
        CalculeDiedre(texts, index, programme_.SaisieEnCours(), S(windowTitle()));
    });
    for (int i = 0; i < kChampsDiedre; ++i) {
        At(txt, i).setText(Q(At(texts, i)));
    }
    At(txt, index).selectAll();
}

void frmdiedre::cmdok_Click() {
    accept();
}

} // namespace loftwing
