// The tools of the main window.

#include "mainwindow/beside.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/frmopen.h"
#include "platform/qt_form.h"
#include "programme/rib_steps.h"
#include "programme/startup.h"
#include "utilities/frmCoord.h"
#include "utilities/frmangle.h"
#include "utilities/frmdiedre.h"
#include "utilities/frminclinaison.h"
#include "utilities/frmnervure.h"
#include "utilities/frmribevol.h"
#include "utilities/frmribevol2.h"

namespace loftwing {

std::optional<ProfilChoisi> frmmain::ChoisitProfil(const std::string &titre) {
    RibModel &rib = programme_.rib;
    const ProfilPrecedent before(rib);
    rib.MemProfil = false;
    rib.Annule = false;
    frmopen picker(programme_, *this, this);
    picker.setWindowTitle(Q(titre));
    picker.LaisseLeRib();
    ShowModal(picker);
    const ProfilChoisi chosen = ProfilDuRib(rib);
    before.Rend(rib);
    return rib.Annule ? std::nullopt : std::optional(chosen);
}

void frmmain::mnu_outilnervinter_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "3t"})) {
        ShowBeside<frmnervure>(*this, programme_);
    }
}

void frmmain::mnu_OutlilDiedre_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "10t"})) {
        ShowBeside<frmdiedre>(*this, programme_);
    }
}

void frmmain::mnu_Outilcoord_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "11t"})) {
        ShowBeside<frmCoord>(*this, programme_);
    }
}

bool frmmain::FaitPlaceAuJeu() {
    if (!programme_.rib.ProfilCharge) {
        return true;
    }
    if (!ConfirmePerte(programme_, {"FrmMainMessage", "11"}, {"FrmMainMessage", "12"})) {
        return false;
    }
    affclear();
    return true;
}

void frmmain::mnu_outilevolut_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "4t"}) && FaitPlaceAuJeu()) {
        frmribevol dialog(programme_, *this, this);
        ShowModal(dialog);
    }
}

int frmmain::DemandeNombre() {
    int count = 1;
    do {
        const auto answer = programme_.platform.Ask(QuestionNombre(count, programme_.messages),
                                                    S(windowTitle()), "");
        count = NombreVariable(answer.value_or(""));
    } while (count < 0 || count > kNervuresVariables);
    return count;
}

void frmmain::mnu_outilevolut2_Click() {
    if (!ControleSeparateurCommande(programme_, {"MenuOutils", "4at"}) || !FaitPlaceAuJeu()) {
        return;
    }
    if (const int count = DemandeNombre(); count != 0) {
        programme_.rib.jeu.NbNervInter = ToInt16(count);
        frmribevol2 dialog(programme_, *this, this);
        ShowModal(dialog);
    }
}

void frmmain::mnu_outilAngle_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "6t"})) {
        frmangle dialog(programme_, *this, this);
        ShowModal(dialog);
    }
}

void frmmain::mnu_outilInclinaison_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "7t"})) {
        frminclinaison dialog(programme_, *this, this);
        ShowModal(dialog);
    }
}

} // namespace loftwing
