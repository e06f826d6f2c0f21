#include "picture_options.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace loftwing {

const char *const kPictureUsage =
    "window_pictures FOLDER [--font FACTOR] [--screen FACTOR] [--display WIDTHxHEIGHT] [--dark]\n"
    "                       [--language NAME] [--unit mm|in]\n"
    "window_pictures --help-pages FOLDER\n";

namespace {

/// A factor of the font or the screen; 0 for any other text.
double Factor(const std::string &text) {
    char *end = nullptr;
    const double factor = std::strtod(text.c_str(), &end);
    constexpr double kSmallest = 0.25;
    constexpr double kLargest = 8;
    return *end == 0 && factor >= kSmallest && factor <= kLargest ? factor : 0;
}

/// False where the text isn't two whole numbers with an x between them.
bool ReadDisplay(const std::string &text, PictureOptions &options) {
    int end = 0;
    // NOLINTNEXTLINE(cert-err34-c): numbers that don't fit are beyond the limits below
    const int fields =
        std::sscanf(text.c_str(), "%5dx%5d%n", &options.width, &options.height, &end);
    constexpr int kSmallest = 200;
    return fields == 2 && static_cast<std::size_t>(end) == text.size() &&
           std::min(options.width, options.height) >= kSmallest;
}

} // namespace

std::optional<PictureOptions> ReadPictureOptions(const std::vector<std::string> &words) {
    PictureOptions options;
    std::map<std::string, std::string> values{
        {"--font", "1"}, {"--screen", "1"}, {"--display", ""}, {"--language", ""}, {"--unit", ""}};
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string &word = words[i];
        if (const auto value = values.find(word); value != values.end()) {
            if (++i == words.size()) {
                return {};
            }
            value->second = words[i];
        } else if (word == "--dark") {
            options.dark = true;
        } else if (word == "--help-pages") {
            options.for_help = true;
        } else if (word.starts_with("-") || !options.folder.empty()) {
            return {};
        } else {
            options.folder = word;
        }
    }
    options.font = Factor(values["--font"]);
    options.screen = Factor(values["--screen"]);
    if (!values["--display"].empty() && !ReadDisplay(values["--display"], options)) {
        return {};
    }
    options.language = values["--language"];
    options.unit = values["--unit"];
    const bool known_unit = options.unit.empty() || options.unit == "mm" || options.unit == "in";
    if (options.folder.empty() || options.font == 0 || options.screen == 0 || !known_unit) {
        return {};
    }
    return options;
}

} // namespace loftwing
