#include "programme/file_steps.h"

#include "base/file_name.h"
#include "base/version.h"
#include "base/whole_file.h"
#include "core/airfoil_picker.h"
#include "core/airfoil_reader.h"
#include "persist/LireEcrire.h"
#include "persist/default_entry.h"
#include "platform/busy_pointer.h"
#include "programme/console_platform.h"
#include "programme/dossiers.h"
#include "programme/import_steps.h"
#include "programme/load.h"
#include "programme/nom_propose.h"
#include "programme/rib_file.h"
#include "programme/rib_steps.h"

#include <sstream>

namespace loftwing {

namespace {

/// What the choosers of rib components files have in common.
FileQuestion QuestionComposants(const Programme &programme, const std::string &titre) {
    FileQuestion question;
    question.title = titre;
    question.folder =
        DossierRetenu(programme, "LastOpenLfw", programme.settings.repertoires.RepProfil);
    question.name = programme.rib.NomFichierRib;
    question.filter_text = programme.Text({"fileopen", "6"}) + " " + kTitre + " (*.lfw)";
    question.default_extension = "lfw";
    return question;
}

/// Opens a rib components file with the airfoil that it names, in another unit where one is given.
void newLfw(Programme &programme, CommandView &view, const std::string &path,
            std::string_view Unite = {}) {
    RetientDossier(programme, "LastOpenLfw", path);
    view.affclear();
    if (!Unite.empty()) {
        ChoisitUnite(programme.settings, Unite, programme.messages);
        view.AfficheUnite();
    }
    const Repertoires &folders = programme.settings.repertoires;
    OuvertureComposants end{};
    {
        const Sablier sablier(programme.platform);
        end = OuvreComposants(programme,
                              {path, {folders.RepProfil, folders.RepProfilevol}, true, true});
    }
    if (end == OuvertureComposants::ouverte) {
        programme.voisin = {};
        NoteRib(programme, CheminEntier(path));
        view.AfficheFichiersRecents();
        view.Titre(TitreComposants(programme, " "));
        view.MontreCoches();
        RecalculProfil(programme, view);
    } else if (end != OuvertureComposants::sans_profil) {
        view.affclear();
    }
}

/// What becomes of the rib when the reading of a file fails. When a file is refused it stays.
enum class SurEchec { vide, reste };

/// What import makes of a file that was refused, where the user wants that. Without any the box of
/// the refusal has told why.
std::optional<ImportedAirfoil> ProposeImport(const Programme &programme, const std::string &path,
                                             const ResultatLecture &refusal) {
    const Messages &messages = programme.messages;
    const std::string title = messages.Text({"frmopen", "1"});
    std::optional<ImportedAirfoil> airfoil = EssaieImport(path);
    if (!airfoil) {
        AnnonceLecture(refusal, messages, title);
        return std::nullopt;
    }
    const std::string question = refusal.boite + "\n\n" + messages.Text({"Import", "49"});
    return messages.Confirm(question, title) ? airfoil : std::nullopt;
}

void LitEtReprend(Programme &programme, CommandView &view, const std::string &path,
                  SurEchec on_failure) {
    RibModel &rib = programme.rib;
    const RibAvant before = RibAvantLecture(rib, programme.messages);
    rib.ModeCouple = false;
    rib.SansApercu = true;
    rib.CheminProfil = path;
    const ResultatLecture read = EssaieLecture(rib, programme.messages);
    rib.SansApercu = false;
    if (read.issue != Lecture::lu) {
        const auto import = ProposeImport(programme, path, read);
        if (read.issue == Lecture::echec && !import && on_failure == SurEchec::vide) {
            view.affclear();
            return;
        }
        // The rib on the screen is still the one that was there.
        rib.Partie<PartiesRib>() = before.parties;
        if (import) {
            MontreEtOuvreImport(programme, view, path, *import);
        }
        return;
    }
    NommeProfil(rib, path);
    rib.ProfilCharge = true;
    RepriseProfil(programme, view, before);
}

/// Whether the rib's file can still be read; where it can't, that is told. Another program may have
/// cut it short or taken it away, and then the rib that is open is the only one there is.
bool EncoreLisible(const Programme &programme, const std::string &path) {
    try {
        std::ostringstream
            unheard; // what is odd in the lengths is told when they are read for good
        ConsolePlatform silent(unheard, false);
        const Messages messages{silent, programme.language};
        RibModel trial;
        std::string airfoil;
        LitComposants(ReadWholeFile(path), trial, {programme.settings.Unite, messages}, airfoil);
        if (airfoil.empty()) {
            throw MakeFailure(kInputPastEnd, path); // nothing is left of it
        }
        return true;
    } catch (const Failure &failure) {
        programme.messages.Report(failure, EtiquetteOuverture(path));
        return false;
    }
}

/// Where the next and the previous airfoil are counted from.
std::string DepartVoisin(const Programme &programme) {
    const std::string &chemin = programme.rib.CheminProfil;
    const VoisinEssaye &tried = programme.voisin;
    if (!tried.chemin.empty() && tried.depuis == chemin) {
        return tried.chemin;
    }
    return chemin.empty() ? CheminDans(programme.settings.repertoires.LastOpenProfil, "")
                          : CheminEntier(chemin);
}

} // namespace

bool OuvreProfil(Programme &programme, CommandView &view) {
    RibModel &rib = programme.rib;
    const RibAvant before = RibAvantLecture(rib, programme.messages);
    const bool was_simple = rib.ModeCouple;
    rib.Efface = false;
    rib.MemProfil = false;
    rib.ModeCouple = false;
    if (!view.ChoisitFichier({.titre = programme.Text({"frmopen", "1"})})) {
        // The plot of the bare points is still what is shown.
        rib.ModeCouple = was_simple && rib.ProfilCharge;
        return false;
    }
    return RepriseProfil(programme, view, rib.Efface ? RibAvantVide(rib) : before);
}

void OuvreRib(Programme &programme, CommandView &view) {
    if (programme.rib.ProfilCharge &&
        !ConfirmePerte(programme, view, {"fileopen", "1"}, {"fileopen", "2"})) {
        return;
    }
    const std::string path = programme.platform.ChooseOpenFile(
        QuestionComposants(programme, programme.Text({"fileopen", "2"})));
    if (!path.empty()) {
        newLfw(programme, view, path);
    }
}

void OuvreFichier(Programme &programme, CommandView &view, const std::string &path) {
    if (!EstComposants(path)) {
        LitEtReprend(programme, view, path, SurEchec::vide);
    } else if (ConfirmePerte(programme, view, {"fileopen", "1"}, {"fileopen", "2"})) {
        newLfw(programme, view, path);
    }
}

void OuvreAutreUnite(Programme &programme, CommandView &view) {
    if (ConfirmePerte(programme, view, {"fileopen", "1"}, {"fileopen", "2"})) {
        const std::string path = programme.rib.CheminRib; // goes with the rib
        if (!EncoreLisible(programme, path)) {
            return;
        }
        newLfw(programme, view, path, AutreUnite(programme.settings.Unite));
    }
}

void OuvreRibRecent(Programme &programme, CommandView &view, const std::string &path) {
    if (IsThere(path)) {
        OuvreFichier(programme, view, path);
    } else {
        programme.messages.Inform(programme.Text({"FrmMainMessage", "216"}) + "\n" + path,
                                  programme.Text({"fileopen", "2"}));
    }
}

void OuvreVoisin(Programme &programme, CommandView &view, int pas) {
    const std::string from = DepartVoisin(programme);
    const std::string path = ProfilVoisin(from, pas);
    if (path.empty()) {
        const std::string text = pas > 0 ? programme.Text({"FrmMainMessage", "214"})
                                         : programme.Text({"FrmMainMessage", "215"});
        programme.messages.Inform(text + "\n" + DossierDe(from), kTitre);
        return;
    }
    programme.voisin = {path, programme.rib.CheminProfil};
    // Who leafs through a folder meets files that are no airfoils; they must not cost the rib.
    LitEtReprend(programme, view, path, SurEchec::reste);
}

std::string EtiquetteOuverture(const std::string &path) {
    return EstComposants(path) ? " LireEcrire/newLfw" : " Main/FileMru";
}

void EnregistreRib(Programme &programme, CommandView &view) {
    RibModel &rib = programme.rib;
    FileQuestion question = QuestionComposants(programme, programme.Text({"filesaveas", "1"}));
    if (!EstComposants(question.name)) {
        // A name with a point in it would count as having an extension.
        question.name = NomPropose(programme) + ".lfw";
    }
    const std::string path = programme.platform.ChooseSaveFile(question);
    if (path.empty()) {
        return;
    }
    RetientDossier(programme, "LastOpenLfw", path);
    WriteWholeFile(path, EcritComposants(rib, programme.settings.Unite), Flush::yes);
    rib.NomFichierRib = NameIn(path);
    rib.Modifie = false;
    rib.CheminRib = CheminEntier(path);
    NoteRib(programme, rib.CheminRib);
    view.AfficheFichiersRecents();
    const Repertoires &folders = programme.settings.repertoires;
    rib.ProfilAilleurs = !EstDans(rib.CheminProfil, {folders.RepProfil, folders.RepProfilevol});
    programme.histoire.Enregistre(rib);
    view.MontreAvis();
    view.Titre(TitreComposants(programme, "  "));
}

} // namespace loftwing
