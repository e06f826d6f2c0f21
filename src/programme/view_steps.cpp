#include "programme/view_steps.h"

#include "base/version.h"
#include "core/units.h"
#include "output/view_screen.h"
#include "platform/busy_pointer.h"
#include "programme/file_steps.h"
#include "programme/load.h"
#include "programme/rib_steps.h"
#include "programme/rib_trial.h"
#include "programme/special_views.h"
#include "programme/startup.h"

#include <functional>
#include <optional>

namespace loftwing {

namespace {

/// What a comparison that is called off, or whose first airfoil can't be drawn, gives back.
struct VueAvant {
    PartiesRib parties;
    bool ModeCompare;
    bool ModeCouple;
    std::function<void()> retour; ///< the rib's dimensions
};

void NoteEtAfficheRecent(Programme &programme, CommandView &view, const std::string &path) {
    NoteRecent(programme, path);
    view.AfficheFichiersRecents();
}

/// The chord and airfoil 1 of a comparison; false when it ends here.
bool DemandeProfil1(Programme &programme, CommandView &view, const VueAvant &before) {
    RibModel &rib = programme.rib;
    if (!view.Saisit("corde")) {
        // The mode stays set, but what is on the screen is still what is printed and exported.
        rib.ModeCouple = before.ModeCouple;
        return false;
    }
    if (!view.ChoisitFichier({.titre = programme.Text({"OutilCompare", "3"}) + "  #1",
                              .laisse_rib = true,
                              .case_memoire = true})) {
        before.retour();
        rib.ModeCompare = before.ModeCompare;
        rib.ModeCouple = before.ModeCouple;
        return false;
    }
    const Sablier sablier(programme.platform);
    if (PrendProfil1(programme) == Preparation::impossible) {
        rib.Partie<PartiesRib>() = before.parties;
        return false;
    }
    view.DesactiveCommandes();
    view.ActiveCommandesVue();
    view.VideImage();
    view.Titre(kTitre);
    NoteEtAfficheRecent(programme, view, rib.CheminProfil);
    view.Panneau(1, kVersion);
    view.Panneau(2, EtatProfil1(rib, programme.compare, programme.SaisieEnCours()));
    return true;
}

void DemandeProfil2(Programme &programme, CommandView &view, std::optional<double> haut1) {
    RibModel &rib = programme.rib;
    view.Panneau(2, EtatNom1(programme.compare, programme.messages));
    if (!view.ChoisitFichier({.titre = programme.Text({"OutilCompare", "3"}) + " #2",
                              .laisse_rib = true,
                              .memoire = programme.Text({"MainTolbar", "11"}) +
                                         " #1 = " + programme.compare.CompareNom1})) {
        rib.ModeCompare = false;
        view.Panneau(2, "");
        view.affclear();
        return;
    }
    const Sablier sablier(programme.platform);
    // An airfoil 1 that was kept may have come to a window full of a rib's commands.
    view.DesactiveCommandes();
    view.ActiveCommandesVue();
    NoteEtAfficheRecent(programme, view, rib.CheminProfil);
    if (PrendProfil2(programme, haut1) == Preparation::impossible) {
        view.affclear();
        return;
    }
    view.afficheCompare();
}

} // namespace

void CompareProfils(Programme &programme, CommandView &view) {
    if (!ControleSeparateurCommande(programme, {"MenuOutils", "2t"})) {
        return;
    }
    RibModel &rib = programme.rib;
    if (rib.ProfilCharge &&
        !ConfirmePerte(programme, view, {"OutilCompare", "1"}, {"OutilCompare", "2"})) {
        return;
    }
    const VueAvant before{rib, rib.ModeCompare, rib.ModeCouple, RetourDuRib(rib)};
    if (!before.ModeCompare) {
        programme.compare.OublieProfil2();
    }
    rib.ModeCouple = false;
    view.FermeDialogues();
    rib.ModeCompare = true;
    if (rib.MemProfil) {
        DemandeProfil2(programme, view, std::nullopt);
    } else if (DemandeProfil1(programme, view, before)) {
        DemandeProfil2(programme, view, rib.ExtradosMaxi);
    }
}

void ModifieEpCourb(Programme &programme, CommandView &view) {
    if (!ControleSeparateurCommande(programme, {"MenuOutils", "5t"})) {
        return;
    }
    RibModel &rib = programme.rib;
    if (rib.ProfilCharge &&
        !ConfirmePerte(programme, view, {"FrmMainMessage", "9"}, {"FrmMainMessage", "10"})) {
        return;
    }
    if (!OuvreProfil(programme, view) || !rib.ProfilCharge) {
        return;
    }
    rib.NouvExtrados.fill(0);
    rib.NouvIntrados.fill(0);
    RazRib(rib, ToSingle(NombreMm(rib.EpBAAfich, programme.SaisieEnCours())));
    view.afficheEpcourb();
    if (!rib.ProfilCharge) {
        return; // the drawing failed
    }
    const std::optional<std::string> file = view.SaisitEpCourb();
    if (!file) {
        return;
    }
    NoteEtAfficheRecent(programme, view, *file);
    view.mnuFileMRU_Click(*file);
    if (rib.ModeEpCourb) {
        view.affclear(); // the new file is gone or can't be read, and the old airfoil has no view
    }
}

void TraceSimple(Programme &programme, CommandView &view) {
    RibModel &rib = programme.rib;
    view.mnu_affclear_Click();
    if (rib.ProfilCharge || rib.Modifie) {
        return; // the user keeps the rib
    }
    rib.ModeCouple = true;
    view.ActiveCommandesCouple();
    if (!view.ChoisitFichier({.titre = programme.Text({"frmopen", "35"})})) {
        // Nothing to print or save: the commands are those of a cleared rib.
        view.ActiveCommandesVides();
        return;
    }
    const Sablier sablier(programme.platform);
    rib.ModeCouple = true; // a file that couldn't be read in the picker has cleared everything
    view.ActiveCommandesCouple();
    rib.NomFichierRib = rib.NomProfil;
    view.Titre(TitreCouple(rib));
    PrepareTraceSimple(programme);
    view.afficheCouple();
}

} // namespace loftwing
