// Names and places of the controls for the template defaults.

#include "persist/frmdefaut.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kEcart = 8;                               // pixels that set the units off
constexpr const char *kLongueurUsuelle = "-12.31/64--"; // a field has room for this
constexpr int kUsualLetters = 45;                       // room for the path of a folder

} // namespace

void frmdefaut::NameAll() {
    NameControls({{&Frame5, "Frame5"},
                  {&Frame3, "Frame3"},
                  {&Frame4, "Frame4"},
                  {&inches, "inches"},
                  {&mm, "mm"},
                  {&txtdefprof, "txtdefprof"},
                  {&cmdrecherche, "cmdrecherche"},
                  {&txtdefprofevol, "txtdefprofevol"},
                  {&cmdrechercheevol, "cmdrechercheevol"}});
    NameControls(Label2, "Label2");
    NameControls(txtdef, "txtdef");
    NameControls(Label1, "Label1");
}

void frmdefaut::LayOut() {
    auto *rows = new QVBoxLayout(this);
    auto *lengths = new QGridLayout;
    for (int i = 0; i < kChampsDefaut; ++i) {
        lengths->addWidget(&At(Label2, i), i, 0);
        lengths->addWidget(&At(txtdef, i), i, 1);
        lengths->addWidget(&At(Label1, i), i, 2);
        At(txtdef, i).setMinimumWidth(fontMetrics().horizontalAdvance(kLongueurUsuelle));
        SetCaption(At(Label2, i), At(txtdef, i));
        PlainText({&At(Label1, i)});
    }
    auto *units = new QVBoxLayout(&Frame5);
    units->addWidget(&inches);
    units->addWidget(&mm);
    auto *right = new QVBoxLayout;
    right->addWidget(&Frame5);
    right->addStretch();
    auto *above = new QHBoxLayout;
    above->addLayout(lengths, 1);
    above->addSpacing(kEcart);
    above->addLayout(right);
    rows->addLayout(above);
    LayOutFolder(Frame3, txtdefprof, cmdrecherche);
    LayOutFolder(Frame4, txtdefprofevol, cmdrechercheevol);
    rows->addWidget(&Frame3);
    rows->addWidget(&Frame4);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help});
}

void frmdefaut::LayOutFolder(QGroupBox &frame, NumericField &field, QPushButton &browse) {
    auto *row = new QHBoxLayout(&frame);
    row->addWidget(&field, 1);
    row->addWidget(&browse);
    // A path takes every character.
    field.setInputMethodHints(Qt::ImhNoPredictiveText);
    field.setMinimumWidth(fontMetrics().averageCharWidth() * kUsualLetters);
}

} // namespace loftwing
