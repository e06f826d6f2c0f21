// Names and places of the correction dialog's controls.

#include "output/frmcorrection.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmcorrection::NameAll() {
    NameControls(
        {{&Frame1, "Frame1"}, {&Label1, "Label1"}, {&Label4, "Label4"}, {&cmdaucune, "cmdaucune"}});
    NameControls(Label2, "Label2");
    NameControls(Text1, "Text1");
    NameControls(Label3, "Label3");
}

void frmcorrection::LayOut() {
    constexpr int kLargeur = 380; // of the explanation, which breaks into lines
    auto *grid = new QGridLayout(&Frame1);
    for (int i = 0; i < kChampsMesure; ++i) {
        grid->addWidget(&At(Label2, i), i, 0);
        grid->addWidget(&At(Text1, i), i, 1);
        grid->addWidget(&At(Label3, i), i, 2);
        SetCaption(At(Label2, i), At(Text1, i));
    }
    grid->setColumnStretch(3, 1);
    Label1.setWordWrap(true);
    Label1.setMinimumWidth(kLargeur);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Label1);
    rows->addWidget(&Frame1);
    rows->addWidget(&Label4);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help}, &cmdaucune);
    PlainText({&Label1, &Label4});
}

} // namespace loftwing
