#include "app/resource_paths.h"

#include <cstdlib>
#include <filesystem>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

fs::path ConfigFolder() {
    // An empty variable counts as none.
    const char *config = std::getenv("XDG_CONFIG_HOME");
    if (config != nullptr && *config != '\0') {
        return config;
    }
    const char *home = std::getenv("HOME");
    return fs::path(home == nullptr ? "." : home) / ".config";
}

Paths PathsWith(const std::string &settings) {
    const std::string folder = ResourceFolder();
    return {folder, (fs::path(folder) / "lng").string(), settings,
            (fs::path(folder) / "help").string()};
}

} // namespace

std::string ResourceFolder() {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error).parent_path();
    if (fs::is_directory(program / "lng", error)) {
        return program.string();
    }
    return (program.parent_path() / "share" / "loftwing").string();
}

Paths WindowPaths(const std::string &settings) {
    Paths paths = PathsWith(settings);
    if (!settings.empty()) {
        return paths;
    }
    std::error_code error;
    const fs::path portable = fs::path(paths.programme) / "Loftwing.ini";
    if (fs::exists(portable, error)) {
        paths.fichier = portable.string();
        return paths;
    }
    const fs::path folder = ConfigFolder() / "loftwing";
    fs::create_directories(folder, error);
    paths.fichier = (folder / "Loftwing.ini").string();
    return paths;
}

Paths ConsolePaths(const std::string &settings) {
    return PathsWith(settings);
}

} // namespace loftwing
