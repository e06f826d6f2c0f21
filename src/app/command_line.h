/// The command line: the same routines as the windows, for scripts.
#pragma once

#include <string>
#include <vector>

namespace loftwing {

inline constexpr int kDone = 0;
inline constexpr int kRefused = 1;
inline constexpr int kWrongUsage = 2;

/// Whether these words (the program's name left out) are for the command line; otherwise they are
/// for the window.
bool IsCommandLine(const std::vector<std::string> &words);

/// Runs them and gives the exit status. Nothing is read from or written to the user's own settings.
int RunCommandLine(const std::vector<std::string> &words);

} // namespace loftwing
