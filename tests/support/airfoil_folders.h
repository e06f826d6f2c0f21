/// Folders of airfoil files to try things on.
#pragma once

#include <algorithm>
#include <filesystem>
#include <locale>
#include <vector>

namespace loftwing {

/// The airfoil files of a folder, sorted; none where it isn't there.
inline std::vector<std::filesystem::path> AirfoilFilesOf(const std::filesystem::path &folder) {
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(folder)) {
        for (const auto &entry : std::filesystem::directory_iterator(folder)) {
            const std::string extension = entry.path().extension().string();
            if (extension == ".dat" || extension == ".cor") {
                files.push_back(entry.path());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Those of a large collection beside the project. None where that isn't there, and none in any but
/// one of the locales that tests run under: they take long, and small tests hold in all of them
/// what a decimal comma could change.
inline std::vector<std::filesystem::path> LargeCollection() {
    return std::locale().name().starts_with("fr_FR")
               ? AirfoilFilesOf(std::filesystem::path(LOFTWING_SOURCE_DIR) / ".." / "shared" /
                                "airfoils")
               : std::vector<std::filesystem::path>();
}

/// Why a test of it is skipped.
inline constexpr const char *kNoCollection = "no collection here, or not in this locale";

} // namespace loftwing
