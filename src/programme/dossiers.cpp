#include "programme/dossiers.h"

#include "lang/ini_file.h"
#include "programme/reglage_retenu.h"

#include <algorithm>
#include <filesystem>

namespace loftwing {

namespace {

constexpr const char *kSection = "Repertoires";

namespace fs = std::filesystem;

/// Whether `place` begins with all of `folder`.
bool EstSous(const fs::path &place, const fs::path &folder) {
    return std::mismatch(folder.begin(), folder.end(), place.begin(), place.end()).first ==
           folder.end();
}

} // namespace

std::string CheminEntier(const std::string &path) {
    std::error_code error;
    const fs::path whole = fs::absolute(path, error);
    return error ? path : whole.lexically_normal().string();
}

std::string DossierDe(const std::string &path) {
    return fs::path(CheminEntier(path)).parent_path().string();
}

std::string CheminVu(const std::string &fichier, const std::string &autre) {
    const fs::path whole = CheminEntier(autre);
    const fs::path near = whole.lexically_relative(DossierDe(fichier));
    const bool below = !near.empty() && *near.begin() != "..";
    return (below ? near : whole).string();
}

bool EstDans(const std::string &path, const std::vector<std::string> &dossiers) {
    std::error_code error;
    const fs::path place = fs::weakly_canonical(path, error);
    return std::any_of(dossiers.begin(), dossiers.end(), [&](const std::string &folder) {
        std::error_code unknown;
        const fs::path real = fs::canonical(folder, unknown);
        return !unknown && EstSous(place, real);
    });
}

std::string DossierRetenu(const Programme &programme, const char *key,
                          const std::string &fallback) {
    const std::string folder = ReglageRetenu(programme, kSection, key);
    return folder.empty() ? fallback : folder;
}

void RetientDossier(const Programme &programme, const char *key, const std::string &path) {
    const std::string folder = fs::path(path).parent_path().string();
    if (IniFile::Keeps(folder)) {
        WriteINIFile(kSection, key, folder, programme.paths.fichier);
    }
}

} // namespace loftwing
