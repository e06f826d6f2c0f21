// Names and places of what the windows of spars and of holes have in common.

#include "features/qt_slots_dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void GardePlace(QWidget &widget) {
    QSizePolicy kept = widget.sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(kept);
}

void SlotsDialog::NameAll() {
    NameControl(*this, genre_.fenetre);
    NameControls(numeros_.Labels(), genre_.etiquettes);
    const std::pair<QObject *, const char *> names[] = {
        {&Frame2, "Frame2"},         {&Frame6, "Frame6"},     {&cmdajout, "cmdajout"},
        {&Cmdmodif, "Cmdmodif"},     {&Cmdeffac, "Cmdeffac"}, {&CmdApply, "CmdApply"},
        {&cmdok, "cmdok"},           {&cmdaide, "cmdaide"},   {&LabelListe, "LabelListe"},
        {&Cmdannuler, "Cmdannuler"}, {&Label1, "Label1"},     {&Label2, "Label2"},
        {&Label3, "Label3"},
    };
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
    NameControls(Label6, "Label6");
    NameControls(OptDistance, "OptDistance");
}

QLayout *SlotsDialog::LigneListe() {
    auto *row = new QHBoxLayout;
    LabelListe.setTextFormat(Qt::PlainText);
    row->addWidget(&LabelListe);
    row->addWidget(&numeros_, 1);
    return row;
}

QLayout *SlotsDialog::LigneBoutons() {
    cmdok.setDefault(true);
    return ButtonRow({&CmdApply, &cmdok, &Cmdannuler, &cmdaide});
}

void SlotsDialog::LayOutCommandes() {
    auto *column = new QVBoxLayout(&Frame6);
    for (QPushButton *button : {&cmdajout, &Cmdmodif, &Cmdeffac}) {
        column->addWidget(button);
    }
    column->addStretch();
}

QGridLayout *SlotsDialog::LayOutDimensions(QLabel &label) {
    auto *edges = new QHBoxLayout;
    for (QRadioButton &edge : OptDistance) {
        edges->addWidget(&edge);
    }
    edges->addStretch();
    auto *grid = new QGridLayout(&Frame2);
    QLabel *const labels[] = {&Label1, &Label2, &Label3, &label};
    const int rows[] = {0, 2, 3, 4}; // the edges stand below the location
    for (int i = 0; i < 4; ++i) {
        labels[i]->setTextFormat(Qt::PlainText);
        labels[i]->setBuddy(At(champs_, i));
        grid->addWidget(labels[i], rows[i], 0);
        grid->addWidget(At(champs_, i), rows[i], 1);
        if (i > 0) {
            QLabel &unit = At(Label6, i - 1);
            unit.setTextFormat(Qt::PlainText);
            grid->addWidget(&unit, rows[i], 2);
        }
    }
    grid->addLayout(edges, 1, 1, 1, 2);
    grid->setColumnStretch(1, 1);
    return grid;
}

void SlotsDialog::RegleTabulation(const std::vector<QWidget *> &order) {
    std::vector<QWidget *> all;
    for (ClickLabel &number : numeros_.Labels()) {
        all.push_back(&number);
    }
    all.insert(all.end(),
               {champs_[0], &OptDistance[0], &OptDistance[1], champs_[1], champs_[2], champs_[3]});
    all.insert(all.end(), order.begin(), order.end());
    all.insert(all.end(),
               {&cmdajout, &Cmdmodif, &Cmdeffac, &cmdok, &Cmdannuler, &CmdApply, &cmdaide});
    for (std::size_t i = 1; i < all.size(); ++i) {
        setTabOrder(all[i - 1], all[i]);
    }
}

} // namespace loftwing
