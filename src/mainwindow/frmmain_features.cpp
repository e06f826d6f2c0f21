// The commands of what is added to a rib.

#include "features/frmlongeron.h"
#include "features/frmtrou.h"
#include "mainwindow/frmmain.h"
#include "platform/qt_form.h"

namespace loftwing {

void frmmain::mnu_profillongeron_Click() {
    OuvreLongerons(std::nullopt);
}

void frmmain::mnu_profiltrou_Click() {
    OuvreTrous(std::nullopt);
}

void frmmain::OuvreLongerons(std::optional<int> slot) {
    frmlongeron dialog(programme_, *this, this);
    if (slot) {
        dialog.MontreNumero(*slot);
    }
    ShowModal(dialog);
    affiche();
}

void frmmain::OuvreTrous(std::optional<int> slot) {
    frmtrou dialog(programme_, *this, this);
    if (slot) {
        dialog.MontreNumero(*slot);
    }
    ShowModal(dialog);
    affiche();
}

RibTouch::Demandes frmmain::DemandesDuDoigt() {
    return {[this](const SujetTrace &sujet) {
                Garde(" Main/Touch", [this, sujet] { OuvreSujet(sujet); });
            },
            [this](const SujetTrace &sujet) {
                Garde(" Main/Delete", [this, sujet] { RetireSujet(programme_, *this, sujet); });
            },
            [this](const SujetTrace &sujet, const LieuRib &place, PasDeTire pas) {
                Garde(" Main/Drag", [&] { DeplaceSujet(programme_, *this, sujet, place, pas); });
            }};
}

void frmmain::OuvreSujet(const SujetTrace &sujet) {
    switch (sujet.genre) {
    case GenreSujet::longeron:
        return OuvreLongerons(sujet.slot);
    case GenreSujet::trou:
        return OuvreTrous(sujet.slot);
    case GenreSujet::baguette_ba:
        return mnu_profilbaD_Click();
    case GenreSujet::baguette_bf:
        return mnu_profilbf_Click();
    case GenreSujet::carre:
        return mnu_profilbaC_Click();
    case GenreSujet::talon:
        return mnu_profilTalon_Click();
    case GenreSujet::gabarit:
        return mnu_parambloc_Click();
    case GenreSujet::texte:
        return mnu_affInstxt_Click();
    case GenreSujet::aucun:
        break;
    }
}

} // namespace loftwing
