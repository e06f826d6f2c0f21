// Names and places of the controls of the panel's window.

#include "mainwindow/frmpanneau.h"

#include "platform/qt_focus_mark.h"

#include <QGridLayout>
#include <QHeaderView>
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

void PrepareTable(QTableWidget &table, int columns, int stretched) {
    table.setColumnCount(columns);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().lineSpacing() * 3 / 2);
    table.setCornerButtonEnabled(false);
    table.setTabKeyNavigation(false);
    table.setWordWrap(false);
    QHeaderView &header = *table.horizontalHeader();
    header.setSectionsClickable(false);
    header.setHighlightSections(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(stretched, QHeaderView::Stretch);
    table.setMinimumSize(table.fontMetrics().averageCharWidth() * kTableLetters,
                         table.fontMetrics().lineSpacing() * kTableLines);
    FocusMark::On(table); // an empty one has no line that could show it
}

} // namespace

void frmpanneau::NameAll() {
    NameControls({{&lblecart, "lblecart"},
                  {&Plan, "Plan"},
                  {&Nervures, "Nervures"},
                  {&Portees, "Portees"},
                  {&Picture1, "Picture1"},
                  {&lblavis, "lblavis"},
                  {&lblenregistre, "lblenregistre"},
                  {&cmdnervures, "cmdnervures"}});
    NameControls(Label1, "Label1");
    NameControls(txtbout, "txtbout");
    NameControls(cmdchoisir, "cmdchoisir");
    NameControls(cmdfenetre, "cmdfenetre");
    NameControls(Label2, "Label2");
    NameControls(txt, "txt");
    NameControls(Label3, "Label3");
}

void frmpanneau::PrepareTables() {
    PrepareTable(Nervures, kRibColumns, kRibColumns - 1);
    Nervures.setSelectionBehavior(QAbstractItemView::SelectRows);
    Nervures.setSelectionMode(QAbstractItemView::SingleSelection);
    Nervures.setEditTriggers(QAbstractItemView::NoEditTriggers);
    PrepareTable(Portees, kRangeColumns, 0);
    Portees.setSelectionMode(QAbstractItemView::SingleSelection);
    Portees.setEditTriggers(QAbstractItemView::AllEditTriggers &
                            ~QAbstractItemView::EditTriggers(QAbstractItemView::CurrentChanged));
}

void frmpanneau::LayOut() {
    PlainText({&Label1[0], &Label1[1], &lblecart, &lblavis, &lblenregistre});
    for (QLabel *label : {&lblavis, &lblenregistre}) {
        // Words that come and go, and long paths, break rather than widen the window.
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    }
    auto *ends = new QGridLayout;
    for (int i = 0; i < kBouts; ++i) {
        MakeNameDisplay(At(txtbout, i), kNameLetters);
        SetCaption(At(Label1, i), At(txtbout, i));
        ends->addWidget(&At(Label1, i), i, 0);
        ends->addWidget(&At(txtbout, i), i, 1);
        ends->addWidget(&At(cmdchoisir, i), i, 2);
        ends->addWidget(&At(cmdfenetre, i), i, 3);
    }
    ends->setColumnStretch(1, 1);
    auto *spacing = new QGridLayout;
    constexpr int kColumns = 3; // of caption, field and unit
    for (int i = 0; i < kChamps; ++i) {
        NumericField &field = At(txt, i);
        const bool length = i == kEpaisseur || i == kLongueur;
        const QString widest(length ? kDigits : kNumberDigits, '0');
        field.setFixedWidth(field.fontMetrics().horizontalAdvance(widest) +
                            4 * field.fontMetrics().averageCharWidth());
        SetCaption(At(Label2, i), field);
        spacing->addWidget(&At(Label2, i), i / 2, i % 2 * kColumns);
        spacing->addWidget(&field, i / 2, i % 2 * kColumns + 1);
        if (length) {
            spacing->addWidget(&At(Label3, i / 2), i / 2, i % 2 * kColumns + 2);
        } else {
            field.setMaxLength(kNumberDigits);
        }
    }
    spacing->setHorizontalSpacing(2 * fontMetrics().averageCharWidth());
    spacing->addWidget(&lblecart, 1, 2 * kColumns);
    spacing->setColumnStretch(2 * kColumns, 1);
    auto *tables = new QHBoxLayout;
    tables->addWidget(&Nervures, 3);
    tables->addWidget(&Portees, 2);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(ends);
    rows->addLayout(spacing);
    rows->addWidget(&Plan, 2);
    rows->addLayout(tables, 2);
    rows->addWidget(&Picture1, 1);
    rows->addWidget(&lblavis);
    rows->addWidget(&lblenregistre);
    PoseBoutons(*rows, {&cmdnervures, SharedWord::close, SharedWord::help});
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
    connect(&cmdnervures, &QPushButton::clicked, this,
            [this] { Garde(" frmpanneau/cmdnervures", [this] { cmdnervures_Click(); }); });
}

} // namespace loftwing
