/// What the words behind `window_pictures` ask for.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

struct PictureOptions {
    std::string folder;
    bool for_help = false; ///< the pictures of the help, in every language
    double font = 1;       ///< the font's size in parts of the usual one
    double screen = 1;     ///< pixels of the screen for one of the program's
    int width = 800;       ///< pixels of the screen
    int height = 800;
    bool dark = false;    ///< in the colours of a dark desktop
    std::string language; ///< of the windows; empty: all
    std::string unit;     ///< "mm" or "in"; empty: both
};

/// The one way to say it, for a reader at a terminal.
extern const char *const kPictureUsage;

/// Nothing where the words make no sense: an unknown option, which would otherwise become a folder
/// of that name, no folder, a factor that isn't from 0.25 to 8, a display
/// that isn't WIDTHxHEIGHT, a unit that there isn't.
std::optional<PictureOptions> ReadPictureOptions(const std::vector<std::string> &words);

} // namespace loftwing
