// The search for the airfoil that a rib components file names.

#include "persist/LireEcrire.h"

#include "base/disk.h"
#include "base/file_name.h"
#include "base/text_encoding.h"
#include "persist/lignes_composants.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// Whether a rib file, which has a line for a name and is UTF-8, writes `fichier` as `nom`. Names
/// that it can write as they are don't come here.
bool SEcritComme(const std::string &fichier, const std::string &nom) {
    const bool odd = fichier.find_first_of("\r\n") != std::string::npos || !IsUtf8(fichier);
    return odd && TexteDeLigne(fichier) == nom;
}

/// One walk through a folder and all below it.
class Recherche {
  public:
    Recherche(const std::string &nom, const std::function<void()> &pause)
        : nom_(nom), pause_(pause) {}

    /// The last hit below `folder`, its own file first; without one, the last file whose name a rib
    /// file can't hold as it is.
    std::string Dans(const fs::path &folder) {
        found_.clear();
        alike_.clear();
        seen_.clear();
        Parcourt(folder);
        return found_.empty() ? alike_ : found_;
    }

  private:
    const std::string &nom_;
    const std::function<void()> &pause_;
    std::string found_;
    std::string alike_;
    std::set<fs::path> seen_; ///< real places, so that links can't lead in a circle

    void Parcourt(const fs::path &folder) {
        // A list of its own instead of the call stack: folders may be nested deeply.
        std::vector<fs::path> ahead{folder};
        while (!ahead.empty()) {
            const fs::path here = ahead.back();
            ahead.pop_back();
            if (!Neuf(here)) {
                continue;
            }
            pause_();
            const std::string path = TextOf(here / PathOf(nom_));
            if (IsPlainFile(path)) {
                found_ = path;
            }
            std::vector<fs::path> below = DossiersDe(here);
            std::sort(below.rbegin(), below.rend()); // the first one is taken first
            ahead.insert(ahead.end(), below.begin(), below.end());
        }
    }

    bool Neuf(const fs::path &folder) {
        std::error_code error;
        const fs::path real = RealPath(folder, error);
        return !error && seen_.insert(real).second;
    }

    std::vector<fs::path> DossiersDe(const fs::path &folder) {
        std::vector<fs::path> folders;
        std::error_code error;
        fs::directory_iterator entry(folder, error);
        while (!error && entry != fs::directory_iterator()) {
            std::error_code unknown;
            if (entry->is_directory(unknown)) {
                folders.push_back(entry->path());
            } else if (SEcritComme(TextOf(entry->path().filename()), nom_) &&
                       entry->is_regular_file(unknown)) {
                alike_ = TextOf(entry->path());
            }
            entry.increment(error);
        }
        return folders;
    }
};

/// The file of a folder that a rib file writes as `nom`; the last one where there are several.
std::string SemblableDans(const fs::path &folder, const std::string &nom) {
    std::vector<std::string> alike;
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
    while (!error && entry != fs::directory_iterator()) {
        std::error_code unknown;
        if (SEcritComme(TextOf(entry->path().filename()), nom) && entry->is_regular_file(unknown)) {
            alike.push_back(TextOf(entry->path()));
        }
        entry.increment(error);
    }
    return alike.empty() ? std::string() : *std::max_element(alike.begin(), alike.end());
}

/// Whether a name is one of a file and no path.
bool EstNomNu(const std::string &nom) {
    return !nom.empty() && nom != "." && nom != ".." && nom.find('\0') == std::string::npos &&
           NameIn(nom) == nom;
}

} // namespace

std::string ChercheProfil(const std::vector<std::string> &dossiers, const std::string &nom,
                          const std::function<void()> &pause) {
    if (!EstNomNu(nom)) {
        return {};
    }
    Recherche search(nom, pause);
    for (const std::string &folder : dossiers) {
        std::string path = search.Dans(PathOf(folder));
        if (!path.empty()) {
            return path;
        }
    }
    return {};
}

std::string ProfilACote(const std::string &chemin_rib, const std::string &nom) {
    const fs::path folder = PathOf(chemin_rib).parent_path();
    std::string beside = TextOf(folder / PathOf(nom));
    if (!EstNomNu(nom)) {
        return {};
    }
    return IsPlainFile(beside) ? beside : SemblableDans(folder, nom);
}

} // namespace loftwing
