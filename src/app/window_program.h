/// The program with its window.
#pragma once

#include <string>
#include <vector>

namespace loftwing {

/// Runs the window until it is closed; the exit status. Of all words of the command line, the
/// program's name first, the toolkit takes those that it knows, `--settings FILE` moves the
/// settings file, and one FILE is opened.
int RunWindow(const std::vector<std::string> &all);

} // namespace loftwing
