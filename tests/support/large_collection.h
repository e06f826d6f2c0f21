/// A large collection of airfoil files beside the project, where there is one.
#pragma once

#include <algorithm>
#include <filesystem>
#include <locale>
#include <vector>

namespace loftwing {

/// Its files, sorted. Empty where it isn't there, and in all runs of a test program but one: they
/// take long, and small tests hold in every locale what a decimal comma could change.
inline std::vector<std::filesystem::path> LargeCollection() {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(LOFTWING_SOURCE_DIR) / ".." / "shared" / "airfoils";
    std::vector<fs::path> files;
    std::error_code error;
    if (!std::locale().name().starts_with("fr_FR") || !fs::is_directory(folder, error)) {
        return files;
    }
    for (const auto &entry : fs::directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

inline constexpr const char *kNoCollection =
    "no collection here, or not its turn: see LargeCollection";

} // namespace loftwing
