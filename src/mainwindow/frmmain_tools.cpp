// The tools of the main window.

#include "mainwindow/beside.h"
#include "mainwindow/frmaile.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/frmpanneau.h"
#include "platform/qt_form.h"
#include "programme/startup.h"
#include "programme/tool_steps.h"
#include "programme/view_steps.h"
#include "utilities/frmCoord.h"
#include "utilities/frmangle.h"
#include "utilities/frmdiedre.h"
#include "utilities/frminclinaison.h"
#include "utilities/frmnervure.h"
#include "utilities/frmribevol.h"
#include "utilities/frmribevol2.h"

namespace loftwing {

std::optional<ProfilChoisi> frmmain::ChoisitProfil(const std::string &titre) {
    return ChoisitPourOutil(programme_, *this, titre);
}

void frmmain::mnu_outilnervinter_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "3t"})) {
        ShowBeside<frmnervure>(*this, programme_, picture_->PlaceDuDessin());
    }
}

void frmmain::mnu_OutlilDiedre_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "10t"})) {
        ShowBeside<frmdiedre>(*this, programme_, picture_->PlaceDuDessin());
    }
}

void frmmain::mnu_Outilcoord_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "11t"})) {
        ShowBeside<frmCoord>(*this, programme_, picture_->PlaceDuDessin());
    }
}

void frmmain::mnu_outilevolut_Click() {
    if (ControleSeparateurCommande(programme_, {"MenuOutils", "4t"}) &&
        ConfirmeJeu(programme_, *this)) {
        FaitPlaceAuJeu(programme_, *this);
        frmribevol dialog(programme_, *this, this);
        ShowModal(dialog);
    }
}

void frmmain::mnu_outilevolut2_Click() {
    if (!ControleSeparateurCommande(programme_, {"MenuOutils", "4at"}) ||
        !ConfirmeJeu(programme_, *this)) {
        return;
    }
    // Whoever calls off the number has no set, and still has his rib.
    if (const int count = DemandeNombre(programme_, S(windowTitle())); count != 0) {
        FaitPlaceAuJeu(programme_, *this);
        programme_.rib.jeu.NbNervInter = ToInt16(count);
        frmribevol2 dialog(programme_, *this, this);
        ShowModal(dialog);
    }
}

void frmmain::mnu_outilpanneau_Click() {
    MontrePanneau({});
}

void frmmain::mnu_outilaile_Click() {
    MontreAile({});
}

namespace {

/// A window for the file, or empty where the path is; nothing where the file was refused.
template <class Window>
void MontreFichier(Programme &programme, frmmain &main, const std::string &path) {
    Window dialog(programme, &main);
    if (path.empty() || dialog.Ouvre(path)) {
        main.AfficheFichiersRecents();
        ShowModal(dialog);
        main.AfficheFichiersRecents();
    }
}

} // namespace

void frmmain::MontrePanneau(const std::string &path) {
    if (ControleSeparateurCommande(programme_, {"Panel", "40"})) {
        MontreFichier<frmpanneau>(programme_, *this, path);
    }
}

void frmmain::MontreAile(const std::string &path) {
    if (ControleSeparateurCommande(programme_, {"Plan", "141"})) {
        MontreFichier<frmaile>(programme_, *this, path);
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

void frmmain::mnu_OutilCompare_Click() {
    CompareProfils(programme_, *this);
}

void frmmain::mnu_outilEpCourb_Click() {
    ModifieEpCourb(programme_, *this);
}

void frmmain::mnu_Outilcoupl_Click() {
    TraceSimple(programme_, *this);
}

void frmmain::mnu_calc_Click() {
    OuvreCalculette(programme_);
}

} // namespace loftwing
