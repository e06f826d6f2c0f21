// Names and places of the controls of the window for a set of ribs.

#include "utilities/frmnervure.h"

#include <QHBoxLayout>

namespace loftwing {

namespace {

constexpr int kScrollSteps = 20;

} // namespace

void frmnervure::NameAll() {
    NameControls({{&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&Label5, "Label5"},
                  {&Label6, "Label6"},
                  {&Label7, "Label7"},
                  {&Label10, "Label10"},
                  {&Label11, "Label11"},
                  {&Label12, "Label12"},
                  {&Lblecart, "Lblecart"},
                  {&Frame1, "Frame1"},
                  {&Image1, "Image1"},
                  {&Liste, "PicNervures"},
                  {&Vbar, "Vbar"},
                  {&cmdcalcul, "cmdcalcul"},
                  {&cmdprintnerv, "cmdprintnerv"}});
    NameControls(Label4, "Label4");
    NameControls(txtnerv, "txtnerv");
}

void frmnervure::LayOut() {
    auto *sketch = new QHBoxLayout(&Frame1);
    sketch->addWidget(&Image1);
    Frame1.setFrameShape(QFrame::StyledPanel);
    auto *left = new QVBoxLayout;
    left->addWidget(&Frame1, 1);
    left->addLayout(LayOutFields());
    auto *above = new QHBoxLayout;
    above->addLayout(left);
    above->addSpacing(fontMetrics().height());
    above->addLayout(LayOutList(), 1);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(above, 1);
    PoseBoutons(*rows, {&cmdcalcul, &cmdprintnerv, SharedWord::close, SharedWord::help});
    PlainText({&Label5, &Label10, &Label11, &Label12, &Lblecart});
    cmdcalcul.setDefault(true);
    setTabOrder(&txtnerv[kNervEpr], &Liste);
    setTabOrder(&Liste, &cmdcalcul);
}

QGridLayout *frmnervure::LayOutFields() {
    auto *grid = new QGridLayout;
    const QString unit = Q(programme_.settings.Unite).trimmed();
    const auto add = [&](int row, const char *letter, QLabel &caption, int field) {
        AddMeasure(*grid, row, Image1,
                   {letter, caption, At(txtnerv, field), *letter == '\0' ? QString() : unit});
    };
    add(0, PanneauSketch::kCordeMaj, Label2, kNervCordeMaj);
    add(1, PanneauSketch::kCordeMin, Label3, kNervCordeMin);
    add(2, "", Label1, kNervNbInter);
    add(3, PanneauSketch::kLongPanneau, Label6, kNervLongPanneau);
    add(4, PanneauSketch::kLongeronMaj, Label4[0], kNervLongeronMaj);
    add(5, PanneauSketch::kLongeronMin, Label4[1], kNervLongeronMin);
    add(6, PanneauSketch::kEprNervure, Label7, kNervEpr);
    grid->addWidget(MeasureLetter(PanneauSketch::kEcart), 7, 0);
    grid->addWidget(&Label5, 7, 1);
    grid->addWidget(&Lblecart, 7, 2);
    grid->addWidget(new QLabel(unit), 7, 3);
    grid->setColumnStretch(2, 1);
    return grid;
}

/// The list with its headings over the columns.
QVBoxLayout *frmnervure::LayOutList() {
    auto *headings = new QGridLayout;
    headings->setHorizontalSpacing(0);
    headings->addWidget(&Label10, 0, 1);
    headings->addWidget(&Label11, 0, 2);
    headings->addWidget(&Label12, 0, 3);
    headings->setColumnMinimumWidth(0, Liste.Pixels(kColonneNumero));
    headings->setColumnMinimumWidth(1, Liste.Pixels(kColonneCorde - kColonneNumero));
    headings->setColumnMinimumWidth(2, Liste.Pixels(kColonneLongeron - kColonneCorde));
    headings->setColumnStretch(3, 1);
    headings->setRowMinimumHeight(0, fontMetrics().height()); // also while a heading is hidden
    Vbar.setOrientation(Qt::Vertical);
    Vbar.setRange(0, kScrollSteps);
    Vbar.setPageStep(kScrollSteps / 4);
    auto *list = new QHBoxLayout;
    list->setSpacing(0);
    list->addWidget(&Liste, 1);
    list->addWidget(&Vbar);
    auto *rows = new QVBoxLayout;
    rows->addLayout(headings);
    rows->addLayout(list, 1);
    return rows;
}

} // namespace loftwing
