#include "programme/heel_steps.h"

#include "features/talon.h"
#include "output/screen_plot.h"

namespace loftwing {

bool ConfirmeMarges(Programme &programme, CommandView &view) {
    if (!PrendMarges(programme.rib, programme.SaisieEnCours())) {
        return false;
    }
    view.affiche();
    return programme.rib.ProfilCharge;
}

bool DemandeMarges(Programme &programme, CommandView &view) {
    const Saisie saisie = programme.SaisieEnCours();
    if (!RibVisible(programme.rib) || !MargesEnAttente(programme.rib, saisie)) {
        return true;
    }
    const std::string question =
        TexteMargesEnAttente(programme.rib, saisie) + "\n" + programme.Text({"FrmTalon", "183"});
    return !programme.messages.Confirm(question, programme.Text({"FrmTalon", "1"})) ||
           ConfirmeMarges(programme, view);
}

} // namespace loftwing
