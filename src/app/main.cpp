#include "app/command_line.h"
#include "app/window_program.h"
#include "platform/system.h"

#include <string>
#include <vector>

int main(int argc, char **argv) {
    const std::vector<std::string> all = loftwing::ProgramWords(argc, argv);
    const std::vector<std::string> words(all.begin() + (all.empty() ? 0 : 1), all.end());
    loftwing::PrepareConsole();
    if (loftwing::IsCommandLine(words)) {
        return loftwing::RunCommandLine(words);
    }
    return loftwing::RunWindow(all);
}
