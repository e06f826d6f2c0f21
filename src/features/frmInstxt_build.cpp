// Names and places of the controls for the line of text.

#include "features/frmInstxt.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

/// A field has room for this.
constexpr const char *kLongueurUsuelle = "-12.31/64--";

} // namespace

void frmInstxt::NameAll() {
    NameControls(Label1, "Label1");
    NameControls(infotxt, "infotxt");
    NameControls({{&Label2, "Label2"}, {&ComboTaille, "ComboTaille"}});
}

void frmInstxt::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label1[kTexte], 0, 0, 1, 2);
    grid->addWidget(&infotxt[kTexte], 1, 0, 1, 2);
    for (const int index : {kPositionX, kPositionY}) {
        grid->addWidget(&At(Label1, index), index + 1, 0);
        grid->addWidget(&At(infotxt, index), index + 1, 1);
        At(infotxt, index).setMinimumWidth(fontMetrics().horizontalAdvance(kLongueurUsuelle));
    }
    grid->addWidget(&Label2, 4, 0);
    grid->addWidget(&ComboTaille, 4, 1);
    grid->setColumnStretch(0, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::apply, SharedWord::ok, SharedWord::cancel, SharedWord::help});
    for (int i = 0; i < static_cast<int>(Label1.size()); ++i) {
        SetCaption(At(Label1, i), At(infotxt, i));
    }
    Label2.setBuddy(&ComboTaille);
}

} // namespace loftwing
