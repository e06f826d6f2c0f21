// Names and places of the template window's controls.

#include "features/frmbloc.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmbloc::NameAll() {
    NameControls({{&LabelPointHaut, "LabelPointHaut"},
                  {&lblpointhaut, "lblpointhaut"},
                  {&LabelPointBas, "LabelPointBas"},
                  {&lblpointbas, "lblpointbas"},
                  {&LabelLong, "LabelLong"},
                  {&lbllongb, "lbllongb"},
                  {&LabelQueue, "LabelQueue"},
                  {&Picture1, "Picture1"}});
    NameControls(Label1, "Label1");
    NameControls(txt, "txt");
    NameControls(Optquebf, "Optquebf");
}

void frmbloc::LayOut() {
    auto *grid = new QGridLayout;
    LayOutMeasures(*grid);
    auto *above = new QHBoxLayout;
    above->addLayout(grid);
    above->addWidget(&Picture1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above);
    PoseBoutons(*rows, {SharedWord::apply, SharedWord::ok, SharedWord::cancel, SharedWord::help});
    PlainText({&LabelPointHaut, &lblpointhaut, &LabelPointBas, &lblpointbas, &LabelLong, &lbllongb,
               &LabelQueue});
}

void frmbloc::LayOutMeasures(QGridLayout &grid) {
    constexpr std::array<const char *, kChampsBloc> letters = {
        BlocSketch::kBas,     BlocSketch::kRampeBA, BlocSketch::kRampeBF,
        BlocSketch::kCoupeBF, BlocSketch::kHauteur, BlocSketch::kVrillage};
    const QString unit = Q(programme_.settings.Unite).trimmed();
    int row = 0;
    for (int i = 0; i < kChampsBloc; ++i) {
        const QString behind = i == kBlocVrillage ? "°" : unit;
        AddMeasure(grid, row++, Picture1, {At(letters, i), At(Label1, i), At(txt, i), behind});
    }
    auto *tail = new QHBoxLayout;
    tail->addWidget(&Optquebf[0]);
    tail->addWidget(&Optquebf[1]);
    tail->addStretch();
    grid.addWidget(&LabelQueue, row, 1);
    grid.addLayout(tail, row++, 2, 1, 2);
    grid.addWidget(MeasureLetter(BlocSketch::kLongueur), row, 0);
    for (const auto &[caption, value] :
         {std::pair{&LabelLong, &lbllongb}, std::pair{&LabelPointHaut, &lblpointhaut},
          std::pair{&LabelPointBas, &lblpointbas}}) {
        grid.addWidget(caption, row, 1);
        grid.addWidget(value, row++, 2, 1, 2);
    }
    grid.setRowStretch(row, 1);
}

} // namespace loftwing
