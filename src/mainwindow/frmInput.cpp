#include "mainwindow/frmInput.h"

#include "features/rib_entry.h"
#include "programme/rib_trial.h"

namespace loftwing {

frmInput::frmInput(Programme &programme, std::string_view ModeSaisie, QWidget *parent)
    : Dialogue(programme, "frmInput", ModeDe(ModeSaisie).aide, parent), mode_(ModeDe(ModeSaisie)),
      retour_(RetourDuRib(programme.rib)) {
    NameAll();
    LayOut();
    Form_Load();
}

void frmInput::Form_Load() {
    programme_.rib.Annule = false;
    setWindowTitle(Q(TitreSaisie(mode_, programme_.SaisieEnCours())));
    // The caption carries the unit, so it must not be cut by the title bar's own buttons. The box
    // makes the room: a width of the window's own would count instead of what its words need.
    infotxt.setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle() + QString(16, '0')));
    msgtxt.setText(Mot(mode_.message));
    AdmetLongueur(infotxt);
    if (!mode_.avec_unite) {
        infotxt.SetNotation({}); // a count
    }
    infotxt.setText(Q(mode_.texte(programme_.rib)));
    SelectField(infotxt);
}

EssaiDuRib frmInput::Essai() {
    return [this](RibModel &rib, const Saisie &saisie) {
        if (ValideSaisie(mode_, rib, S(infotxt.text()), saisie) != FinSaisie::prise) {
            return false;
        }
        if (mode_.ModeSaisie == "corde") {
            MajGabarit(rib, saisie); // follows when the window has closed
        }
        return true;
    };
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
    if (mode_.ModeSaisie == "corde" && !RibTracable(programme_, Titre())) {
        back();
        SelectField(infotxt);
        return;
    }
    infotxt.setText(Q(mode_.texte(programme_.rib)));
    accept();
}

void frmInput::cmdannuler_Click() {
    retour_(); // a refused chord has left its text
    programme_.rib.Annule = true;
    Renonce();
}

} // namespace loftwing
