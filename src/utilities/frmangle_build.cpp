// Names and places of the oblique rib window's controls.

#include "utilities/frmangle.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmangle::NameAll() {
    NameControls({{&txtprofil, "txtprofil"}, {&cmdouvrir, "cmdouvrir"}, {&Picture1, "Picture1"}});
    NameControls(Option1, "Option1");
    NameControls(Label1, "Label1");
    NameControls(Label2, "Label2");
    NameControls(Text1, "Text1");
}

void frmangle::LayOut() {
    auto *grid = new QGridLayout;
    const QString unit = Q(programme_.settings.Unite).trimmed();
    grid->addWidget(&Option1[0], 0, 1, 1, 3);
    grid->addWidget(&Option1[1], 1, 1, 1, 3);
    AddMeasure(*grid, 2, Picture1,
               {ObliqueSketch::kExterne, Label1[0], Text1[kChampExterne], unit});
    AddMeasure(*grid, 3, Picture1,
               {ObliqueSketch::kInterne, Label1[1], Text1[kChampInterne], unit});
    AddMeasure(*grid, 4, Picture1, {ObliqueSketch::kAngle, Label1[2], Text1[kChampAngle], "°"});
    grid->addWidget(&Label1[3], 5, 1);
    grid->addWidget(&txtprofil, 5, 2);
    grid->addWidget(&cmdouvrir, 5, 3);
    grid->setRowStretch(6, 1);
    MakeNameDisplay(txtprofil, kNameLetters);

    auto *panel = new QVBoxLayout;
    panel->addWidget(&Label2[0], 0, Qt::AlignHCenter);
    panel->addWidget(&Picture1, 1);
    panel->addWidget(&Label2[1], 0, Qt::AlignHCenter);
    auto *above = new QHBoxLayout;
    above->addLayout(grid);
    above->addLayout(panel, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above);
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help});
    PlainText({&Label1[3], &Label2[0], &Label2[1]});
}

} // namespace loftwing
