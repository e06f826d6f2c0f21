#include "utilities/rib_set_files.h"

#include "base/file_name.h"

namespace loftwing {

namespace {

/// More names would fill the screen.
constexpr int kNommes = 6;

} // namespace

FichiersEcrits FichiersDuJeu(const JeuDeNervures &jeu, const Messages &messages) {
    FichiersEcrits files = {jeu.dossier + NomResume(jeu)};
    for (int number = 1; number <= static_cast<int>(jeu.nervures.size()); ++number) {
        files.insert(jeu.dossier + NomNervure(jeu, number, messages));
    }
    return files;
}

FichiersEcrits FichiersRemplaces(const JeuDeNervures &jeu, const FichiersEcrits &ecrits,
                                 const Messages &messages) {
    FichiersEcrits replaced = FichiersDuJeu(jeu, messages);
    std::erase_if(replaced, [&ecrits](const std::string &path) {
        return ecrits.contains(path) || !IsPlainFile(path);
    });
    return replaced;
}

std::string TexteRemplacement(const FichiersEcrits &files, const Messages &messages) {
    std::string text =
        messages.Text({"FrmRibevol", "140"}) + "\n" + FolderOf(*files.begin()) + "\n\n";
    int named = 0;
    for (const std::string &path : files) {
        if (named == kNommes) {
            text += "... (" + std::to_string(files.size()) + ")\n";
            break;
        }
        text += NameIn(path) + "\n";
        ++named;
    }
    return text + "\n" + messages.Text({"FrmRibevol", "141"});
}

} // namespace loftwing
