// Names and places of what the windows of spars and of holes have in common.

#include "features/qt_slots_dialog.h"

#include <QHBoxLayout>

namespace loftwing {

void SlotsDialog::NameAll() {
    NameControls({{&Frame2, "Frame2"},
                  {&Frame6, "Frame6"},
                  {&LabelListe, "LabelListe"},
                  {&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&cmdajout, "cmdajout"},
                  {&Cmdmodif, "Cmdmodif"},
                  {&Cmdeffac, "Cmdeffac"},
                  {&Bouton(SharedWord::close), "Cmdannuler"}});
    NameControls(numeros_.Labels(), genre_.etiquettes);
    NameControls(Label6, "Label6");
    NameControls(OptDistance, "OptDistance");
}

QLayout *SlotsDialog::LigneListe() {
    auto *row = new QHBoxLayout;
    PlainText({&LabelListe});
    row->addWidget(&LabelListe);
    row->addWidget(&numeros_, 1);
    return row;
}

void SlotsDialog::PoseBas(QVBoxLayout &rows) {
    rows.addStretch();
    PoseBoutons(rows, {SharedWord::apply, SharedWord::ok, SharedWord::close, SharedWord::help});
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
        SetCaption(*labels[i], *At(champs_, i));
        grid->addWidget(labels[i], rows[i], 0);
        grid->addWidget(At(champs_, i), rows[i], 1);
        if (i > 0) {
            QLabel &unit = At(Label6, i - 1);
            PlainText({&unit});
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
               {&cmdajout, &Cmdmodif, &Cmdeffac, &Bouton(SharedWord::apply),
                &Bouton(SharedWord::ok), &Bouton(SharedWord::close), &Bouton(SharedWord::help)});
    for (std::size_t i = 1; i < all.size(); ++i) {
        setTabOrder(all[i - 1], all[i]);
    }
}

} // namespace loftwing
