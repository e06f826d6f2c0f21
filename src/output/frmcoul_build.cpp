// Names and places of the controls for colours and line styles.

#include "output/frmcoul.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr const char *kBulle = " Entre 0 et 3 ";
/// The row of the grid over which the compared airfoils have a head of their own.
constexpr int kPremierCompare = 9;
constexpr int kEcart = 8; // pixels that set the legend off

/// Columns of the grid behind the captions of its rows.
enum Colonne { kColCouleur = 1, kColPatch, kColStyle, kColLargeur, kColonnes };

template <class Fields>
void Prepare(Fields &fields) {
    for (NumericField &field : fields) {
        field.SetKeys(kTouchesEntier);
        field.setToolTip(Q(kBulle));
        field.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        field.setMaximumWidth(field.fontMetrics().horizontalAdvance("0000000"));
    }
}

} // namespace

void frmcoul::NameAll() {
    NameControls({{&Label3, "Label3"},
                  {&LabelFixe, "LabelFixe"},
                  {&Picture1, "Picture1"},
                  {&cmdImprtest, "cmdImprtest"}});
    NameControls(Label1, "Label1");
    NameControls(Label2, "Label2");
    NameControls(txtcoul, "txtcoul");
    NameControls(Swatch, "Swatch");
    NameControls(txtline, "txtline");
    NameControls(txtEpR, "txtEpR");
}

void frmcoul::LayOut() {
    Prepare(txtcoul);
    Prepare(txtline);
    Prepare(txtEpR);
    auto *grid = new QGridLayout;
    LayOutGrid(*grid);
    auto *left = new QVBoxLayout;
    left->addLayout(grid);
    left->addStretch();
    auto *above = new QHBoxLayout;
    above->addLayout(left);
    above->addSpacing(kEcart);
    above->addWidget(&Picture1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above, 1);
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help}, &cmdImprtest);
}

void frmcoul::LayOutGrid(QGridLayout &grid) {
    grid.addWidget(&Label2[0], 0, kColCouleur, 1, 2);
    grid.addWidget(&Label2[1], 0, kColStyle);
    grid.addWidget(&Label2[2], 0, kColLargeur);
    int row = 1;
    int width = 0;
    for (int i = 0; i < static_cast<int>(kElements); ++i, ++row) {
        if (i == kPremierCompare) {
            grid.addWidget(&Label3, row++, 0, 1, kColonnes);
        }
        grid.addWidget(&At(Label1, i), row, 0);
        grid.addWidget(&At(txtcoul, i), row, kColCouleur);
        grid.addWidget(&At(Swatch, i), row, kColPatch);
        grid.addWidget(&At(txtline, i), row, kColStyle);
        At(Label1, i).setBuddy(&At(txtcoul, i));
        const DrawingElement &element = At(DrawingElements(), i);
        if (element.width_key != nullptr) {
            grid.addWidget(&At(txtEpR, width++), row, kColLargeur);
        } else if (element.element == Element::axe) {
            grid.addWidget(&LabelFixe, row, kColLargeur);
        }
    }
}

} // namespace loftwing
