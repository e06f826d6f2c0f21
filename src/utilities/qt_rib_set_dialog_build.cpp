// Names and places of what the windows of both kinds of rib sets have in common.

#include "utilities/qt_rib_set_dialog.h"

#include <QHBoxLayout>

namespace loftwing {

namespace {

constexpr const char *kLongueurUsuelle = "1234.31/64--"; // a field has room for this
constexpr int kLettresDossier = 45;

} // namespace

void RibSetDialog::NommeCommuns() {
    NameControls(Frame1, "Frame1");
    NameControls(Label1, "Label1");
    NameControls(txtprofil, "txtprofil");
    NameControls(cmdouvrir, "cmdouvrir");
    NameControls(Label2, "Label2");
    NameControls(txtcorde, "txtcorde");
    NameControls({{&Lblsav, "Lblsav"},
                  {&txtdefprofevol, "txtdefprofevol"},
                  {&cmdcalcul, "cmdcalcul"},
                  {&cmdrechercheevol, "cmdrechercheevol"}});
}

void RibSetDialog::Elargit(QLineEdit &field) {
    field.setMinimumWidth(field.fontMetrics().horizontalAdvance(kLongueurUsuelle));
}

void RibSetDialog::Rangee(QGridLayout &grid, int row, QLabel &caption, QLineEdit &field,
                          QWidget *behind) {
    SetCaption(caption, field);
    Elargit(field);
    grid.addWidget(&caption, row, 0);
    grid.addWidget(&field, row, 1);
    if (behind != nullptr) {
        grid.addWidget(behind, row, 2);
    }
}

QGridLayout &RibSetDialog::Grille(std::size_t end) {
    const auto index = static_cast<long>(end);
    auto *grid = new QGridLayout(&At(Frame1, index));
    QLineEdit &name = At(txtprofil, index);
    Rangee(*grid, 0, At(Label1, index), name, &At(cmdouvrir, index));
    Rangee(*grid, 1, At(Label2, index), At(txtcorde, index), nullptr);
    MakeNameDisplay(name, kNameLetters);
    return *grid;
}

void RibSetDialog::PoseBas(QVBoxLayout &rows) {
    auto *folder = new QHBoxLayout;
    folder->addWidget(&Lblsav);
    folder->addWidget(&txtdefprofevol, 1);
    folder->addWidget(&cmdrechercheevol);
    SetCaption(Lblsav, txtdefprofevol);
    MakeNameDisplay(txtdefprofevol, kLettresDossier);
    rows.addLayout(folder);
    rows.addStretch();
    PoseBoutons(rows, {&cmdcalcul, SharedWord::close, SharedWord::help});
    cmdcalcul.setDefault(true);
}

} // namespace loftwing
