#include "programme/dossiers.h"

#include "lang/ini_file.h"

#include <filesystem>

namespace loftwing {

namespace {

constexpr const char *kSection = "Repertoires";

} // namespace

std::string DossierRetenu(const Programme &programme, const char *key,
                          const std::string &fallback) {
    const std::string folder = GetINIFile(kSection, key, programme.paths.fichier);
    return folder.empty() ? fallback : folder;
}

void RetientDossier(const Programme &programme, const char *key, const std::string &path) {
    WriteINIFile(kSection, key, std::filesystem::path(path).parent_path().string(),
                 programme.paths.fichier);
}

} // namespace loftwing
