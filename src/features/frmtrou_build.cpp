// Names and places of the hole window's controls.

#include "features/frmtrou.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <vector>

namespace loftwing {

void frmtrou::NameAll() {
    NameControls({{&Frame3, "Frame3"},
                  {&Label4, "Label4"},
                  {&Label5, "Label5"},
                  {&Text2, "Text2"},
                  {&Chkcentr, "Chkcentr"}});
    NameControls(Text1, "Text1");
    NameControls(OptTrouRec, "OptTrouRec");
}

void frmtrou::LayOut() {
    auto *middle = new QHBoxLayout;
    middle->addWidget(&Chkcentr);
    middle->addWidget(&Label4, 1);
    LayOutDimensions(Label5)->addLayout(middle, 5, 0, 1, 3);
    for (QWidget *of_rectangle : std::initializer_list<QWidget *>{&Label3, &Text1[2], &Label6[1]}) {
        GardePlace(*of_rectangle);
    }
    LayOutCommandes();
    auto *kinds = new QVBoxLayout(&Frame3);
    for (QRadioButton &kind : OptTrouRec) {
        kinds->addWidget(&kind);
    }
    auto *beside = new QVBoxLayout;
    beside->addWidget(&Frame6, 1);
    beside->addWidget(&Frame3);
    auto *entry = new QHBoxLayout;
    entry->addWidget(&Frame2, 1);
    entry->addLayout(beside);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(LigneListe());
    rows->addLayout(entry);
    PoseBas(*rows);
    std::vector<QWidget *> order = {&Chkcentr};
    for (QRadioButton &kind : OptTrouRec) {
        order.push_back(&kind);
    }
    RegleTabulation(order);
}

} // namespace loftwing
