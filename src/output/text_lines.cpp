#include "output/text_lines.h"

#include "base/text_encoding.h"

namespace loftwing {

namespace {

constexpr double kLeading = 1.15; // Arial's own, in font sizes
constexpr std::size_t kZone = 14;

} // namespace

double LineHeight(const TextFont &font) {
    return kLeading * font.size * kUnitsPerPoint;
}

void PrintLine(PlotDevice &device, const std::string &text) {
    device.Print(text);
    device.CurrentX = 0;
    device.CurrentY += LineHeight(device.Font);
}

std::string UpToNextZone(std::string text) {
    const std::size_t beyond = CharacterCount(text) % kZone;
    text.append(kZone - beyond, ' ');
    return text;
}

} // namespace loftwing
