#include "app/command_line.h"
#include "app/window_program.h"
#include "platform/system.h"

#include <string>
#include <vector>

int main(int argc, char **argv) {
    const std::vector<std::string> words(argv + 1, argv + argc);
    loftwing::PrepareConsole();
    if (loftwing::IsCommandLine(words)) {
        return loftwing::RunCommandLine(words);
    }
    return loftwing::RunWindow(argc, argv);
}
