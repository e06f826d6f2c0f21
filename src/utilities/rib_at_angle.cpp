#include "utilities/rib_at_angle.h"

#include "base/number_text.h"
#include "platform/busy_pointer.h"
#include "utilities/tool_files.h"

namespace loftwing {

namespace {

constexpr std::string_view kPicturePoint = "0.00000000";

} // namespace

std::string TexteEtire(const std::string &ligne1, const ProfilChoisi &profil, double diviseur) {
    std::vector<std::string> lignes{ligne1};
    for (long i = 1; i <= profil.NbPoints; ++i) {
        lignes.push_back(Format(profil.ProfilX(i), kPicturePoint) + "  " +
                         Format(Quotient(profil.ProfilY(i), diviseur), kPicturePoint));
    }
    return TexteDeLignes(lignes);
}

FileQuestion QuestionProfil(const std::string &titre, const std::string &filtre,
                            const std::string &dossier, const std::string &nom) {
    FileQuestion question;
    question.title = titre;
    question.folder = dossier;
    question.name = NomDeFichier(nom);
    question.filter_text = filtre + " (*.dat)";
    question.default_extension = "dat";
    return question;
}

bool EnregistreProfil(const Messages &messages, const FileQuestion &question,
                      const std::function<std::string()> &texte) {
    try {
        const std::string path = messages.platform.ChooseSaveFile(question);
        if (!path.empty()) {
            const Sablier sablier(messages.platform);
            EcritFichier(path, texte(), Flush::yes);
        }
        return true;
    } catch (const Failure &failure) {
        RapporteAngle(messages, failure);
        return false;
    }
}

} // namespace loftwing
