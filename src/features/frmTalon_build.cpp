// Names and places of the heel window's controls.

#include "features/frmTalon.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmTalon::NameAll() {
    NameControls({{&LabelOpt, "LabelOpt"},
                  {&LabelHaut, "LabelHaut"},
                  {&LabelAvant, "LabelAvant"},
                  {&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&LabelBA, "LabelBA"},
                  {&LabelBF, "LabelBF"},
                  {&LabelLong, "LabelLong"},
                  {&lbllongb, "lbllongb"},
                  {&Picture1, "Picture1"}});
    NameControls(OptTalon, "OptTalon");
    NameControls(txt, "txt");
}

void frmTalon::LayOut() {
    auto *grid = new QGridLayout;
    LayOutHeight(*grid);
    const QString unit = Q(programme_.settings.Unite).trimmed();
    AddMeasure(*grid, 3, Picture1, {TalonSketch::kMargeBA, LabelBA, txt[kTalonMargeBA], unit});
    AddMeasure(*grid, 4, Picture1, {TalonSketch::kMargeBF, LabelBF, txt[kTalonMargeBF], unit});
    grid->addWidget(MeasureLetter(QString(TalonSketch::kMargeBA) + " + " + TalonSketch::kMargeBF),
                    5, 0);
    grid->addWidget(&LabelLong, 5, 1);
    grid->addWidget(&lbllongb, 5, 2, 1, 2);
    AddMeasure(*grid, 6, Picture1, {TalonSketch::kVrillage, Label1, txt[kTalonVrillage], "°"});
    grid->setRowStretch(7, 1);
    auto *above = new QHBoxLayout;
    above->addLayout(grid);
    above->addWidget(&Picture1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above);
    PoseBoutons(*rows, {SharedWord::apply, SharedWord::ok, SharedWord::cancel, SharedWord::help});
    PlainText({&LabelOpt, &LabelHaut, &LabelAvant, &Label2, &Label3, &LabelLong, &lbllongb});
}

/// The side and the height, whose two fields share one place.
void frmTalon::LayOutHeight(QGridLayout &grid) {
    auto *options = new QHBoxLayout;
    options->addWidget(&OptTalon[0]);
    options->addWidget(&OptTalon[1]);
    options->addStretch();
    grid.addWidget(&LabelOpt, 0, 1);
    grid.addLayout(options, 0, 2, 1, 2);
    const QString unit = Q(programme_.settings.Unite).trimmed();
    AddMeasure(grid, 1, Picture1, {TalonSketch::kHauteur, LabelHaut, txt[kTalonIntra], unit});
    grid.addWidget(&txt[kTalonExtra], 1, 2);
    Picture1.Follow(txt[kTalonExtra], TalonSketch::kHauteur);
    grid.addWidget(&LabelAvant, 2, 1);
    grid.addWidget(&Label2, 2, 2, 1, 2);
    grid.addWidget(&Label3, 2, 2, 1, 2);
}

} // namespace loftwing
