// Names and places of the controls for thickness and camber.

#include "utilities/frmEpCourb.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr const char *kValeurUsuelle = "100.00--"; // a field has room for this

} // namespace

void frmEpCourb::NameAll() {
    NameControls({{&Label1, "Label1"},
                  {&Label2, "Label2"},
                  {&Label4, "Label4"},
                  {&Label5, "Label5"},
                  {&txtEpROr, "txtEpROr"},
                  {&txtCourbureOr, "txtCourbureOr"},
                  {&txtEpR, "txtEpR"},
                  {&txtCourbure, "txtCourbure"},
                  {&cmdsave, "cmdsave"},
                  {&cmdprintEC, "cmdprintEC"}});
    NameControls(Label3, "Label3");
}

void frmEpCourb::LayOut() {
    auto *grid = new QGridLayout;
    grid->addWidget(&Label3[0], 0, 1);
    grid->addWidget(&Label3[1], 0, 2);
    grid->addWidget(&Label1, 1, 0);
    grid->addWidget(&txtEpROr, 1, 1);
    grid->addWidget(&txtEpR, 1, 2);
    grid->addWidget(&Label4, 2, 1);
    grid->addWidget(&Label5, 2, 2);
    grid->addWidget(&Label2, 3, 0);
    grid->addWidget(&txtCourbureOr, 3, 1);
    grid->addWidget(&txtCourbure, 3, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setHorizontalSpacing(grid->horizontalSpacing() * 2);
    for (QLineEdit *field :
         std::initializer_list<QLineEdit *>{&txtEpROr, &txtCourbureOr, &txtEpR, &txtCourbure}) {
        field->setMinimumWidth(fontMetrics().horizontalAdvance(kValeurUsuelle));
        field->setAlignment(Qt::AlignRight);
    }
    for (QLineEdit *shown : {&txtEpROr, &txtCourbureOr}) {
        shown->setReadOnly(true);
        shown->setFocusPolicy(Qt::NoFocus);
        shown->setFrame(false);
        QPalette on_window;
        on_window.setColor(QPalette::Base, Qt::transparent);
        shown->setPalette(on_window);
    }
    for (QLabel *label : {&Label3[0], &Label3[1], &Label4, &Label5}) {
        PlainText({label});
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    SetCaption(Label1, txtEpR);
    SetCaption(Label2, txtCourbure);
    auto *rows = new QVBoxLayout(this);
    rows->addLayout(grid);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::apply, &cmdsave, &cmdprintEC, SharedWord::ok,
                        SharedWord::cancel, SharedWord::help});
}

} // namespace loftwing
