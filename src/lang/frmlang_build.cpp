// Names and places of the language window's controls.

#include "lang/frmlang.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kUsualLetters = 30; // room for a caption and for names of languages

} // namespace

void lang::NameAll() {
    NameControls({{&Combo1, "Combo1"}, {&Bouton(SharedWord::ok), "ok"}});
}

void lang::LayOut() {
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&Combo1);
    rows->addStretch();
    PoseBoutons(*rows, {SharedWord::ok});
    Combo1.setMinimumWidth(fontMetrics().averageCharWidth() * kUsualLetters);
}

} // namespace loftwing
