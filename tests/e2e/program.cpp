#include "e2e/program.h"

#include "base/whole_file.h"
#include "support/temp_folder.h"

#include <cstdlib>
#include <sys/wait.h>

namespace loftwing {

namespace {

/// What a program for another system told, with folders as this one writes them. A backslash in
/// front of a quotation mark is no folder's.
std::string Told(const std::string &file) {
    const std::string told = ReadWholeFile(file);
    if (!IsForeign()) {
        return told;
    }
    std::string here;
    for (std::size_t at = 0; at < told.size(); ++at) {
        const char next = at + 1 < told.size() ? told[at + 1] : ' ';
        if (told[at] != '\\' || next == '"') {
            here += told[at];
            continue;
        }
        here += '/';
        at += next == '\\' ? 1 : 0; // as JSON writes one
    }
    return here;
}

} // namespace

Ran RunShell(const std::string &line) {
    const TempFolder folder;
    const int status = std::system(("( " + line + " ) > " + ShellWord(folder.Path("out")) + " 2> " +
                                    ShellWord(folder.Path("err")) + " < /dev/null")
                                       .c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Told(folder.Path("out")),
            Told(folder.Path("err"))};
}

std::string ProgramTried() {
    const char *other = std::getenv("LOFTWING_PROGRAM");
    return other != nullptr ? other : LOFTWING_BINARY_DIR "/loftwing";
}

bool IsForeign() {
    return std::getenv("LOFTWING_PROGRAM") != nullptr;
}

Ran RunLoftwing(const std::vector<std::string> &words) {
    std::string line = ShellWord(ProgramTried());
    for (const std::string &word : words) {
        line += " " + ShellWord(word);
    }
    return RunShell(line);
}

std::string ShellWord(const std::string &word) {
    std::string quoted = "'";
    for (const char character : word) {
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    }
    return quoted + "'";
}

std::string Sample(const std::string &name) {
    return std::string(LOFTWING_SOURCE_DIR "/resources/airfoils/") + name;
}

} // namespace loftwing
