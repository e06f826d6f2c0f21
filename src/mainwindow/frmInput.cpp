#include "mainwindow/frmInput.h"

#include "features/rib_entry.h"
#include "programme/rib_trial.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace loftwing {

frmInput::frmInput(Programme &programme, std::string_view ModeSaisie, QWidget *parent)
    : QDialog(parent), programme_(programme), mode_(ModeDe(ModeSaisie)), msgtxt(this),
      infotxt(this), cmdok(this), cmdannuler(this), cmdaide(this) {
    NameAll();
    LayOut();
    Form_Load();
    connect(&cmdok, &QPushButton::clicked, this, &frmInput::cmdok_Click);
    connect(&cmdannuler, &QPushButton::clicked, this, &frmInput::cmdannuler_Click);
    ConnectHelp(*this, cmdaide, programme_.platform, mode_.aide);
}

void frmInput::NameAll() {
    NameControl(*this, "frmInput");
    NameControl(msgtxt, "msgtxt");
    NameControl(infotxt, "infotxt");
    NameControl(cmdok, "cmdok");
    NameControl(cmdannuler, "cmdannuler");
    NameControl(cmdaide, "cmdaide");
}

void frmInput::LayOut() {
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(&msgtxt);
    rows->addWidget(&infotxt);
    rows->addStretch();
    rows->addLayout(ButtonRow({&cmdok, &cmdannuler, &cmdaide}));
    msgtxt.setTextFormat(Qt::PlainText);
    msgtxt.setBuddy(&infotxt);
    cmdok.setDefault(true);
}

void frmInput::Form_Load() {
    programme_.rib.Annule = false;
    setWindowTitle(Q(TitreSaisie(mode_, programme_.SaisieEnCours())));
    // The caption carries the unit, so it must not be cut by the title bar's own buttons.
    setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle() + QString(16, '0')));
    msgtxt.setText(Q(programme_.Text(mode_.message)));
    SetButtonWord(cmdok, programme_.language, SharedWord::ok);
    SetButtonWord(cmdannuler, programme_.language, SharedWord::cancel);
    SetButtonWord(cmdaide, programme_.language, SharedWord::help);
    infotxt.SetKeys(
        TouchesSelonUnite(programme_.settings.Unite, kTouchesPositif, kTouchesFraction));
    infotxt.setText(Q(mode_.texte(programme_.rib)));
    SelectField(infotxt);
}

void frmInput::cmdok_Click() {
    const auto back = RetourDuRib(programme_.rib);
    const FinSaisie fin =
        ValideSaisie(mode_, programme_.rib, S(infotxt.text()), programme_.SaisieEnCours());
    if (fin == FinSaisie::refusee) {
        SelectField(infotxt);
        return;
    }
    // A chord that a spar, hole, heel or template doesn't fit would cost the whole rib.
    if (mode_.ModeSaisie == "corde" && !RibTracable(programme_, S(windowTitle()))) {
        back();
        SelectField(infotxt);
        return;
    }
    infotxt.setText(Q(mode_.texte(programme_.rib)));
    accept();
}

void frmInput::cmdannuler_Click() {
    programme_.rib.Annule = true;
    QDialog::reject();
}

void frmInput::reject() {
    cmdannuler_Click();
}

} // namespace loftwing
