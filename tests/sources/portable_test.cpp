// Windows and macOS are kept possible: what only some systems have is asked for in platform/ and
// base/ and nowhere else.

#include "base/whole_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;

/// Words that mean a system: calls that only some have, variables that each names in its own way,
/// and branches for one of them.
const std::vector<std::string> kWords = {
    "access",        "alarm",    "chmod",       "chown",      "dup2",      "environ",
    "execl",         "execv",    "execve",      "execvp",     "fcntl",     "fileno",
    "flock",         "fork",     "fsync",       "ftruncate",  "getcwd",    "getenv",
    "geteuid",       "getpid",   "getpwuid",    "getuid",     "gmtime_r",  "ioctl",
    "isatty",        "kill",     "localtime_r", "lstat",      "mkdir",     "mkdtemp",
    "mkstemp",       "mmap",     "nanosleep",   "opendir",    "pclose",    "pipe",
    "popen",         "putenv",   "readdir",     "readlink",   "realpath",  "rmdir",
    "secure_getenv", "setenv",   "sigaction",   "sleep",      "ssize_t",   "strcasecmp",
    "strncasecmp",   "symlink",  "sysconf",     "uname",      "unlink",    "unsetenv",
    "usleep",        "waitpid",  "pid_t",       "_WIN32",     "__APPLE__", "__linux__",
    "__unix__",      "Q_OS_WIN", "Q_OS_MACOS",  "Q_OS_LINUX", "Q_OS_UNIX", "_MSC_VER"};

/// Folders that only some systems have.
const std::vector<std::string> kFolders = {"\"/proc", "\"/dev",  "\"/etc",    "\"/tmp",    "\"/usr",
                                           "\"/var",  "\"/home", "\".config", "\"/.config"};

bool OfWord(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

/// Whether `word` stands in the line as a word of its own. A member's name is no call of the
/// system:
/// ".kill(", "->sleep(".
bool Has(std::string_view line, std::string_view word) {
    for (std::size_t at = line.find(word); at != std::string_view::npos;
         at = line.find(word, at + 1)) {
        const std::size_t end = at + word.size();
        const bool starts = at == 0 || !OfWord(line[at - 1]);
        const bool ends = end == line.size() || !OfWord(line[end]);
        const bool member = at > 0 && (line[at - 1] == '.' ||
                                       (line[at - 1] == '>' && at > 1 && line[at - 2] == '-'));
        if (starts && ends && !member) {
            return true;
        }
    }
    return false;
}

/// A source without its raw texts: they are no code of this language.
std::string WithoutRawTexts(std::string source) {
    for (std::size_t from = source.find("R\""); from != std::string::npos;
         from = source.find("R\"", from + 1)) {
        const std::size_t open = source.find('(', from);
        const std::string end = ")" + source.substr(from + 2, open - from - 2) + "\"";
        source.erase(from, source.find(end, open) + end.size() - from);
    }
    return source;
}

/// The words of systems in a source. Comments and, but for folders, texts may say what they like.
std::vector<std::string> SystemsIn(const std::string &source) {
    std::vector<std::string> found;
    std::istringstream text(WithoutRawTexts(source));
    for (std::string line; std::getline(text, line);) {
        line = line.substr(0, line.find("//"));
        for (const std::string &folder : kFolders) {
            if (line.find(folder) != std::string::npos) {
                found.push_back(folder.substr(1));
            }
        }
        std::string code;
        bool quoted = false;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i] == '"' && (i == 0 || line[i - 1] != '\\')) {
                quoted = !quoted;
            }
            code += quoted ? ' ' : line[i];
        }
        for (const std::string &word : kWords) {
            if (Has(code, word)) {
                found.push_back(word);
            }
        }
    }
    return found;
}

TEST(Portable, SystemsAreAskedInTwoFoldersOnly) {
    const fs::path sources = LOFTWING_SOURCE_DIR "/src";
    std::size_t files = 0;
    bool seen_there = false;
    for (const auto &entry : fs::recursive_directory_iterator(sources)) {
        if (!entry.is_regular_file()) {
            continue;
        }
        const std::string file = fs::relative(entry.path(), sources).generic_string();
        const auto found = SystemsIn(ReadWholeFile(entry.path().string()));
        if (file.starts_with("platform/") || file.starts_with("base/")) {
            seen_there = seen_there || !found.empty();
        } else {
            EXPECT_THAT(found, IsEmpty()) << file;
        }
        ++files;
    }
    EXPECT_GT(files, 200U);
    EXPECT_TRUE(seen_there); // so they would be seen elsewhere
}

/// Whether a file may make texts of paths by the library, which throws where a path's wide letters
/// are no text.
bool MayThrowForNames(const std::string &file) {
    const std::string name = fs::path(file).filename().string();
    return file.starts_with("app/") || file.starts_with("mainwindow/") || name.starts_with("frm") ||
           name.starts_with("qt_");
}

TEST(Portable, BelowTheToolkitPathsBecomeTextsInOneUnit) {
    const fs::path sources = LOFTWING_SOURCE_DIR "/src";
    std::size_t files = 0;
    for (const auto &entry : fs::recursive_directory_iterator(sources)) {
        const std::string file = fs::relative(entry.path(), sources).generic_string();
        if (!entry.is_regular_file() || MayThrowForNames(file)) {
            continue;
        }
        const std::string source = ReadWholeFile(entry.path().string());
        EXPECT_EQ(source.find(".string()"), std::string::npos) << file;
        EXPECT_EQ(source.find(".u8string()"), std::string::npos) << file;
        ++files;
    }
    EXPECT_GT(files, 200U);
}

TEST(Portable, WhatOneSystemHasIsFound) {
    EXPECT_THAT(SystemsIn("const char *home = std::getenv(\"HOME\");\n"), ElementsAre("getenv"));
    EXPECT_THAT(SystemsIn("if (isatty(0)) {\n    ::fsync(file);\n"),
                ElementsAre("isatty", "fsync"));
    EXPECT_THAT(SystemsIn("#ifdef _WIN32\n"), ElementsAre("_WIN32"));
    EXPECT_THAT(SystemsIn("fs::read_symlink(\"/proc/self/exe\", error);\n"), ElementsAre("/proc"));
    EXPECT_THAT(SystemsIn("folder / \".config\"\n"), ElementsAre(".config"));
    EXPECT_THAT(SystemsIn("f(R\"(one)\", R\"(two)\"); fork();\n"), ElementsAre("fork"));
}

TEST(Portable, WhatAllSystemsHaveIsNotTakenForIt) {
    EXPECT_THAT(SystemsIn("// fork() is told of here\n"
                          "process.kill();\n"
                          "process->kill();\n"
                          "std::string forked = \"a fork in the road\";\n"
                          "const QByteArray home = QDir::homePath().toUtf8(); // getenv\n"
                          "fs::create_directory(folder / \"usr\");\n"
                          "const char *script = R\"x(readlink \"$(file)\"\n)x\";\n"),
                IsEmpty());
}

} // namespace
} // namespace loftwing
