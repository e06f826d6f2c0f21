// Names and places of the controls of the sheets' window.

#include "mainwindow/frmplanches.h"

#include <QGridLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr double kShareOfScreen = 0.9;
constexpr int kDigits = 8;   // of a length
constexpr int kRestMs = 150; // after the last key
constexpr int kLines = 4;    // of sheets

} // namespace

void frmplanches::NameAll() {
    NameControls({{&Picture1, "Picture1"},
                  {&Planches, "Planches"},
                  {&Label1, "Label1"},
                  {&txtformats, "txtformats"},
                  {&Avancement, "Avancement"},
                  {&cmdarreter, "cmdarreter"},
                  {&lblavis, "lblavis"},
                  {&lblenregistre, "lblenregistre"},
                  {&cmdenregistrer, "cmdenregistrer"}});
    NameControls(Label2, "Label2");
    NameControls(txt, "txt");
    NameControls(Label3, "Label3");
    NameControls(chk, "chk");
}

void frmplanches::LayOut() {
    PlainText({&lblavis, &lblenregistre});
    for (QLabel *label : {&lblavis, &lblenregistre}) {
        // Words that come and go, and long paths, break rather than widen the window.
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    }
    lblenregistre.hide();
    Planches.setFixedHeight(Planches.fontMetrics().lineSpacing() * (kLines + 1));
    SetCaption(Label1, txtformats);
    auto *sizes = new QHBoxLayout;
    sizes->addWidget(&Label1);
    sizes->addWidget(&txtformats, 1);
    auto *choices = new QGridLayout;
    constexpr int kColumns = 3; // of caption, field and unit
    for (int i = 0; i < kChamps; ++i) {
        NumericField &field = At(txt, i);
        field.setFixedWidth(field.fontMetrics().horizontalAdvance(QString(kDigits, '0')) +
                            2 * field.fontMetrics().averageCharWidth());
        SetCaption(At(Label2, i), field);
        choices->addWidget(&At(Label2, i), i / 2, i % 2 * kColumns);
        choices->addWidget(&field, i / 2, i % 2 * kColumns + 1);
        choices->addWidget(&At(Label3, i), i / 2, i % 2 * kColumns + 2);
        if (i % 2 == 1) { // the row's boxes behind its fields
            choices->addWidget(&At(chk, i - 1), i / 2, 2 * kColumns);
            choices->addWidget(&At(chk, i), i / 2, 2 * kColumns + 1);
        }
    }
    choices->setHorizontalSpacing(2 * fontMetrics().averageCharWidth());
    choices->setColumnStretch(2 * kColumns + 2, 1);
    auto *work = new QHBoxLayout;
    work->addWidget(&Avancement, 1);
    work->addWidget(&cmdarreter);
    GardePlace(Avancement);
    GardePlace(cmdarreter);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Picture1, 1);
    rows->addWidget(&Planches);
    rows->addWidget(&lblavis);
    rows->addLayout(sizes);
    rows->addLayout(choices);
    rows->addLayout(work);
    rows->addWidget(&lblenregistre);
    PoseBoutons(*rows, {&cmdenregistrer, SharedWord::close, SharedWord::help});
    cmdarreter.setAutoDefault(false);
    cmdenregistrer.setDefault(true);
    SelectField(txtformats);
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
}

void frmplanches::Connect() {
    attente_.setSingleShot(true);
    attente_.setInterval(kRestMs);
    connect(&attente_, &QTimer::timeout, this,
            [this] { Garde(" frmplanches/Refait", [this] { Refait(); }); });
    connect(&txtformats, &QLineEdit::textChanged, this, &frmplanches::Change);
    for (NumericField &field : txt) {
        connect(&field, &QLineEdit::textChanged, this, &frmplanches::Change);
    }
    for (QCheckBox *box : {chk.data(), &chk[1], &chk[2]}) { // the fourth one changes no sheet
        connect(box, &QCheckBox::toggled, this, &frmplanches::Change);
    }
    connect(&Planches, &QListWidget::currentRowChanged, this, &frmplanches::MontrePlanche);
    connect(&panneau_en_cours_, &PanneauEnCours::Fini, this, [this](const PanneauFait &fait) {
        Garde(" frmplanches/PrendPanneau", [&] { PrendPanneau(fait); });
    });
    connect(&imbrication_, &ImbricationEnCours::Avance, &Avancement, &QProgressBar::setValue);
    connect(&imbrication_, &ImbricationEnCours::Fini, this,
            [this](const ImbricationEnCours::Resultat &resultat) {
                Garde(" frmplanches/PrendPlanches", [&] { PrendPlanches(resultat); });
            });
    connect(&cmdarreter, &QPushButton::clicked, this,
            [this] { Garde(" frmplanches/cmdarreter", [this] { cmdarreter_Click(); }); });
    connect(&cmdenregistrer, &QPushButton::clicked, this,
            [this] { Garde(" frmplanches/cmdenregistrer", [this] { cmdenregistrer_Click(); }); });
}

} // namespace loftwing
