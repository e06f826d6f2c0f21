// Names and places of the controls for a set in equal steps.

#include "utilities/frmribevol.h"

#include <QHBoxLayout>

namespace loftwing {

void frmribevol::NameAll() {
    NameControls({{&Frame3, "Frame3"}, {&Label3, "Label3"}, {&txtnervI, "txtnervI"}});
    NameControls(Label4, "Label4");
}

void frmribevol::LayOut() {
    auto *ends = new QHBoxLayout;
    for (const std::size_t end : {0U, 1U}) {
        const auto index = static_cast<long>(end);
        QLabel &unit = At(Label4, index);
        PlainText({&unit});
        Grille(end).addWidget(&unit, 1, 2);
        ends->addWidget(&At(Frame1, index), 1);
    }
    auto *count = new QHBoxLayout(&Frame3);
    count->addWidget(&Label3);
    count->addWidget(&txtnervI);
    count->addStretch();
    SetCaption(Label3, txtnervI);
    Elargit(txtnervI);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(ends);
    rows->addWidget(&Frame3);
    PoseBas(*rows);
}

} // namespace loftwing
