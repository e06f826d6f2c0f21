// Names and places of the inclined rib window's controls.

#include "utilities/frminclinaison.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void frminclinaison::NameAll() {
    NameControls({{&Label1, "Label1"},
                  {&txtprofil, "txtprofil"},
                  {&cmdouvrir, "cmdouvrir"},
                  {&Label2, "Label2"},
                  {&Text1, "Text1"},
                  {&Label3, "Label3"},
                  {&Label4, "Label4"},
                  {&Picture1, "Picture1"}});
}

void frminclinaison::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label1, 0, 1);
    grid->addWidget(&txtprofil, 0, 2);
    grid->addWidget(&cmdouvrir, 0, 3);
    AddMeasure(*grid, 1, Picture1, {InclineSketch::kAngle, Label2, Text1, "°"});
    grid->addWidget(MeasureLetter(InclineSketch::kOriginal), 2, 0);
    grid->addWidget(&Label3, 2, 1);
    grid->addWidget(MeasureLetter(InclineSketch::kACalculer), 3, 0);
    grid->addWidget(&Label4, 3, 1);
    grid->setRowStretch(4, 1);
    PlainText({&Label1, &Label3, &Label4});
    MakeNameDisplay(txtprofil, kNameLetters);
    auto *above = new QHBoxLayout;
    above->addLayout(grid);
    above->addWidget(&Picture1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above);
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help});
}

} // namespace loftwing
