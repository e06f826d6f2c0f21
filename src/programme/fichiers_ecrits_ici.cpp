#include "programme/fichiers_ecrits_ici.h"

#include "base/file_name.h"

#include <system_error>

namespace loftwing {

namespace {

std::filesystem::file_time_type MomentDe(const std::string &path) {
    std::error_code unknown;
    return std::filesystem::last_write_time(PathOf(path), unknown);
}

} // namespace

void FichiersEcritsIci::Note(const std::vector<std::string> &paths) {
    for (const std::string &path : paths) {
        moments_[path] = MomentDe(path);
    }
}

bool FichiersEcritsIci::Intact(const std::string &path) const {
    const auto noted = moments_.find(path);
    return noted != moments_.end() && noted->second == MomentDe(path);
}

} // namespace loftwing
