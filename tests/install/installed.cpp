#include "install/installed.h"

#include "base/whole_file.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {

namespace fs = std::filesystem;

std::map<std::string, std::string> Snapshot(const std::string &folder) {
    std::map<std::string, std::string> all;
    for (const auto &entry : fs::recursive_directory_iterator(folder)) {
        const fs::file_status status = entry.symlink_status();
        std::string &seen = all[entry.path().string()];
        seen = std::to_string(static_cast<int>(status.type())) + " " +
               std::to_string(static_cast<unsigned>(status.permissions())) + " " +
               std::to_string(entry.last_write_time().time_since_epoch().count());
        if (fs::is_regular_file(status)) {
            seen += " " + ReadWholeFile(entry.path().string());
        }
    }
    return all;
}

std::vector<std::string> FilesBelow(const std::string &folder) {
    std::vector<std::string> files;
    for (const auto &entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_directory()) {
            files.push_back(fs::relative(entry.path(), folder).string());
        }
    }
    return files;
}

const Installed &Installed::Get() {
    static const Installed installed;
    return installed;
}

Installed::Installed() {
    const Ran ran =
        RunShell("umask 022; DESTDIR=" + ShellWord(root_.Path()) + " " + ShellWord(LOFTWING_CMAKE) +
                 " --install " + ShellWord(LOFTWING_BINARY_DIR) + " --strip --prefix /usr");
    EXPECT_EQ(ran.status, 0) << ran.err;
}

std::string AtHome(const std::string &home) {
    return "cd " + ShellWord(home) +
           " && env -i PATH=/usr/bin:/bin LC_ALL=C LANG=C HOME=" + ShellWord(home) +
           " XDG_RUNTIME_DIR=" + ShellWord(home) +
           " QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 ";
}

} // namespace loftwing
