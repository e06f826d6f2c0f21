#include "core/airfoil_picker.h"

#include "base/file_name.h"
#include "base/text_encoding.h"

#include <algorithm>
#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kCheminEntier = 30; // characters of a folder that is shown whole
constexpr std::size_t kCheminDebut = 12;
constexpr std::size_t kCheminFin = 10;

constexpr std::size_t kMotifEtCrochet = 6;
constexpr std::size_t kMotif = 5;

bool MemeLettre(char a, char b) {
    return LowerAscii(a) == LowerAscii(b);
}

bool Avant(const std::string &a, const std::string &b) {
    const auto less = [](char x, char y) {
        return static_cast<unsigned char>(LowerAscii(x)) <
               static_cast<unsigned char>(LowerAscii(y));
    };
    if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) {
        return true;
    }
    const bool after = std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), less);
    return !after && a < b;
}

Failure EchecDossier(const std::error_code &error, const std::string &folder) {
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted) {
        return MakeFailure(kPermissionDenied, folder);
    }
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory) {
        return MakeFailure(kPathNotFound, folder);
    }
    return MakeFailure(kDeviceError, folder);
}

void Classe(const fs::directory_entry &entry, std::string_view motif, ContenuDossier &contenu) {
    const std::string name = TextOf(entry.path().filename());
    if (name.starts_with('.')) {
        return;
    }
    std::error_code error; // a link that leads nowhere is neither
    if (entry.is_directory(error)) {
        contenu.dossiers.push_back(name);
    } else if (SuitMotif(name, motif) && entry.is_regular_file(error)) {
        contenu.fichiers.push_back(name);
    }
}

bool PeutEtreListe(const std::string &folder) {
    std::error_code error;
    const fs::directory_iterator first(PathOf(folder), error);
    return !error;
}

} // namespace

ProfilChoisi ProfilDuRib(const RibModel &rib) {
    return {rib.Partie<PointsLus>(), rib.NomProfil};
}

ProfilPrecedent::ProfilPrecedent(const RibModel &rib)
    : identite_(rib), points_(rib), texte_utilisateur_(rib.texte.TexteUtilisateur) {}

void ProfilPrecedent::Rend(RibModel &rib) const {
    rib.Partie<IdentiteProfil>() = identite_;
    rib.Partie<PointsLus>() = points_;
    rib.texte.TexteUtilisateur = texte_utilisateur_;
}

std::string CheminAbrege(const std::string &folder) {
    if (CharacterCount(folder) <= kCheminEntier) {
        return folder;
    }
    return FirstCharacters(folder, kCheminDebut) + "..." + LastCharacters(folder, kCheminFin);
}

std::string MotifDeLigne(const std::string &row) {
    return FirstCharacters(LastCharacters(row, kMotifEtCrochet), kMotif);
}

bool SuitMotif(std::string_view name, std::string_view motif) {
    const std::string_view extension = motif.substr(motif.starts_with('*') ? 1 : 0);
    return name.size() >= extension.size() &&
           std::equal(extension.begin(), extension.end(),
                      name.end() - static_cast<std::ptrdiff_t>(extension.size()), MemeLettre);
}

std::string CheminDans(const std::string &folder, const std::string &name) {
    return WithSeparator(folder) + name;
}

std::string DossierParent(const std::string &folder) {
    return Above(folder);
}

ContenuDossier LitDossier(const std::string &folder, std::string_view motif) {
    ContenuDossier contenu;
    std::error_code error;
    for (fs::directory_iterator entry(PathOf(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        Classe(*entry, motif, contenu);
    }
    if (error) {
        throw EchecDossier(error, folder);
    }
    std::sort(contenu.dossiers.begin(), contenu.dossiers.end(), Avant);
    std::sort(contenu.fichiers.begin(), contenu.fichiers.end(), Avant);
    return contenu;
}

std::string ProfilVoisin(const std::string &chemin, int pas) {
    const std::string folder = FolderOf(chemin);
    const std::string name = NameIn(chemin);
    std::vector<std::string> names = LitDossier(folder, "*").fichiers;
    std::erase_if(names, [](const std::string &each) {
        return !SuitMotif(each, "*.dat") && !SuitMotif(each, "*.cor");
    });
    auto place = name.empty() && pas < 0
                     ? names.end()
                     : std::lower_bound(names.begin(), names.end(), name, Avant);
    if (pas > 0) {
        place += place != names.end() && *place == name ? 1 : 0;
        return place == names.end() ? std::string() : CheminDans(folder, *place);
    }
    return place == names.begin() ? std::string() : CheminDans(folder, *std::prev(place));
}

std::string DossierDepart(const std::string &last) {
    std::error_code error;
    const fs::path current = fs::current_path(error);
    if (!last.empty()) {
        const fs::path folder = Plain(SeenFrom(current, PathOf(last)));
        std::string plain = TextOf(folder.has_filename() ? folder : folder.parent_path());
        if (PeutEtreListe(plain)) {
            return plain;
        }
    }
    return !error && PeutEtreListe(TextOf(current)) ? TextOf(current) : "/";
}

std::string TitreApercu(const RibModel &rib) {
    return rib.EnteteProfil.starts_with('1') ? rib.NomProfil : rib.EnteteProfil;
}

std::string NombreApercu(const RibModel &rib, const Messages &messages) {
    return std::to_string(rib.NbPoints) + " " + messages.Text({"frmopen", "24"});
}

std::string NomEcarte(const RibModel &rib) {
    if (rib.NomProfil == "Uninstal" || rib.NomProfil == "UNINSTAL") {
        return "Caution Uninstall file....";
    }
    for (const char *extension : {"LFW", "lfw", "TXT", "txt"}) {
        if (rib.ExtProfil == extension) {
            return "This file is NOT an Airfoil file....";
        }
    }
    return {};
}

} // namespace loftwing
