#include "programme/tool_steps.h"

#include "base/version.h"
#include "programme/reglage_retenu.h"
#include "programme/rib_steps.h"
#include "utilities/ribevol2.h"

#include <string_view>

namespace loftwing {

namespace {

/// The page that tells of new versions, by the letter of the build.
constexpr std::string_view PageVersion(char lettre) {
    switch (lettre) {
    case 'E':
        return "majE.html";
    case 'H':
        return "majH.html";
    case 'D':
        return "majD.html";
    default:
        return "maj.html";
    }
}

} // namespace

bool ConfirmeJeu(Programme &programme, CommandView &view) {
    return !programme.rib.ProfilCharge ||
           ConfirmePerte(programme, view, {"FrmMainMessage", "11"}, {"FrmMainMessage", "12"});
}

void FaitPlaceAuJeu(const Programme &programme, CommandView &view) {
    if (programme.rib.ProfilCharge) {
        view.affclear();
    }
}

int DemandeNombre(const Programme &programme, const std::string &titre) {
    int count = 1;
    do {
        const auto answer =
            programme.platform.Ask(QuestionNombre(count, programme.messages), titre, "");
        count = NombreVariable(answer.value_or(""));
    } while (count < 0 || count > kNervuresVariables);
    return count;
}

std::optional<ProfilChoisi> ChoisitPourOutil(Programme &programme, CommandView &view,
                                             const std::string &titre) {
    RibModel &rib = programme.rib;
    const ProfilPrecedent before(rib);
    rib.MemProfil = false;
    const bool picked = view.ChoisitFichier({.titre = titre, .laisse_rib = true});
    const ProfilChoisi chosen = ProfilDuRib(rib);
    before.Rend(rib);
    return picked ? std::optional(chosen) : std::nullopt;
}

void VerifieVersion(const Programme &programme) {
    std::string site = ReglageRetenu(programme, "Version", "Site");
    while (site.ends_with('/')) {
        site.pop_back();
    }
    if (site.empty()) {
        programme.messages.Inform(programme.Text({"MenuHelp", "240"}) + "\n" +
                                      programme.paths.fichier + "\n[Version]\nSite=",
                                  kTitre);
        return;
    }
    programme.platform.OpenPage(site + "/loftwing/fr/" + std::string(PageVersion(kLettre)));
}

void OuvreCalculette(const Programme &programme) {
    if (programme.platform.StartProgram("calc")) {
        return;
    }
    std::string text = programme.Text({"Erreur", "6"});
    if (text.empty()) {
        text = "The windows Calculator does not exist";
    }
    std::string title = kTitre;
    title += " No-Calc";
    programme.messages.Tell(text, title, BoxIcon::warning);
}

} // namespace loftwing
