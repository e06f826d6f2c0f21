// Names and places of the cutting window's controls.

#include "mainwindow/frmdecoupe.h"

#include <QGridLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr double kShareOfScreen = 0.9;
constexpr int kDigits = 8; // of a width

} // namespace

void frmdecoupe::NameAll() {
    NameControls({{&Picture1, "Picture1"},
                  {&Label1, "Label1"},
                  {&txtsaignee, "txtsaignee"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&txtfil, "txtfil"},
                  {&Label4, "Label4"},
                  {&Frame1, "Frame1"},
                  {&txtetiquette, "txtetiquette"},
                  {&chkpolylignes, "chkpolylignes"},
                  {&lblmesures, "lblmesures"},
                  {&lblavis, "lblavis"},
                  {&lblenregistre, "lblenregistre"},
                  {&cmdenregistrer, "cmdenregistrer"}});
    NameControls(chkmarque, "chkmarque");
}

void frmdecoupe::LayOut() {
    PlainText({&Label1, &Label2, &Label3, &Label4, &lblmesures, &lblavis, &lblenregistre});
    for (QLabel *label : {&lblmesures, &lblavis, &lblenregistre}) {
        // Words that come and go, and long paths, break rather than widen the window.
        label->setWordWrap(true);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    }
    const auto width = [](QLabel &caption, NumericField &field, QLabel &unit) {
        SetCaption(caption, field);
        field.setMaximumWidth(field.fontMetrics().horizontalAdvance(QString(kDigits, '0')) +
                              2 * field.fontMetrics().averageCharWidth());
        auto *row = new QHBoxLayout;
        row->addWidget(&caption);
        row->addWidget(&field);
        row->addWidget(&unit);
        row->addStretch();
        return row;
    };
    auto *kerf = width(Label1, txtsaignee, Label2);
    kerf->addWidget(&chkpolylignes);
    auto *wire = width(Label3, txtfil, Label4);
    auto *marks = new QGridLayout(&Frame1);
    for (int i = 0; i < kEtiquette; ++i) {
        marks->addWidget(&At(chkmarque, i), i / 2, i % 2);
    }
    marks->addWidget(&chkmarque[kEtiquette], 2, 0);
    marks->addWidget(&txtetiquette, 2, 1);
    marks->setColumnStretch(1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Picture1, 1);
    rows->addWidget(&lblmesures);
    rows->addWidget(&lblavis);
    rows->addLayout(kerf);
    rows->addLayout(wire);
    rows->addWidget(&Frame1);
    rows->addWidget(&lblenregistre);
    PoseBoutons(*rows, {&cmdenregistrer, SharedWord::close, SharedWord::help});
    cmdenregistrer.setDefault(true);
    SelectField(txtsaignee);
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
}

void frmdecoupe::Connect() {
    const auto refait = [this] { Garde(" frmdecoupe/Refait", [this] { Refait(); }); };
    for (QLineEdit *field :
         std::initializer_list<QLineEdit *>{&txtsaignee, &txtfil, &txtetiquette}) {
        connect(field, &QLineEdit::textChanged, this, refait);
    }
    for (QCheckBox &box : chkmarque) {
        connect(&box, &QCheckBox::toggled, this, refait);
    }
    connect(&chkpolylignes, &QCheckBox::toggled, this, refait);
    connect(&cmdenregistrer, &QPushButton::clicked, this,
            [this] { Garde(" frmdecoupe/cmdenregistrer", [this] { cmdenregistrer_Click(); }); });
}

} // namespace loftwing
