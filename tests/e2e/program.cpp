#include "e2e/program.h"

#include "base/whole_file.h"
#include "support/temp_folder.h"

#include <cstdlib>
#include <sys/wait.h>

namespace loftwing {

Ran RunShell(const std::string &line) {
    const TempFolder folder;
    const int status = std::system(("( " + line + " ) > " + ShellWord(folder.Path("out")) + " 2> " +
                                    ShellWord(folder.Path("err")) + " < /dev/null")
                                       .c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadWholeFile(folder.Path("out")),
            ReadWholeFile(folder.Path("err"))};
}

Ran RunLoftwing(const std::vector<std::string> &words) {
    std::string line = ShellWord(LOFTWING_BINARY_DIR "/loftwing");
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
