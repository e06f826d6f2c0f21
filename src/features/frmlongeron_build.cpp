// Names and places of the spar window's controls.

#include "features/frmlongeron.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmlongeron::NameAll() {
    NameControls(
        {{&Frame3, "Frame3"}, {&Frame4, "Frame4"}, {&Frame5, "Frame5"}, {&Label4, "Label4"}});
    NameControls(Text1, "Text1");
    NameControls(OptLong, "OptLong");
    NameControls(Opte, "Opte");
    NameControls(Opti, "Opti");
}

void frmlongeron::LayOut() {
    LayOutDimensions(Label4);
    GardePlace(Text1[2]);
    LayOutOptions();
    LayOutCommandes();
    auto *entry = new QHBoxLayout;
    entry->addWidget(&Frame2, 1);
    entry->addWidget(&Frame6);
    auto *surfaces = new QHBoxLayout;
    surfaces->addWidget(&Frame4, 1);
    surfaces->addWidget(&Frame5, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(LigneListe());
    rows->addLayout(entry);
    rows->addWidget(&Frame3);
    rows->addLayout(surfaces);
    PoseBas(*rows);
    RegleTabulation({&OptLong[0], &OptLong[1], &OptLong[2], &OptLong[3], &Opte[0], &Opte[1],
                     &Opte[2], &Opti[0], &Opti[1], &Opti[2]});
}

void frmlongeron::LayOutOptions() {
    auto *kinds = new QGridLayout(&Frame3);
    for (int i = 0; i < static_cast<int>(OptLong.size()); ++i) {
        kinds->addWidget(&At(OptLong, i), i % 2, i / 2);
    }
    kinds->setColumnStretch(0, 1);
    kinds->setColumnStretch(1, 1);
    const auto column = [](QGroupBox &frame, auto &group) {
        auto *rows = new QVBoxLayout(&frame);
        for (QRadioButton &option : group) {
            rows->addWidget(&option);
        }
    };
    column(Frame4, Opte);
    column(Frame5, Opti);
}

} // namespace loftwing
