// Names and places of the controls for one dimension of a rib.

#include "mainwindow/frmInput.h"

#include <QVBoxLayout>

namespace loftwing {

void frmInput::NameAll() {
    NameControls({{&msgtxt, "msgtxt"}, {&infotxt, "infotxt"}});
}

void frmInput::LayOut() {
    SetCaption(msgtxt, infotxt);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&msgtxt);
    rows->addWidget(&infotxt);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help});
}

} // namespace loftwing
