#include "programme/rib_steps.h"

#include "base/version.h"
#include "core/contour.h"
#include "features/inserted_text.h"
#include "features/rib_entry.h"
#include "output/page_setup.h"
#include "output/screen_plot.h"
#include "output/view_plots.h"
#include "platform/busy_pointer.h"
#include "programme/load.h"

namespace loftwing {

namespace {

bool PeutPerdre(const Programme &programme) {
    return programme.rib.Modifie && !CompareEnVue(programme.rib, programme.compare);
}

/// The user's defaults. They bring the user's unit back where the cleared rib was shown in the
/// other one, and the page that goes with it.
void RelitDefauts(Programme &programme, CommandView &view) {
    const std::string Unite = programme.settings.Unite;
    LitDefauts(programme.ReglagesEnCours());
    if (programme.settings.Unite != Unite) {
        LitMarges(programme.ReglagesEnCours());
        ReplaceYdprint(programme.settings.page, programme.settings.Unite);
        view.AfficheUnite();
    }
}

void Vide(Programme &programme, CommandView &view) {
    view.FermeDialogues();
    VideRib(programme);
    view.ViewReset();
    view.ActiveCommandesVides();
    view.MontreCoches();
    ControlRep(programme.ReglagesEnCours(), programme.paths.programme);
    view.Panneau(2, "");
    view.Titre(kTitre);
    programme.rib.Zoom = FacteurZoom(kZoomRows[kZoomRow100]);
    view.RemetZoom();
    view.VideImage();
    RelitDefauts(programme, view);
}

} // namespace

bool ConfirmePerte(const Programme &programme, LngKey text, LngKey title) {
    return !PeutPerdre(programme) ||
           programme.messages.Confirm(programme.Text(text), programme.Text(title));
}

bool ConfirmeFin(const Programme &programme) {
    const std::string text = PeutPerdre(programme)
                                 ? programme.Text({"FrmMainMessage", "4"})
                                 : programme.Text({"TextButton", "17"}) + " " + kTitre + " ? ";
    return programme.messages.Confirm(text, kTitre);
}

void RepriseProfil(Programme &programme, CommandView &view, const RibAvant &before) {
    view.Titre(TitreFenetre(programme.rib, programme.messages));
    const Sablier sablier(programme.platform);
    EntreProfil(programme);
    view.AfficheFichiersRecents();
    CordeDuTitre(programme.rib, programme.SaisieEnCours());
    RepriseTexte(programme.rib, before.etiquette, programme.messages);
    RecalculProfil(programme, view);
}

void RecalculProfil(Programme &programme, CommandView &view) {
    if (PrepareContour(programme.rib, programme.messages) == Preparation::impossible) {
        view.affclear();
        return;
    }
    view.ViewReset();
    view.ActiveCommandes();
    view.affiche();
}

void ChangeCorde(Programme &programme, CommandView &view) {
    if (!view.Saisit("corde")) {
        return;
    }
    RibModel &rib = programme.rib;
    rib.Modifie = rib.Modifie || !CompareEnVue(rib, programme.compare);
    view.RetraceVues();
    MajGabarit(rib, programme.SaisieEnCours());
    view.affiche();
}

void VideTout(Programme &programme, CommandView &view) {
    const Sablier sablier(programme.platform);
    programme.messages.Garde(" Main/AffichClear", [&] { Vide(programme, view); });
}

void DemandeVide(Programme &programme, CommandView &view) {
    const RibModel &rib = programme.rib;
    const bool ask = rib.ProfilCharge && !rib.ModeCouple && !rib.FichierRibOuvert;
    if (!ask || ConfirmePerte(programme, {"FrmMainMessage", "5"}, {"FrmMainMessage", "6"})) {
        view.affclear();
    }
}

} // namespace loftwing
