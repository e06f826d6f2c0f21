// Names and places of the controls of the window that offers unsaved ribs.

#include "mainwindow/frmsecours.h"

#include "platform/qt_focus_mark.h"

#include <QHeaderView>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kColumns = 3;
constexpr int kLines = 5;
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

void frmsecours::PrepareTable() {
    Ribs.setColumnCount(kColumns);
    Ribs.verticalHeader()->hide();
    Ribs.verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    Ribs.setCornerButtonEnabled(false);
    Ribs.setTabKeyNavigation(false);
    Ribs.setWordWrap(false);
    Ribs.setShowGrid(false);
    Ribs.setSelectionBehavior(QAbstractItemView::SelectRows);
    Ribs.setSelectionMode(QAbstractItemView::SingleSelection);
    Ribs.setEditTriggers(QAbstractItemView::NoEditTriggers);
    QHeaderView &header = *Ribs.horizontalHeader();
    header.setSectionsClickable(false);
    header.setHighlightSections(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch); // names may be long
    Ribs.setMinimumSize(fontMetrics().averageCharWidth() * kLetters,
                        fontMetrics().lineSpacing() * kLines * 3 / 2);
    FocusMark::On(Ribs);
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
