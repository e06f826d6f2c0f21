// Names and places of the page dialog's controls.

#include "output/frmPrint.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmPrint::NameAll() {
    NameControls({{&Frame6, "Frame6"},
                  {&Combo1, "Combo1"},
                  {&Label3, "Label3"},
                  {&cmdconfigImprim, "cmdconfigImprim"},
                  {&cmdpapier, "cmdpapier"},
                  {&cmdretire, "cmdretire"},
                  {&chkrangees, "chkrangees"},
                  {&chktemoin, "chktemoin"},
                  {&cmdcorrection, "cmdcorrection"},
                  {&Frame2, "Frame2"},
                  {&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Frame5, "Frame5"},
                  {&Label5, "Label5"},
                  {&Label6, "Label6"},
                  {&Label7, "Label7"},
                  {&Label8, "Label8"},
                  {&Frame4, "Frame4"},
                  {&Option1, "Option1"},
                  {&Option2, "Option2"},
                  {&Label4, "Label4"},
                  {&Label9, "Label9"},
                  {&Label10, "Label10"}});
    NameControls(Text1, "Text1");
}

void frmPrint::LayOut() {
    LayOutPaper();
    LayOutPlace();
    LayOutPages();
    auto *place = new QHBoxLayout;
    // The margins have the longer words in front of their fields.
    place->addWidget(&Frame2, 2);
    place->addWidget(&Frame5, 1);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Frame6);
    rows->addLayout(place);
    rows->addWidget(&Frame4);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help});
}

void frmPrint::LayOutPaper() {
    auto *grid = new QGridLayout(&Frame6);
    grid->addWidget(&Combo1, 0, 0);
    grid->addWidget(&cmdconfigImprim, 0, 1);
    grid->addWidget(&Label3, 1, 0, 1, 2);
    auto *own = new QHBoxLayout;
    own->addWidget(&cmdpapier);
    own->addWidget(&cmdretire);
    own->addStretch();
    own->addWidget(&cmdcorrection);
    grid->addLayout(own, 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
}

void frmPrint::LayOutPlace() {
    auto *margins = new QGridLayout(&Frame2);
    margins->addWidget(&Label1, 0, 0);
    margins->addWidget(&Text1[kChampMargeHaut], 0, 1);
    margins->addWidget(&Label6, 0, 2);
    margins->addWidget(&Label2, 1, 0);
    margins->addWidget(&Text1[kChampMargeBas], 1, 1);
    margins->addWidget(&Label7, 1, 2);
    Label1.setBuddy(&Text1[kChampMargeHaut]);
    Label2.setBuddy(&Text1[kChampMargeBas]);
    auto *position = new QGridLayout(&Frame5);
    position->addWidget(&Text1[kChampYdprint], 0, 0);
    position->addWidget(&Label8, 0, 1);
    position->setRowStretch(1, 1);
}

void frmPrint::LayOutPages() {
    auto *overlap = new QHBoxLayout;
    overlap->addWidget(&Label4);
    overlap->addWidget(&Text1[kChampRecouvrement]);
    overlap->addWidget(&Label5);
    overlap->addStretch();
    Label4.setBuddy(&Text1[kChampRecouvrement]);
    auto *rows = new QVBoxLayout(&Frame4);
    rows->addWidget(&Option1);
    rows->addWidget(&Option2);
    rows->addLayout(overlap);
    rows->addWidget(&chkrangees);
    rows->addWidget(&chktemoin);
    rows->addWidget(&Label9);
    rows->addWidget(&Label10);
    PlainText({&Label1, &Label2, &Label3, &Label4, &Label5, &Label6, &Label7, &Label8, &Label9,
               &Label10});
}

} // namespace loftwing
