// Names and places of the V-notch window's controls.

#include "features/frmbacarre.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmbacarre::NameAll() {
    NameControls(Label1, "Label1");
    NameControls(infotxt, "infotxt");
    NameControls({{&Picture1, "Picture1"}});
}

void frmbacarre::LayOut() {
    constexpr std::array<const char *, kChampsCarre> letters = {CarreSketch::kCote, CarreSketch::kX,
                                                                CarreSketch::kY};
    const QString unit = Q(programme_.settings.Unite).trimmed();
    auto *grid = new QGridLayout;
    for (int i = 0; i < kChampsCarre; ++i) {
        AddMeasure(*grid, i, Picture1, {At(letters, i), At(Label1, i), At(infotxt, i), unit});
    }
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addWidget(&Picture1, 1); // below: the labels are long
    PoseBoutons(*rows, {SharedWord::apply, SharedWord::ok, SharedWord::cancel, SharedWord::help});
}

} // namespace loftwing
