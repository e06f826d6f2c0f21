#include "programme/load.h"

#include "base/number_text.h"
#include "base/version.h"
#include "output/page_setup.h"

namespace loftwing {

namespace {

constexpr const char *kLabelRecents = " Main/FileMru";

void LitOuEcrit(Programme &programme) {
    const Reglages reglages = programme.ReglagesEnCours();
    const std::string &folder = programme.paths.programme;
    ValeursDefaut(reglages, folder);
    programme.PremierDemarrage =
        GetINIFile("Repertoires", "Install", programme.paths.fichier).empty();
    if (programme.PremierDemarrage) {
        ReadInstallFolders(reglages, folder);
        programme.settings.fichier.perdu = !EcritTout(reglages);
    } else {
        LitTout(reglages);
    }
}

} // namespace

void ChargeReglages(Programme &programme) {
    programme.rib.AffTrac = true;
    programme.rib.AffLignRef = true;
    programme.rib.Modifie = false;
    programme.settings.Unite = kUniteMm;
    try {
        LitOuEcrit(programme);
    } catch (const Failure &) {
        programme.settings.fichier.perdu = true;
        programme.settings.Unite = kUniteMm;
        ValeursDefaut(programme.ReglagesEnCours(), programme.paths.programme);
        ReadInstallFolders(programme.ReglagesEnCours(), programme.paths.programme);
    }
    DitReglagesPerdus(programme);
    ControlRep(programme.ReglagesEnCours(), programme.paths.programme);
    // Sheets of different days have the reference line at one height: another place holds for one
    // run of the program.
    ReplaceYdprint(programme.settings.page, programme.settings.Unite);
}

void DitReglagesPerdus(Programme &programme) {
    FichierReglages &file = programme.settings.fichier;
    const std::string words = programme.Text({"Message", "142"});
    if (!file.perdu || file.dit || words.empty()) {
        return;
    }
    file.dit = true;
    programme.messages.Tell(words + "\n" + programme.paths.fichier + "\n" +
                                programme.Text({"Message", "143"}),
                            kTitre, BoxIcon::warning);
}

void FinPremierDemarrage(Programme &programme) {
    WriteINIFile("Repertoires", "Install", "1", programme.paths.fichier);
    programme.PremierDemarrage = false;
}

void NoteRecent(Programme &programme, const std::string &path) {
    programme.DernierProfil = path;
    try {
        NoteFichierRecent(path, programme.paths.fichier);
    } catch (const Failure &failure) {
        PerdFichier(programme.settings, programme.messages, failure, kLabelRecents);
    }
}

FichiersRecents FichiersRecentsConnus(Programme &programme) {
    try {
        return LitFichiersRecents(programme.paths.fichier);
    } catch (const Failure &failure) {
        PerdFichier(programme.settings, programme.messages, failure, kLabelRecents);
        return {};
    }
}

void VideRib(Programme &programme) {
    RibModel &rib = programme.rib;
    RazRib(rib, ToSingle(NombreMm(rib.EpBAAfich, programme.SaisieEnCours())));
    // A cleared rib has the usual size of text again, and the next start begins with that.
    WriteINIFile("InsText", "TailleFont", NumberText(rib.texte.TailleFont),
                 programme.paths.fichier);
    // Compare and thickness views end with the view's reset, and the contour stays: nothing draws
    // it without an airfoil.
    rib.EpMaxi = 0;
    rib.CambrureMaxi = 0;
    rib.Partie<Vue>() = {};
    rib.NomProfil.clear();
    rib.EnteteProfil.clear();
    rib.ProfilCharge = false;
    rib.Efface = true;
    rib.Modifie = false;
    rib.Annule = false;
    rib.SansApercu = false;
    rib.FichierRibOuvert = false;
    rib.Partie<FichierConnu>() = {};
}

} // namespace loftwing
