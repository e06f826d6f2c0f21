#include "programme/panel_ends.h"

#include "base/file_name.h"
#include "base/version.h"
#include "platform/busy_pointer.h"
#include "programme/dossiers.h"
#include "programme/rib_file.h"

namespace loftwing {

std::string ChoisitBout(const Programme &programme, const std::string &titre) {
    FileQuestion question;
    question.title = titre;
    question.folder =
        DossierRetenu(programme, "LastOpenLfw", programme.settings.repertoires.RepProfil);
    question.filter_text = programme.Text({"fileopen", "6"}) + " " + kTitre + " (*.lfw)";
    question.default_extension = "lfw";
    std::string path = programme.platform.ChooseOpenFile(question);
    if (!path.empty()) {
        RetientDossier(programme, "LastOpenLfw", path);
    }
    return path;
}

std::optional<PartiesRib> LitBout(Programme &programme, const std::string &path) {
    RibModel &rib = programme.rib;
    const PartieGardee<PartiesRib> kept(rib);
    const Sablier sablier(programme.platform);
    rib.Partie<PartiesRib>() = {};
    ValeursDefautRib(rib);
    const Repertoires &folders = programme.settings.repertoires;
    DemandeComposants demande{path, {folders.RepProfil, folders.RepProfilevol}, false, true};
    if (OuvreComposants(programme, demande) != OuvertureComposants::ouverte) {
        return std::nullopt;
    }
    rib.ProfilCharge = true;
    return rib.Partie<PartiesRib>();
}

bool RibDeFenetre(const RibModel &rib) {
    return rib.ProfilCharge && !rib.ModeCompare && !rib.ModeCouple && !rib.ModeEpCourb;
}

std::string NomDuBout(const PartiesRib &bout) {
    return bout.CheminRib.empty() ? bout.NomProfil : NameIn(bout.CheminRib);
}

} // namespace loftwing
