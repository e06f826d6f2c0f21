// Names and places of the controls of the window that offers unsaved ribs.

#include "mainwindow/frmsecours.h"

#include "platform/qt_table.h"

#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kColumns = 3;
constexpr int kLines = 8;
constexpr int kLetters = 72;

} // namespace

void frmsecours::NameAll() {
    NameControls({{&lblrecit, "lblrecit"},
                  {&Ribs, "Ribs"},
                  {&Picture1, "Picture1"},
                  {&cmdsupprimer, "cmdsupprimer"},
                  {&cmdrestaurer, "cmdrestaurer"},
                  {&cmdplustard, "cmdplustard"}});
}

void frmsecours::PrepareRibs() {
    PrepareChoice(Ribs, {kColumns, 0, kLetters, kLines}); // names may be long
    Ribs.setShowGrid(false);
}

void frmsecours::LayOut() {
    PlainText({&lblrecit});
    lblrecit.setWordWrap(true);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&lblrecit);
    rows->addWidget(&Ribs);
    rows->addWidget(&Picture1, 1);
    PoseBoutons(*rows, {&cmdrestaurer, &cmdplustard, SharedWord::help}, &cmdsupprimer);
    cmdrestaurer.setDefault(true);
    Ribs.setFocus();
}

} // namespace loftwing
