/// What every system answers in its own way and the toolkit isn't needed for. Calls that only some
/// systems have stand in this unit, in base/disk for files, and nowhere else.
#pragma once

#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

namespace loftwing {

/// The words that the program was started with, its own name first, as UTF-8. Where the shell
/// leaves
/// "*.dat" to its programs, the files that it means stand in its place, by name; without one it
/// stays.
std::vector<std::string> ProgramWords(int argc, char **argv);

/// The running program's own file; empty where the system doesn't tell.
std::filesystem::path ProgramFile();

/// The user's own folder; empty when none is known.
std::filesystem::path HomeFolder();

/// Where programs keep the user's settings, each in a folder of its own.
std::filesystem::path ConfigFolder();

/// Where programs keep what the user has made without naming a file, each in a folder of its own.
std::filesystem::path DataFolder();

/// A moment by the user's clock. Unlike the library's own routine it may be asked in several
/// threads.
std::tm LocalTime(std::time_t moment);

/// The toolkit's platform for drawings without a window: what knows the fonts and wants no display.
const char *WindowlessPlatform();

/// Whether a window can be shown as far as the surroundings tell.
bool HasDisplay();

/// To be called before the first word is written: connects the standard streams with the console
/// that the program was started from, and lets them pass bytes as they are.
void PrepareConsole();

} // namespace loftwing
