// Names and places of the controls of the panel's window.

#include "mainwindow/frmpanneau.h"

#include "platform/qt_table.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kDigits = 8;       // of a length
constexpr int kNumberDigits = 4; // of ribs
constexpr int kRestMs = 150;     // after the last key
constexpr int kTableLines = 6;
constexpr int kTableLetters = 30;
constexpr int kRibColumns = 4;
constexpr int kRangeColumns = 3;

} // namespace

void frmpanneau::NameAll() {
    NameControls({{&lblecart, "lblecart"},
                  {&Plan, "Plan"},
                  {&Nervures, "Nervures"},
                  {&Portees, "Portees"},
                  {&Picture1, "Picture1"},
                  {&lblavis, "lblavis"},
                  {&lblenregistre, "lblenregistre"},
                  {&Label5, "Label5"},
                  {&txtfichier, "txtfichier"},
                  {&cmdouvrir, "cmdouvrir"},
                  {&cmdenregistrer, "cmdenregistrer"},
                  {&Ecarts, "Ecarts"},
                  {&Avancement, "Avancement"},
                  {&cmdnervures, "cmdnervures"},
                  {&cmdplanches, "cmdplanches"},
                  {&cmddessins, "cmddessins"},
                  {&cmdimprimer, "cmdimprimer"},
                  {&cmdaile, "cmdaile"}});
    NameControls(optecart, "optecart");
    NameControls(Label4, "Label4");
    NameControls(txtliste, "txtliste");
    NameControls(Label1, "Label1");
    NameControls(txtbout, "txtbout");
    NameControls(cmdchoisir, "cmdchoisir");
    NameControls(cmdfenetre, "cmdfenetre");
    NameControls(Label2, "Label2");
    NameControls(txt, "txt");
    NameControls(Label3, "Label3");
    NameControls(Label6, "Label6");
}

void frmpanneau::PrepareTables() {
    PrepareTable(Nervures, {kRibColumns, kRibColumns - 1, kTableLetters, kTableLines});
    Nervures.setSelectionBehavior(QAbstractItemView::SelectRows);
    Nervures.setSelectionMode(QAbstractItemView::SingleSelection);
    Nervures.setEditTriggers(QAbstractItemView::NoEditTriggers);
    PrepareTable(Portees, {kRangeColumns, 0, kTableLetters, kTableLines});
    Portees.setSelectionMode(QAbstractItemView::SingleSelection);
    Portees.setEditTriggers(QAbstractItemView::AllEditTriggers &
                            ~QAbstractItemView::EditTriggers(QAbstractItemView::CurrentChanged));
}

QLayout *frmpanneau::LayOutEnds() {
    auto *ends = new QGridLayout;
    MakeNameDisplay(txtfichier, kNameLetters);
    SetCaption(Label5, txtfichier);
    ends->addWidget(&Label5, 0, 0);
    ends->addWidget(&txtfichier, 0, 1);
    ends->addWidget(&cmdouvrir, 0, 2);
    ends->addWidget(&cmdenregistrer, 0, 3);
    for (int i = 0; i < kBouts; ++i) {
        MakeNameDisplay(At(txtbout, i), kNameLetters);
        SetCaption(At(Label1, i), At(txtbout, i));
        ends->addWidget(&At(Label1, i), i + 1, 0);
        ends->addWidget(&At(txtbout, i), i + 1, 1);
        ends->addWidget(&At(cmdchoisir, i), i + 1, 2);
        ends->addWidget(&At(cmdfenetre, i), i + 1, 3);
    }
    ends->setColumnStretch(1, 1);
    return ends;
}

/// What holds for both kinds of spacing, and which one it is.
QLayout *frmpanneau::LayOutChoice() {
    auto *choice = new QHBoxLayout;
    choice->addWidget(&Label2[kPremier]);
    choice->addWidget(&txt[kPremier]);
    for (QRadioButton &option : optecart) {
        choice->addSpacing(2 * fontMetrics().averageCharWidth());
        choice->addWidget(&option);
    }
    optecart[0].setChecked(true);
    choice->addStretch();
    choice->addWidget(&lblecart);
    return choice;
}

void frmpanneau::LayOutSpacing() {
    for (int i = 0; i < kChamps; ++i) {
        NumericField &field = At(txt, i);
        const bool count = i == kNombre || i == kPremier;
        const QString widest(count ? kNumberDigits : kDigits, '0');
        field.setFixedWidth(field.fontMetrics().horizontalAdvance(widest) +
                            4 * field.fontMetrics().averageCharWidth());
        SetCaption(At(Label2, i), field);
        if (count) {
            field.setMaxLength(kNumberDigits);
        }
    }
    auto *even = new QWidget;
    auto *row = new QHBoxLayout(even);
    row->setContentsMargins({});
    for (const int i : {kNombre, kEpaisseur, kLongueur}) {
        row->addWidget(&At(Label2, i));
        row->addWidget(&At(txt, i));
        if (i != kNombre) {
            row->addWidget(&At(Label3, i / 2));
        }
        row->addSpacing(2 * fontMetrics().averageCharWidth());
    }
    row->addStretch();
    auto *variable = new QWidget;
    auto *lists = new QGridLayout(variable);
    lists->setContentsMargins({});
    for (int i = 0; i < kListes; ++i) {
        SetCaption(At(Label4, i), At(txtliste, i));
        lists->addWidget(&At(Label4, i), i, 0);
        lists->addWidget(&At(txtliste, i), i, 1);
    }
    lists->setColumnStretch(1, 1);
    Ecarts.addWidget(even);
    Ecarts.addWidget(variable);
    Ecarts.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

/// What the panel's place in the wing and its list want, whichever the spacing.
QLayout *frmpanneau::LayOutPlace() {
    auto *row = new QHBoxLayout;
    for (int i = kRecul; i <= kDensite; ++i) {
        row->addWidget(&At(Label2, i));
        row->addWidget(&At(txt, i));
        row->addWidget(&At(Label6, i - kRecul));
        row->addSpacing(2 * fontMetrics().averageCharWidth());
    }
    row->addStretch();
    return row;
}

void frmpanneau::LayOut() {
    LayOutSpacing();
    PlainText({&Label1[0], &Label1[1], &lblecart, &lblavis, &lblenregistre});
    for (QLabel *label : {&lblavis, &lblenregistre}) {
        // Words that come and go, and long paths, break rather than widen the window.
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    }
    auto *tables = new QHBoxLayout;
    tables->addWidget(&Nervures, 3);
    tables->addWidget(&Portees, 2);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(LayOutEnds());
    rows->addLayout(LayOutChoice());
    rows->addWidget(&Ecarts);
    rows->addLayout(LayOutPlace());
    rows->addWidget(&Onglets, 3);
    Onglets.PoseApercu(Plan);
    rows->addLayout(tables, 2);
    rows->addWidget(&Picture1, 1);
    rows->addWidget(&lblavis);
    rows->addWidget(&lblenregistre);
    rows->addWidget(&Avancement);
    Avancement.hide();
    PoseBoutons(*rows,
                {&cmdnervures, &cmdplanches, &cmddessins, &cmdimprimer, SharedWord::close,
                 SharedWord::help},
                &cmdaile);
    // Return in a field must not write files.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setAutoDefault(false);
    }
    cmdchoisir[0].setFocus();
}

void frmpanneau::Connect() {
    attente_.setSingleShot(true);
    attente_.setInterval(kRestMs);
    connect(&attente_, &QTimer::timeout, this,
            [this] { Garde(" frmpanneau/Refait", [this] { Refait(); }); });
    for (NumericField &field : txt) {
        connect(&field, &QLineEdit::textChanged, this, [this] { attente_.start(); });
    }
    for (QLineEdit &list : txtliste) {
        connect(&list, &QLineEdit::textChanged, this, [this] { attente_.start(); });
    }
    connect(&optecart[kVariable], &QRadioButton::toggled, this, [this](bool variable) {
        Ecarts.setCurrentIndex(variable ? 1 : 0);
        attente_.start();
    });
    connect(&travail_, &PanneauEnCours::Avance, this, [this](int done, int total) {
        Avancement.setMaximum(total);
        Avancement.setValue(done);
        Avancement.show();
    });
    connect(&travail_, &PanneauEnCours::Fini, this, [this](const PanneauFait &fait) {
        Garde(" frmpanneau/PrendFait", [&] { PrendFait(fait); });
    });
    ConnectEach(cmdchoisir, &QPushButton::clicked, this, &frmpanneau::cmdchoisir_Click);
    ConnectEach(cmdfenetre, &QPushButton::clicked, this, &frmpanneau::cmdfenetre_Click);
    connect(&Nervures, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0) {
            rang_ = row;
            MontrePiece();
        }
    });
    connect(&Portees, &QTableWidget::itemChanged, this,
            [this](QTableWidgetItem *item) { Portees_Change(*item); });
    const auto click = [this](QPushButton &button, const char *label,
                              void (frmpanneau::*handler)()) {
        connect(&button, &QPushButton::clicked, this,
                [this, label, handler] { Garde(label, [this, handler] { (this->*handler)(); }); });
    };
    Onglets.DemandeAvant([this] { return Pret() && ConfirmeAvis(avis_); },
                         [this] { return NomDesSorties(); });
    // The room is the plan's while that is looked at.
    connect(&Onglets, &QTabWidget::currentChanged, &Picture1,
            [this](int tab) { Picture1.setVisible(tab == 0); });
    connect(&Onglets, &PlanTabs::Enregistre, this, [this](const QString &words) {
        lblenregistre.setText(words);
        lblenregistre.show();
    });
    click(cmdaile, " frmpanneau/cmdaile", &frmpanneau::cmdaile_Click);
    click(cmdouvrir, " frmpanneau/cmdouvrir", &frmpanneau::cmdouvrir_Click);
    click(cmdenregistrer, " frmpanneau/cmdenregistrer", &frmpanneau::cmdenregistrer_Click);
    click(cmdnervures, " frmpanneau/cmdnervures", &frmpanneau::cmdnervures_Click);
    click(cmdplanches, " frmpanneau/cmdplanches", &frmpanneau::cmdplanches_Click);
    click(cmddessins, " frmpanneau/cmddessins", &frmpanneau::cmddessins_Click);
    click(cmdimprimer, " frmpanneau/cmdimprimer", &frmpanneau::cmdimprimer_Click);
}

} // namespace loftwing
