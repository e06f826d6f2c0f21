// Names and places of the import window's controls.

#include "mainwindow/frmimport.h"

#include <QScreen>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr double kShareOfScreen = 0.9;

} // namespace

void frmimport::NameAll() {
    NameControls({{&Picture1, "Picture1"},
                  {&lblrecit, "lblrecit"},
                  {&lblenregistre, "lblenregistre"},
                  {&cmdenregistrer, "cmdenregistrer"},
                  {&cmdouvrir, "cmdouvrir"}});
}

void frmimport::LayOut() {
    PlainText({&lblrecit, &lblenregistre});
    lblrecit.setWordWrap(true);
    // A long path breaks rather than widens the window.
    lblenregistre.setWordWrap(true);
    lblenregistre.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    lblenregistre.hide();
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Picture1, 1);
    rows->addWidget(&lblrecit);
    rows->addWidget(&lblenregistre);
    PoseBoutons(*rows, {&cmdouvrir, SharedWord::cancel, SharedWord::help}, &cmdenregistrer);
    cmdouvrir.setDefault(true);
    cmdouvrir.setFocus();
    resize(sizeHint().boundedTo(screen()->availableSize() * kShareOfScreen));
}

} // namespace loftwing
