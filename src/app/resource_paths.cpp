#include "app/resource_paths.h"

#include "base/file_name.h"
#include "platform/system.h"

#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// Where snapshots of unsaved work stand; empty where the user has no folder of his own.
std::string RecoveryFolder() {
    const fs::path data = DataFolder();
    return data.is_absolute() ? TextOf(data / "loftwing" / "recovery") : std::string();
}

Paths PathsWith(const std::string &settings) {
    const std::string folder = ResourceFolder();
    return {folder, TextOf(PathOf(folder) / "lng"), settings, TextOf(PathOf(folder) / "help")};
}

} // namespace

std::string ResourceFolder() {
    const fs::path program = ProgramFile().parent_path();
    const fs::path installed = program.parent_path() / "share" / "loftwing";
    const fs::path of_bundle = program.parent_path() / "Resources";
    for (const fs::path &folder : {program, of_bundle}) {
        std::error_code error;
        if (fs::is_directory(folder / "lng", error)) {
            return TextOf(folder);
        }
    }
    return TextOf(installed);
}

Paths WindowPaths(const std::string &settings) {
    Paths paths = PathsWith(settings);
    paths.secours = RecoveryFolder();
    if (!settings.empty()) {
        return paths;
    }
    std::error_code error;
    const fs::path portable = PathOf(paths.programme) / "Loftwing.ini";
    if (fs::exists(portable, error)) {
        paths.fichier = TextOf(portable);
        return paths;
    }
    const fs::path folder = ConfigFolder() / "loftwing";
    fs::create_directories(folder, error);
    paths.fichier = TextOf(folder / "Loftwing.ini");
    return paths;
}

Paths ConsolePaths(const std::string &settings) {
    return PathsWith(settings);
}

} // namespace loftwing
