#include "programme/undo_steps.h"

#include "base/number_text.h"
#include "base/version.h"
#include "output/page_setup.h"
#include "output/screen_plot.h"
#include "output/view_screen.h"
#include "persist/default_entry.h"
#include "programme/load.h"
#include "programme/rib_file.h"
#include "programme/undo_words.h"

namespace loftwing {

namespace {

/// Another airfoil or another view: commands and caption are what they were then.
void MontreAutre(Programme &programme, CommandView &view, VueMontree vue) {
    switch (vue) {
    case VueMontree::vide:
        view.FermeDialogues();
        view.ActiveCommandesVides();
        view.Panneau(2, "");
        view.Titre(kTitre);
        view.VideImage();
        break;
    case VueMontree::rib:
    case VueMontree::epcourb:
        view.ActiveCommandes();
        view.Titre(TitreDuRib(programme));
        vue == VueMontree::rib ? view.affiche() : view.afficheEpcourb();
        break;
    case VueMontree::compare:
        view.FermeDialogues();
        view.DesactiveCommandes();
        view.ActiveCommandesVue();
        view.afficheCompare();
        break;
    case VueMontree::couple:
        view.FermeDialogues();
        view.ActiveCommandesCouple();
        view.Titre(TitreCouple(programme.rib));
        view.afficheCouple();
        break;
    }
}

void Remet(Programme &programme, CommandView &view, const EtatRib &from, const EtatRib &to) {
    const bool other = from.vue != to.vue || from.identite != to.identite ||
                       from.points != to.points || from.Unite != to.Unite;
    PrendUnite(programme, view, to.Unite);
    if (other) {
        view.ViewReset();
    }
    Pose(to, programme.rib, programme.compare);
    if (from.vue == VueMontree::vide || to.vue == VueMontree::vide) {
        PoseCoches(to, programme.rib);
    }
    programme.voisin = {};
    view.MontreCoches();
    if (other) {
        MontreAutre(programme, view, to.vue);
        return;
    }
    if (to.vue == VueMontree::rib) {
        view.Titre(TitreDuRib(programme));
    }
    view.RetraceVues();
    view.affiche();
}

/// The redraws of a state that is put back are no steps.
void Revient(Programme &programme, CommandView &view, const EtatRib &from, const EtatRib &to) {
    const auto thaw = [&programme] {
        programme.histoire.Degele(programme.rib, programme.compare, programme.settings.Unite);
    };
    programme.histoire.Gele();
    try {
        Remet(programme, view, from, to);
    } catch (const Failure &) {
        thaw();
        throw;
    }
    thaw();
}

} // namespace

void PrendUnite(Programme &programme, CommandView &view, const std::string &Unite) {
    if (programme.settings.Unite == Unite) {
        return;
    }
    ChoisitUnite(programme.settings, Unite, programme.messages);
    if (UniteSurFichier(programme.paths.fichier) == Trim(Unite)) {
        LitMarges(programme.ReglagesEnCours());
        ReplaceYdprint(programme.settings.page, Unite);
    }
    view.AfficheUnite();
}

void NoteEtat(Programme &programme) {
    programme.histoire.Note(programme.rib, programme.compare, programme.settings.Unite);
}

std::string PasAnnulable(const Programme &programme) {
    const RibHistory &history = programme.histoire;
    return history.PeutAnnuler()
               ? NomDuPas(history.Precedent(), history.Present(), programme.messages)
               : "";
}

std::string PasRetablissable(const Programme &programme) {
    const RibHistory &history = programme.histoire;
    return history.PeutRetablir()
               ? NomDuPas(history.Present(), history.Suivant(), programme.messages)
               : "";
}

void AnnulePas(Programme &programme, CommandView &view) {
    RibHistory &history = programme.histoire;
    NoteEtat(programme);
    if (history.PeutAnnuler()) {
        const EtatRib from = history.Present();
        Revient(programme, view, from, EtatRib(history.Recule()));
    }
}

void RetablitPas(Programme &programme, CommandView &view) {
    RibHistory &history = programme.histoire;
    NoteEtat(programme);
    if (history.PeutRetablir()) {
        const EtatRib from = history.Present();
        Revient(programme, view, from, EtatRib(history.Avance()));
    }
}

} // namespace loftwing
