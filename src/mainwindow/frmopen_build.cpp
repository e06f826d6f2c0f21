// Names and places of the airfoil picker's controls.

#include "mainwindow/frmopen.h"

#include "platform/qt_focus_mark.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr double kShareOfScreen = 0.9;

} // namespace

void frmopen::NameAll() {
    NameControls({{&txtchemin, "txtchemin"},
                  {&lbldossiers, "lbldossiers"},
                  {&Dir1, "Dir1"},
                  {&lblfichiers, "lblfichiers"},
                  {&txtcherche, "txtcherche"},
                  {&File1, "File1"},
                  {&lbltype, "lbltype"},
                  {&Combo1, "Combo1"},
                  {&lblfichier, "lblfichier"},
                  {&nomfile1, "nomfile1"},
                  {&lbldossier, "lbldossier"},
                  {&Lbchemin, "Lbchemin"},
                  {&Surface, "Surface"},
                  {&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&cmdimporter, "cmdimporter"},
                  {&memP1, "memP1"},
                  {&LbMem, "LbMem"},
                  {&cmdouvrir, "cmdouvrir"}});
}

QLayout *frmopen::LayOutLists() {
    auto *type = new QHBoxLayout;
    type->addWidget(&lbltype);
    type->addWidget(&Combo1, 1);
    auto *chosen = new QFormLayout;
    chosen->addRow(&lbldossier, &Lbchemin);
    chosen->addRow(&lblfichier, &nomfile1);
    auto *column = new QVBoxLayout;
    column->addWidget(&txtchemin);
    column->addWidget(&lbldossiers);
    column->addWidget(&Dir1, 2);
    column->addWidget(&lblfichiers);
    column->addWidget(&txtcherche);
    column->addWidget(&File1, 3);
    column->addLayout(type);
    column->addLayout(chosen);
    return column;
}

QLayout *frmopen::LayOutPreview() {
    auto *memory = new QHBoxLayout;
    memory->addWidget(&memP1);
    memory->addWidget(&LbMem, 1);
    auto *column = new QVBoxLayout;
    column->addWidget(&Surface, 1);
    column->addWidget(&Label1);
    column->addWidget(&Label2);
    column->addWidget(&Label3);
    column->addLayout(memory);
    return column;
}

void frmopen::LayOut() {
    auto *upper = new QHBoxLayout;
    upper->addLayout(LayOutLists(), 1);
    upper->addLayout(LayOutPreview(), 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(upper, 1);
    PoseBoutons(*rows, {&cmdouvrir, SharedWord::cancel, SharedWord::help}, &cmdimporter);
    cmdimporter.setAutoDefault(false);
    txtcherche.setClearButtonEnabled(true);
    for (QListWidget *list : {&Dir1, &File1}) {
        FocusMark::On(*list); // an empty one has no line that could show it
    }
    setTabOrder(&memP1, &cmdimporter);
    setTabOrder(&cmdimporter, &cmdouvrir);
    cmdouvrir.setDefault(true);
    File1.setFocus();
    // The preview shrinks with the height, so it may have nearly all of a small screen.
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
}

} // namespace loftwing
