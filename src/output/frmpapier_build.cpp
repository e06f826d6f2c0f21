// Names and places of the paper dialog's controls.

#include "output/frmpapier.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

void frmpapier::NameAll() {
    NameControls({{&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label3, "Label3"},
                  {&txtnom, "txtnom"},
                  {&Label4, "Label4"},
                  {&Label5, "Label5"}});
    NameControls(Text1, "Text1");
}

void frmpapier::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label1, 0, 0);
    grid->addWidget(&txtnom, 0, 1, 1, 2);
    grid->addWidget(&Label2, 1, 0);
    grid->addWidget(&Text1[0], 1, 1);
    grid->addWidget(&Label4, 1, 2);
    grid->addWidget(&Label3, 2, 0);
    grid->addWidget(&Text1[1], 2, 1);
    grid->addWidget(&Label5, 2, 2);
    Label1.setBuddy(&txtnom);
    Label2.setBuddy(&Text1[0]);
    Label3.setBuddy(&Text1[1]);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok, SharedWord::cancel, SharedWord::help});
    PlainText({&Label1, &Label2, &Label3, &Label4, &Label5});
}

} // namespace loftwing
