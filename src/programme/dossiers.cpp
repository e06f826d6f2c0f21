#include "programme/dossiers.h"

#include "base/disk.h"
#include "base/file_name.h"
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
    const fs::path whole = WholePath(PathOf(path), error);
    return error ? path : TextOf(whole);
}

std::string DossierDe(const std::string &path) {
    return FolderOf(CheminEntier(path));
}

std::string CheminVu(const std::string &fichier, const std::string &autre) {
    const fs::path whole = PathOf(CheminEntier(autre));
    const fs::path near = whole.lexically_relative(PathOf(DossierDe(fichier)));
    const bool below = !near.empty() && *near.begin() != "..";
    return WithSlashes(TextOf(below ? near : whole));
}

bool EstDans(const std::string &path, const std::vector<std::string> &dossiers) {
    std::error_code error;
    const fs::path place = RealPlace(PathOf(path), error);
    return std::any_of(dossiers.begin(), dossiers.end(), [&](const std::string &folder) {
        std::error_code unknown;
        const fs::path real = RealPath(PathOf(folder), unknown);
        return !unknown && EstSous(place, real);
    });
}

std::string DossierRetenu(const Programme &programme, const char *key,
                          const std::string &fallback) {
    const std::string folder = ReglageRetenu(programme, kSection, key);
    return folder.empty() ? fallback : folder;
}

void RetientDossier(const Programme &programme, const char *key, const std::string &path) {
    const std::string folder = FolderOf(path);
    if (IniFile::Keeps(folder)) {
        WriteINIFile(kSection, key, folder, programme.paths.fichier);
    }
}

} // namespace loftwing
