// Names and places of the dihedral calculator's controls.

#include "utilities/frmdiedre.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmdiedre::NameAll() {
    NameControls({{&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&Image1, "Image1"},
                  {&cmdcalcul, "cmdcalcul"}});
    NameControls(txt, "txt");
}

void frmdiedre::LayOut() {
    auto *grid = new QGridLayout;
    const QString unit = Q(programme_.settings.Unite).trimmed();
    AddMeasure(*grid, 0, Image1, {DiedreSketch::kAngle, Label1, txt[kDiedreAngle], "°"});
    AddMeasure(*grid, 1, Image1, {DiedreSketch::kLongueur, Label2, txt[kDiedreLongueur], unit});
    AddMeasure(*grid, 2, Image1, {DiedreSketch::kHauteur, Label3, txt[kDiedreHauteur], unit});
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Image1, 1);
    rows->addLayout(grid);
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::help}, &cmdcalcul);
}

} // namespace loftwing
