// Names and places of what the window about the program shows.

#include "mainwindow/frmAbout.h"

#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace loftwing {

void frmAbout::NameAll() {
    NameControls({{&image, "image"},
                  {&lblpresentation, "lblpresentation"},
                  {&lblversion, "lblversion"},
                  {&lblsystemes, "lblsystemes"},
                  {&lblnote, "lblnote"}});
    NameControls(Label1, "Label1");
    NameControls(txtdossier, "txtdossier");
}

void frmAbout::LayOut() {
    auto *folders = new QFormLayout;
    for (std::size_t i = 0; i < txtdossier.size(); ++i) {
        folders->addRow(&Label1[i], &txtdossier[i]);
        SetCaption(Label1[i], txtdossier[i]);
        txtdossier[i].setReadOnly(true);
        txtdossier[i].setFrame(false);
        QPalette plain = txtdossier[i].palette();
        plain.setColor(QPalette::Base, Qt::transparent);
        txtdossier[i].setPalette(plain);
    }
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&image);
    for (QLabel *label : {&lblpresentation, &lblversion}) {
        PlainText({label});
        label->setAlignment(Qt::AlignHCenter);
        rows->addWidget(label);
    }
    rows->addLayout(folders);
    for (QLabel *label : {&lblsystemes, &lblnote}) {
        PlainText({label});
        label->setWordWrap(true);
        rows->addWidget(label);
    }
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok});
    Bouton(SharedWord::ok).setFocus();
}

} // namespace loftwing
