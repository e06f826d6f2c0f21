// Names, words and places of the controls of the wing's window.

#include "mainwindow/frmaile.h"

#include "platform/qt_table.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kNumberDigits = 4; // of ribs
constexpr int kRestMs = 150;     // after the last key
constexpr int kTableLines = 6;
constexpr int kTableLetters = 60;
constexpr int kColumns = 5;

} // namespace

void frmaile::NameAll() {
    NameControls({{&Label1, "Label1"},
                  {&txtfichier, "txtfichier"},
                  {&cmdouvrir, "cmdouvrir"},
                  {&cmdenregistrer, "cmdenregistrer"},
                  {&Label2, "Label2"},
                  {&txtpremier, "txtpremier"},
                  {&Panneaux, "Panneaux"},
                  {&lblavis, "lblavis"},
                  {&lblenregistre, "lblenregistre"}});
    NameControls(cmdliste, "cmdliste");
}

void frmaile::PoseTextes() {
    setWindowTitle(Mot({"Plan", "141"}));
    Label1.setText(Mot({"Plan", "142"}));
    cmdouvrir.setText(Mot({"Panel", "134"}));
    cmdenregistrer.setText(Mot({"Panel", "135"}));
    SetTip(cmdouvrir, programme_.Text({"Plan", "157"}));
    SetTip(cmdenregistrer, programme_.Text({"Plan", "158"}));
    Label2.setText(Mot({"Panel", "107"}));
    SetTip(txtpremier, programme_.Text({"Panel", "108"}));
    txtpremier.SetKeys(kTouchesEntier);
    txtpremier.setText("1");
    Panneaux.setAccessibleName(Mot({"Plan", "143"}));
    const QString unit = " (" + Q(programme_.settings.Unite).trimmed() + ")";
    PrepareChoice(Panneaux, {kColumns, 0, kTableLetters, kTableLines});
    Panneaux.setHorizontalHeaderLabels({Mot({"Panel", "133"}), Mot({"Plan", "153"}) + unit,
                                        Mot({"Plan", "131"}), Mot({"Plan", "129"}) + unit,
                                        Mot({"Plan", "154"})});
    cmdliste[kAjoute].setText(Mot({"Plan", "144"}));
    cmdliste[kRetire].setText(Mot({"Plan", "146"}));
    cmdliste[kMonte].setText(Mot({"Plan", "148"}));
    cmdliste[kDescend].setText(Mot({"Plan", "149"}));
    SetTip(cmdliste[kAjoute], programme_.Text({"Plan", "145"}));
    SetTip(cmdliste[kRetire], programme_.Text({"Plan", "147"}));
    SetTip(cmdliste[kMonte], programme_.Text({"Plan", "150"}));
    SetTip(cmdliste[kDescend], programme_.Text({"Plan", "151"}));
}

QLayout *frmaile::LayOutList() {
    auto *buttons = new QVBoxLayout;
    for (QPushButton &button : cmdliste) {
        buttons->addWidget(&button);
    }
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->addWidget(&Panneaux, 1);
    row->addLayout(buttons);
    return row;
}

void frmaile::LayOut() {
    PlainText({&lblavis, &lblenregistre});
    for (QLabel *label : {&lblavis, &lblenregistre}) {
        // Words that come and go, and long paths, break rather than widen the window.
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
        label->hide();
    }
    auto *file = new QHBoxLayout;
    MakeNameDisplay(txtfichier, kNameLetters);
    SetCaption(Label1, txtfichier);
    file->addWidget(&Label1);
    file->addWidget(&txtfichier, 1);
    file->addWidget(&cmdouvrir);
    file->addWidget(&cmdenregistrer);
    auto *first = new QHBoxLayout;
    txtpremier.setMaxLength(kNumberDigits);
    txtpremier.setFixedWidth(
        txtpremier.fontMetrics().horizontalAdvance(QString(kNumberDigits, '0')) +
        4 * txtpremier.fontMetrics().averageCharWidth());
    SetCaption(Label2, txtpremier);
    first->addWidget(&Label2);
    first->addWidget(&txtpremier);
    first->addStretch();
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(file);
    rows->addLayout(LayOutList(), 1);
    rows->addLayout(first);
    rows->addWidget(&Onglets, 3);
    rows->addWidget(&lblavis);
    rows->addWidget(&lblenregistre);
    PoseBoutons(*rows, {SharedWord::close, SharedWord::help});
    // Return in a field must not write files.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
    }
    cmdliste[kAjoute].setFocus();
}

void frmaile::Connect() {
    attente_.setSingleShot(true);
    attente_.setInterval(kRestMs);
    connect(&attente_, &QTimer::timeout, this,
            [this] { Garde(" frmaile/Refait", [this] { Refait(); }); });
    connect(&txtpremier, &QLineEdit::textChanged, this, [this] { attente_.start(); });
    connect(&Panneaux, &QTableWidget::itemSelectionChanged, this, [this] { MontreBoutons(); });
    Onglets.DemandeAvant([this] { return Pret(); }, [this] { return NomDesSorties(); });
    connect(&Onglets, &PlanTabs::Enregistre, this, [this](const QString &words) {
        lblenregistre.setText(words);
        lblenregistre.show();
    });
    const auto click = [this](QPushButton &button, const char *label, auto action) {
        connect(&button, &QPushButton::clicked, this,
                [this, label, action] { Garde(label, action); });
    };
    click(cmdouvrir, " frmaile/cmdouvrir", [this] { cmdouvrir_Click(); });
    click(cmdenregistrer, " frmaile/cmdenregistrer", [this] { cmdenregistrer_Click(); });
    click(cmdliste[kAjoute], " frmaile/cmdajouter", [this] { cmdajouter_Click(); });
    click(cmdliste[kRetire], " frmaile/cmdretirer", [this] { cmdretirer_Click(); });
    click(cmdliste[kMonte], " frmaile/cmdmonter", [this] { Deplace(-1); });
    click(cmdliste[kDescend], " frmaile/cmddescendre", [this] { Deplace(1); });
}

} // namespace loftwing
