// The views of the main window that stand in the rib's place, and the commands that bring them up.

#include "base/version.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/frmopen.h"
#include "output/view_screen.h"
#include "platform/busy_pointer.h"
#include "platform/qt_form.h"
#include "programme/load.h"
#include "programme/rib_steps.h"
#include "programme/rib_trial.h"
#include "programme/special_views.h"
#include "programme/startup.h"
#include "utilities/frmEpCourb.h"

namespace loftwing {

void frmmain::mnu_OutilCompare_Click() {
    if (!ControleSeparateurCommande(programme_, {"MenuOutils", "2t"})) {
        return;
    }
    RibModel &rib = programme_.rib;
    if (rib.ProfilCharge &&
        !ConfirmePerte(programme_, {"OutilCompare", "1"}, {"OutilCompare", "2"})) {
        return;
    }
    const VueAvant before{rib.ModeCompare, rib.ModeCouple, RetourDuRib(rib)};
    if (!before.ModeCompare) {
        programme_.compare.OublieProfil2();
    }
    rib.ModeCouple = false;
    FermeDialogues();
    rib.Annule = false;
    rib.ModeCompare = true;
    if (rib.MemProfil) {
        DemandeProfil2(std::nullopt);
    } else if (DemandeProfil1(before)) {
        DemandeProfil2(rib.ExtradosMaxi);
    }
}

bool frmmain::DemandeProfil1(const VueAvant &before) {
    RibModel &rib = programme_.rib;
    if (!Saisit("corde")) {
        // The mode stays set, but what is on the screen is still what is printed and exported.
        rib.ModeCouple = before.ModeCouple;
        return false;
    }
    frmopen picker(programme_, *this, this);
    picker.setWindowTitle(Q(programme_.Text({"OutilCompare", "3"}) + "  #1"));
    picker.MontreMemoire(true, {});
    picker.LaisseLeRib();
    ShowModal(picker);
    if (rib.Annule) {
        before.retour();
        rib.ModeCompare = before.ModeCompare;
        rib.ModeCouple = before.ModeCouple;
        return false;
    }
    const Sablier sablier(programme_.platform);
    DesactiveCommandes();
    ActiveCommandesVue();
    picture_->Montre(nullptr);
    picture_->RegleDefilement();
    setWindowTitle(QString::fromUtf8(kTitre));
    NoteRecent(programme_, rib.CheminProfil);
    AfficheFichiersRecents();
    if (PrendProfil1(programme_) == Preparation::impossible) {
        affclear();
        return false;
    }
    panels_.Montre(1, kVersion);
    panels_.Montre(2, EtatProfil1(rib, programme_.compare, programme_.SaisieEnCours()));
    return true;
}

void frmmain::DemandeProfil2(std::optional<double> haut1) {
    RibModel &rib = programme_.rib;
    const Comparaison &compare = programme_.compare;
    panels_.Montre(2, EtatNom1(compare, programme_.messages));
    rib.Annule = false;
    {
        frmopen picker(programme_, *this, this);
        picker.setWindowTitle(Q(programme_.Text({"OutilCompare", "3"}) + " #2"));
        picker.MontreMemoire(false, programme_.Text({"MainTolbar", "11"}) +
                                        " #1 = " + compare.CompareNom1);
        picker.LaisseLeRib();
        ShowModal(picker);
    }
    if (rib.Annule) {
        rib.ModeCompare = false;
        panels_.Montre(2, "");
        affclear();
        return;
    }
    const Sablier sablier(programme_.platform);
    // An airfoil 1 that was kept may have come to a window full of a rib's commands.
    DesactiveCommandes();
    ActiveCommandesVue();
    NoteRecent(programme_, rib.CheminProfil);
    AfficheFichiersRecents();
    if (PrendProfil2(programme_, haut1) == Preparation::impossible) {
        affclear();
        return;
    }
    afficheCompare();
}

void frmmain::mnu_outilEpCourb_Click() {
    if (!ControleSeparateurCommande(programme_, {"MenuOutils", "5t"})) {
        return;
    }
    RibModel &rib = programme_.rib;
    if (rib.ProfilCharge &&
        !ConfirmePerte(programme_, {"FrmMainMessage", "9"}, {"FrmMainMessage", "10"})) {
        return;
    }
    mnu_fileprofilopen_Click();
    if (rib.Annule || !rib.ProfilCharge) {
        return;
    }
    rib.NouvExtrados.fill(0);
    rib.NouvIntrados.fill(0);
    RazRib(rib, ToSingle(NombreMm(rib.EpBAAfich, programme_.SaisieEnCours())));
    afficheEpcourb();
    if (!rib.ProfilCharge) {
        return; // the drawing failed
    }
    frmEpCourb dialog(programme_, *this, this);
    if (ShowModal(dialog) != QDialog::Accepted) {
        return;
    }
    NoteRecent(programme_, dialog.Fichier());
    AfficheFichiersRecents();
    mnuFileMRU_Click(dialog.Fichier());
    if (rib.ModeEpCourb) {
        affclear(); // the new file is gone or can't be read, and the old airfoil has no view
    }
}

void frmmain::mnu_Outilcoupl_Click() {
    RibModel &rib = programme_.rib;
    mnu_affclear_Click();
    if (rib.ProfilCharge) {
        return; // the user keeps the rib
    }
    rib.ModeCouple = true;
    commands_.Met(EtatCommandes::couple);
    frmopen picker(programme_, *this, this);
    picker.setWindowTitle(Q(programme_.Text({"frmopen", "35"})));
    ShowModal(picker);
    if (rib.Annule) {
        // Nothing to print or save: the commands are those of a cleared rib.
        commands_.Met(EtatCommandes::vide);
        return;
    }
    const Sablier sablier(programme_.platform);
    rib.ModeCouple = true; // a file that couldn't be read in the picker has cleared everything
    commands_.Met(EtatCommandes::couple);
    rib.NomFichierRib = rib.NomProfil;
    setWindowTitle(Q(TitreCouple(rib)));
    PrepareTraceSimple(programme_);
    afficheCouple();
}

} // namespace loftwing
