// Names and places of the controls for a set with variable spacing.

#include "utilities/frmribevol2.h"

#include <QHBoxLayout>

namespace loftwing {

namespace {

constexpr int kMarge = 4; // pixels around the number of a gap

} // namespace

void frmribevol2::NameAll() {
    NameControls({{&LblEprNervureCMax, "LblEprNervureCMax"},
                  {&LblEprNervureCmin, "LblEprNervureCmin"},
                  {&FrameNervInterm, "FrameNervInterm"},
                  {&Label5, "Label5"},
                  {&FrameDimensions, "FrameDimensions"},
                  {&LblEprNervure, "LblEprNervure"},
                  {&TextEprNevure, "TextEprNevure"},
                  {&lblstep, "lblstep"},
                  {&TextEcartNevure, "TextEcartNevure"},
                  {&LblLongTot, "LblLongTot"},
                  {&LblLongTotAffich, "LblLongTotAffich"}});
    NameControl(txtEpR0, "txtEpR", 0);
    NameControl(txtEpR13, "txtEpR", kNervureMin);
    NameControls(Label3, "Label3");
    for (int k = 1; k <= kNervureMin; ++k) {
        NameControl(At(LblNoNervInterm, k - 1), "LblNoNervInterm", k);
    }
}

void frmribevol2::LayOut() {
    auto *rows = new QVBoxLayout(this);
    LayOutEnds(*rows);
    LayOutGaps();
    LayOutDimensions();
    rows->addWidget(&FrameNervInterm);
    rows->addWidget(&FrameDimensions);
    auto *total = new QHBoxLayout;
    total->addWidget(&LblLongTot);
    total->addWidget(&LblLongTotAffich, 1);
    rows->addLayout(total);
    PoseBas(*rows);
    PlainText({&Label5, &Label3[0], &Label3[1], &LblLongTot, &LblLongTotAffich});
}

void frmribevol2::LayOutEnds(QVBoxLayout &rows) {
    auto *ends = new QHBoxLayout;
    Rangee(Grille(0), 2, LblEprNervureCMax, txtEpR0, nullptr);
    Rangee(Grille(1), 2, LblEprNervureCmin, txtEpR13, nullptr);
    ends->addWidget(&Frame1[0], 1);
    ends->addWidget(&Frame1[1], 1);
    rows.addLayout(ends);
}

void frmribevol2::LayOutGaps() {
    auto *rows = new QVBoxLayout(&FrameNervInterm);
    auto *numbers = new QHBoxLayout;
    for (ClickLabel &label : LblNoNervInterm) {
        label.setAlignment(Qt::AlignCenter);
        label.setMargin(kMarge);
        label.setMinimumWidth(fontMetrics().horizontalAdvance("00") + 4 * kMarge);
        numbers->addWidget(&label);
    }
    numbers->addStretch();
    rows->addWidget(&Label5);
    rows->addLayout(numbers);
}

/// As on the bench: the rib before the gap, the gap, the rib behind it.
void frmribevol2::LayOutDimensions() {
    auto *grid = new QGridLayout(&FrameDimensions);
    grid->addWidget(&Label3[0], 0, 0);
    grid->addWidget(&LblEprNervure, 0, 1);
    grid->addWidget(&TextEprNevure, 0, 2);
    grid->addWidget(&lblstep, 1, 1);
    grid->addWidget(&TextEcartNevure, 1, 2);
    grid->addWidget(&Label3[1], 2, 0);
    grid->addWidget(&Bouton(SharedWord::apply), 2, 2);
    grid->setColumnStretch(0, 1);
    Elargit(TextEprNevure);
    Elargit(TextEcartNevure);
    SetCaption(LblEprNervure, TextEprNevure);
    SetCaption(lblstep, TextEcartNevure);
    GardePlace(FrameDimensions);
}

} // namespace loftwing
