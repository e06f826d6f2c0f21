// Names and places of what the splash window shows.

#include "mainwindow/frmSplash.h"
#include "platform/qt_form.h"

#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr double kTitleSize = 2.2;

} // namespace

void frmSplash::NameAll() {
    NameControls({{this, "frmSplash"},
                  {&image, "image"},
                  {&lbltitre, "lbltitre"},
                  {&lblversion, "lblversion"},
                  {&lblpresentation, "lblpresentation"},
                  {&Timer1, "Timer1"}});
}

void frmSplash::LayOut() {
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&image);
    for (QLabel *label : {&lbltitre, &lblversion, &lblpresentation}) {
        PlainText({label});
        label->setAlignment(Qt::AlignHCenter);
        rows->addWidget(label);
    }
    QFont large = lbltitre.font();
    large.setPointSizeF(large.pointSizeF() * kTitleSize);
    lbltitre.setFont(large);
    setSizeGripEnabled(false);
}

} // namespace loftwing
