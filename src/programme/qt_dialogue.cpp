#include "programme/qt_dialogue.h"

#include "core/units.h"

#include <QBoxLayout>
#include <QPushButton>

namespace loftwing {

namespace {

const char *NomDe(SharedWord word) {
    switch (word) {
    case SharedWord::ok:
        return "cmdok";
    case SharedWord::cancel:
        return "cmdannuler";
    case SharedWord::help:
        return "cmdaide";
    case SharedWord::apply:
        return "CmdApply";
    case SharedWord::close:
        break;
    }
    return "cmdfermer";
}

} // namespace

Dialogue::Dialogue(Programme &programme, const char *nom, int aide, QWidget *parent)
    : QDialog(parent), programme_(programme), aide_(aide) {
    NameControl(*this, nom);
}

void Dialogue::Repond(SharedWord word, void (Dialogue::*handler)()) {
    programme_.messages.Garde(" " + S(objectName()) + "/" + NomDe(word),
                              [this, handler] { (this->*handler)(); });
}

void Dialogue::reject() {
    Repond(SharedWord::cancel, &Dialogue::cmdannuler_Click);
}

QPushButton *Dialogue::MakeBouton(SharedWord word) {
    auto *button = new QPushButton; // the row that takes it in makes it the window's
    NameControl(*button, NomDe(word));
    SetButtonWord(*button, programme_.language, word);
    if (word == SharedWord::help) {
        ConnectHelp(*this, *button, programme_.platform, aide_);
        return button;
    }
    const auto handler = word == SharedWord::ok      ? &Dialogue::cmdok_Click
                         : word == SharedWord::apply ? &Dialogue::CmdApply_Click
                                                     : &Dialogue::cmdannuler_Click;
    connect(button, &QPushButton::clicked, this, [this, word, handler] { Repond(word, handler); });
    return button;
}

QPushButton &Dialogue::Bouton(SharedWord word) {
    QPushButton *&button = At(partages_, static_cast<int>(word));
    if (button == nullptr) {
        button = MakeBouton(word);
    }
    return *button;
}

void Dialogue::PoseBoutons(QBoxLayout &rows, std::initializer_list<BoutonDeLigne> buttons,
                           QPushButton *left) {
    auto *row = new QHBoxLayout;
    if (left != nullptr) {
        row->addWidget(left);
    }
    row->addStretch();
    bool with_ok = false;
    for (const BoutonDeLigne &each : buttons) {
        const auto *shared = std::get_if<SharedWord>(&each);
        row->addWidget(shared != nullptr ? &Bouton(*shared) : std::get<QPushButton *>(each));
        with_ok = with_ok || (shared != nullptr && *shared == SharedWord::ok);
    }
    rows.addLayout(row);
    if (with_ok) {
        Bouton(SharedWord::ok).setDefault(true);
    }
}

void Dialogue::PoseMotsPartages() {
    for (int i = 0; i < static_cast<int>(partages_.size()); ++i) {
        if (QPushButton *button = At(partages_, i)) {
            SetButtonWord(*button, programme_.language, static_cast<SharedWord>(i));
        }
    }
}

void Dialogue::NommeEsquisse(QWidget &sketch) const {
    sketch.setAccessibleName(Mot({"Message", "240"}));
}

void Dialogue::AdmetTouches(NumericField &field, std::string_view mm, std::string_view in) const {
    field.SetKeys(TouchesSelonUnite(programme_.settings.Unite, mm, in));
    field.SetNotation(programme_.Text({"Message", "140"}));
}

void Dialogue::AdmetLongueur(NumericField &field) const {
    AdmetTouches(field, kTouchesPositif, kTouchesFraction);
}

void Dialogue::AdmetLongueurSignee(NumericField &field) const {
    AdmetTouches(field, kTouchesSigne, kTouchesFractionSigne);
}

void Dialogue::AdmetPlace(NumericField &field) const {
    AdmetTouches(field, kTouchesPourcent, kTouchesFractionPourcent);
}

} // namespace loftwing
