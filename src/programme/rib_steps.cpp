#include "programme/rib_steps.h"

#include "base/text_encoding.h"
#include "base/version.h"
#include "core/airfoil_import.h"
#include "core/contour.h"
#include "core/contour_fault.h"
#include "features/inserted_text.h"
#include "features/rib_entry.h"
#include "output/page_setup.h"
#include "output/screen_plot.h"
#include "output/view_plots.h"
#include "platform/busy_pointer.h"
#include "programme/file_steps.h"
#include "programme/load.h"
#include "programme/sans_place.h"

namespace loftwing {

namespace {

bool PeutPerdre(const Programme &programme) {
    return programme.rib.Modifie && !CompareEnVue(programme.rib, programme.compare);
}

/// Bare points have no rib components file.
bool PeutEnregistrer(const RibModel &rib) {
    return rib.ProfilCharge && !rib.ModeCouple;
}

/// Saves the rib before it goes; false where it is still unsaved.
bool EnregistreAvant(Programme &programme, CommandView &view) {
    programme.messages.Garde(kEtiquetteEnregistre, [&] { EnregistreRib(programme, view); });
    return !programme.rib.Modifie;
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

/// The contour, and how far it leaves the airfoil's points: nothing draws that, a notice tells it.
Preparation Prepare(Programme &programme) {
    RibModel &rib = programme.rib;
    const Preparation made = PrepareContour(rib, programme.messages);
    rib.EcartContour = made == Preparation::complete ? MadeContourDeviation(rib).value_or(0) : 0;
    return made;
}

/// Shows the rib of a new airfoil.
void MontreRib(CommandView &view) {
    view.ViewReset();
    view.ActiveCommandes();
    view.affiche();
}

/// Tells of a contour that is made but reaches farther than a drawing can. Found out by drawing it,
/// it would cost the rib that was there.
void RefuseTropGrand(Programme &programme) {
    AccuseLePlusGrand(programme.rib);
    Failure failure = MakeFailure(kOverflow);
    failure.Precise(TexteSansContour(programme.rib, programme.messages));
    programme.messages.Report(failure, " Main/PrintSubroutine");
}

/// The rib with the airfoil that was read, its chord and its contour; false where there is nothing
/// to draw or the user rather keeps the rib that was there.
bool EssaieProfil(Programme &programme) {
    {
        const Sablier sablier(programme.platform);
        ReprendProfil(programme.rib);
        CordeDuTitre(programme.rib, programme.SaisieEnCours());
        if (Prepare(programme) == Preparation::impossible) {
            return false;
        }
        if (!ContourTracable(programme.rib)) {
            RefuseTropGrand(programme);
            return false;
        }
    }
    return AccepteProfil(programme);
}

} // namespace

bool ConfirmePerte(Programme &programme, CommandView &view, LngKey text, LngKey title) {
    const Messages &messages = programme.messages;
    if (!PeutPerdre(programme)) {
        return true;
    }
    if (!PeutEnregistrer(programme.rib)) {
        return messages.Confirm(messages.Text(text), messages.Text(title));
    }
    return messages.ConfirmLoss(messages.Text(text), messages.Text(title),
                                [&] { return EnregistreAvant(programme, view); });
}

bool ConfirmeFin(Programme &programme, CommandView &view) {
    const Messages &messages = programme.messages;
    if (!PeutPerdre(programme)) {
        return messages.Confirm(messages.Text({"TextButton", "17"}) + " " + kTitre + " ? ", kTitre);
    }
    const RibModel &rib = programme.rib;
    if (!PeutEnregistrer(rib)) {
        return messages.Confirm(messages.Text({"FrmMainMessage", "4"}), kTitre);
    }
    const std::string name = ToUtf8(rib.NomFichierRib.empty() ? rib.NomProfil : rib.NomFichierRib);
    const BoxAnswer answer = programme.platform.Show(
        {messages.Text({"Undo", "32"}) + "\n" + name + "\n\n" + messages.Text({"Undo", "33"}),
         kTitre, BoxIcon::question, BoxButtons::save_discard_cancel, BoxAnswer::save});
    return answer == BoxAnswer::discard ||
           (answer == BoxAnswer::save && EnregistreAvant(programme, view));
}

bool RepriseProfil(Programme &programme, CommandView &view, const RibAvant &before) {
    RibModel &rib = programme.rib;
    bool taken = false;
    try {
        taken = EssaieProfil(programme);
    } catch (const Failure &) {
        rib.Partie<PartiesRib>() = before.parties;
        throw;
    }
    if (!taken) {
        rib.Partie<PartiesRib>() = before.parties;
        return false;
    }
    programme.voisin = {};
    RepriseTexte(rib, before.etiquette, programme.messages);
    const Sablier sablier(programme.platform);
    view.Titre(TitreFenetre(rib, programme.messages));
    NoteRecent(programme, rib.CheminProfil);
    view.AfficheFichiersRecents();
    MontreRib(view);
    return true;
}

void RecalculProfil(Programme &programme, CommandView &view) {
    if (Prepare(programme) == Preparation::impossible) {
        view.affclear();
        return;
    }
    MontreRib(view);
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
    if (ConfirmePerte(programme, view, {"FrmMainMessage", "5"}, {"FrmMainMessage", "6"})) {
        view.affclear();
    }
}

} // namespace loftwing
