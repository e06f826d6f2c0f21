// Names, layout, words and connections of the airfoil picker.

#include "mainwindow/frmopen.h"
#include "platform/qt_form.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kHelpOpen = 41;
constexpr int kTitleLines = 3;
constexpr double kShareOfScreen = 0.9;

} // namespace

void frmopen::NameAll() {
    NameControl(*this, "frmopen");
    NameControl(txtchemin, "txtchemin");
    NameControl(lbldossiers, "lbldossiers");
    NameControl(Dir1, "Dir1");
    NameControl(lblfichiers, "lblfichiers");
    NameControl(File1, "File1");
    NameControl(lbltype, "lbltype");
    NameControl(Combo1, "Combo1");
    NameControl(lblfichier, "lblfichier");
    NameControl(nomfile1, "nomfile1");
    NameControl(lbldossier, "lbldossier");
    NameControl(Lbchemin, "Lbchemin");
    NameControl(Surface, "Surface");
    NameControl(Label1, "Label1");
    NameControl(Label2, "Label2");
    NameControl(Label3, "Label3");
    NameControl(memP1, "memP1");
    NameControl(LbMem, "LbMem");
    NameControl(cmdouvrir, "cmdouvrir");
    NameControl(cmdannuler, "cmdannuler");
    NameControl(cmdaide, "cmdaide");
}

QLayout *frmopen::LayOutLists() {
    auto *type = new QHBoxLayout;
    type->addWidget(&lbltype);
    type->addWidget(&Combo1, 1);
    auto *chosen = new QFormLayout;
    chosen->addRow(&lbldossier, &Lbchemin);
    chosen->addRow(&lblfichier, &nomfile1);
    auto *column = new QVBoxLayout;
    column->addWidget(&txtchemin);
    column->addWidget(&lbldossiers);
    column->addWidget(&Dir1, 2);
    column->addWidget(&lblfichiers);
    column->addWidget(&File1, 3);
    column->addLayout(type);
    column->addLayout(chosen);
    return column;
}

QLayout *frmopen::LayOutPreview() {
    auto *memory = new QHBoxLayout;
    memory->addWidget(&memP1);
    memory->addWidget(&LbMem, 1);
    auto *column = new QVBoxLayout;
    column->addWidget(&Surface, 1);
    column->addWidget(&Label1);
    column->addWidget(&Label2);
    column->addWidget(&Label3);
    column->addLayout(memory);
    return column;
}

void frmopen::LayOut() {
    auto *upper = new QHBoxLayout;
    upper->addLayout(LayOutLists(), 1);
    upper->addLayout(LayOutPreview(), 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(upper, 1);
    rows->addLayout(ButtonRow({&cmdouvrir, &cmdannuler, &cmdaide}));
    cmdouvrir.setDefault(true);
    File1.setFocus();
    // The preview shrinks with the height, so it may have nearly all of a small screen.
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
}

void frmopen::SetWords() {
    setWindowTitle(Q(programme_.Text({"frmopen", "1"})));
    LbMem.setText(Q(programme_.Text({"frmopen", "2"})));
    lbldossiers.setText(Q(programme_.Text({"frmopen", "3"})));
    lblfichiers.setText(Q(programme_.Text({"frmopen", "4"})));
    lbltype.setText(Q(programme_.Text({"frmopen", "5"})));
    lblfichier.setText(Q(programme_.Text({"frmopen", "6"})));
    lbldossier.setText(Q(programme_.Text({"frmopen", "8"})));
    cmdouvrir.setText(Q(programme_.Text({"frmopen", "7"})));
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    Combo1.addItem("Selig Files (*.dat)");
    Combo1.addItem("Coordinates Files (*.cor)");
}

void frmopen::SetTips() {
    SetTip(memP1, programme_.Text({"frmopen", "2t"}));
    SetTip(LbMem, programme_.Text({"frmopen", "2t"}));
    SetTip(Dir1, programme_.Text({"frmopen", "3t"}));
    SetTip(File1, programme_.Text({"frmopen", "4t"}));
    SetTip(Combo1, programme_.Text({"frmopen", "5t"}));
    SetTip(cmdouvrir, programme_.Text({"frmopen", "7t"}));
    SetTip(Lbchemin, programme_.Text({"frmopen", "8T"}));
    SetTip(txtchemin, programme_.Text({"frmopen", "8T"}));
    SetTip(Label2, programme_.Text({"frmopen", "24t"}));
    Dir1.setAccessibleName(lbldossiers.text());
    File1.setAccessibleName(lblfichiers.text());
    Combo1.setAccessibleName(lbltype.text());
    memP1.setAccessibleName(LbMem.text());
    txtchemin.setAccessibleName(lbldossier.text());
}

std::array<QObject *, 5> frmopen::Surveilles() {
    return {&txtchemin, &Dir1, &File1, &LbMem, File1.viewport()};
}

frmopen::~frmopen() {
    // A list that goes loses its focus, and by then half of it is gone.
    for (QObject *watched : Surveilles()) {
        watched->removeEventFilter(this);
    }
}

void frmopen::Connect() {
    for (QObject *watched : Surveilles()) {
        watched->installEventFilter(this);
    }
    selection_.setSingleShot(true);
    connect(&selection_, &QTimer::timeout, this, &frmopen::File1_Click);
    connect(&Combo1, &QComboBox::activated, this, &frmopen::Combo1_Change);
    connect(&Dir1, &QListWidget::itemDoubleClicked, this, &frmopen::Dir1_DblClick);
    connect(&File1, &QListWidget::itemSelectionChanged, this, [this] {
        if (!pressed_) {
            selection_.start();
        }
    });
    // After the mouse is done with the list, since the window may close.
    connect(&File1, &QListWidget::itemDoubleClicked, this,
            [this] { QTimer::singleShot(0, this, &frmopen::File1_DblClick); });
    connect(&memP1, &QCheckBox::toggled, this, &frmopen::memP1_Click);
    connect(&cmdouvrir, &QPushButton::clicked, this, &frmopen::cmdouvrir_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmopen::cmdannuler_Click);
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Up), this), &QShortcut::activated, this,
            &frmopen::Monte);
    connect(new QShortcut(QKeySequence::Refresh, this), &QShortcut::activated, this,
            [this] { Ouvre(dossier_); });
    ConnectHelp(*this, cmdaide, programme_.platform, kHelpOpen);
}

frmopen::frmopen(Programme &programme, MainView &view, QWidget *parent)
    : QDialog(parent), programme_(programme), view_(view), rib_(programme.rib),
      precedent_(programme.rib), txtchemin(this), lbldossiers(this), Dir1(this), lblfichiers(this),
      File1(this), lbltype(this), Combo1(this), lblfichier(this), nomfile1(1, this),
      lbldossier(this), Lbchemin(1, this), Surface(this), Label1(kTitleLines, this),
      Label2(1, this), Label3(1, this), memP1(this), LbMem(this), cmdouvrir(this), cmdannuler(this),
      cmdaide(this) {
    NameAll();
    SetWords();
    SetTips();
    LayOut();
    Connect();
    Form_Load();
}

} // namespace loftwing
