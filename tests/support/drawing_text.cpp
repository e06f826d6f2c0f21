#include "support/drawing_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace loftwing {

namespace {

std::string Fixed(double value, int decimals) {
    std::array<char, 400> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return {buffer.data(), end};
}

std::string Hex(unsigned colour) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::hex;
    text.width(6);
    text.fill('0');
    text << colour;
    return text.str();
}

std::string Line(const naive::Drawn &drawn, int decimals) {
    const std::string shape = drawn.circle ? "circle" : "line";
    std::string text = drawn.text ? "text" : shape;
    text += " " + Fixed(drawn.x1, decimals) + " " + Fixed(drawn.y1, decimals);
    if (drawn.text) {
        return text + " " + Hex(drawn.colour) + " size " + Fixed(drawn.size, 3) + " " + drawn.words;
    }
    text += " " + (drawn.circle ? Fixed(drawn.size, decimals)
                                : Fixed(drawn.x2, decimals) + " " + Fixed(drawn.y2, decimals));
    return text + " " + Hex(drawn.colour) + " width " + std::to_string(drawn.width) + " style " +
           std::to_string(drawn.style);
}

bool Near(double one, double other) {
    return std::abs(one - other) <= 1e-9 * std::max({1.0, std::abs(one), std::abs(other)});
}

bool Same(const naive::Drawn &one, const naive::Drawn &other) {
    return one.text == other.text && one.circle == other.circle && Near(one.x1, other.x1) &&
           Near(one.y1, other.y1) && Near(one.x2, other.x2) && Near(one.y2, other.y2) &&
           one.colour == other.colour && one.width == other.width && one.style == other.style &&
           one.words == other.words && Near(one.size, other.size);
}

/// Writes both texts where a developer finds them and says where.
std::string Keep(const std::string &name, const std::string &got, const std::string &wanted) {
    const std::filesystem::path folder =
        std::filesystem::path(LOFTWING_BINARY_DIR) / "test-differences";
    std::filesystem::create_directories(folder);
    const std::string base = (folder / name).string();
    std::ofstream(base + ".got", std::ios::binary) << got;
    std::ofstream(base + ".wanted", std::ios::binary) << wanted;
    return base + ".got and " + base + ".wanted";
}

} // namespace

std::vector<naive::Drawn> Drawn(const Recording &recording) {
    std::vector<naive::Drawn> drawing;
    for (const Operation &operation : recording.Operations()) {
        naive::Drawn drawn;
        if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
            drawn.x1 = line->x1;
            drawn.y1 = line->y1;
            drawn.x2 = line->x2;
            drawn.y2 = line->y2;
            drawn.colour = line->pen.colour;
            drawn.width = line->pen.width;
            drawn.style = static_cast<int>(line->pen.style);
        } else if (const auto *text = std::get_if<DrawnText>(&operation)) {
            drawn.text = true;
            drawn.x1 = text->x;
            drawn.y1 = text->y;
            drawn.colour = text->colour;
            drawn.words = text->text;
            drawn.size = text->font.size;
            EXPECT_EQ(text->font.name, "Arial");
        } else {
            const auto &circle = std::get<DrawnCircle>(operation);
            drawn.circle = true;
            drawn.x1 = circle.x;
            drawn.y1 = circle.y;
            drawn.size = circle.radius;
            drawn.colour = circle.pen.colour;
            drawn.width = circle.pen.width;
            drawn.style = static_cast<int>(circle.pen.style);
        }
        drawing.push_back(drawn);
    }
    return drawing;
}

std::string DrawingText(const std::vector<naive::Drawn> &drawing, int decimals) {
    std::string text;
    for (const naive::Drawn &drawn : drawing) {
        text += Line(drawn, decimals) + "\n";
    }
    return text;
}

testing::AssertionResult SameDrawing(const std::string &name, const Recording &got,
                                     const std::vector<naive::Drawn> &wanted) {
    const std::vector<naive::Drawn> drawn = Drawn(got);
    const auto [one, other] =
        std::mismatch(drawn.begin(), drawn.end(), wanted.begin(), wanted.end(), Same);
    if (one == drawn.end() && other == wanted.end()) {
        return testing::AssertionSuccess();
    }
    constexpr int kDecimals = 9;
    return testing::AssertionFailure()
           << "operation " << one - drawn.begin() + 1 << " of " << drawn.size() << " (wanted "
           << wanted.size() << ")\n got    "
           << (one == drawn.end() ? "nothing" : Line(*one, kDecimals)) << "\n wanted "
           << (other == wanted.end() ? "nothing" : Line(*other, kDecimals)) << "\nsee "
           << Keep(name, DrawingText(drawn, kDecimals), DrawingText(wanted, kDecimals));
}

testing::AssertionResult SameAsGolden(const std::string &name, const std::string &got) {
    const std::string path = std::string(LOFTWING_SOURCE_DIR) + "/tests/golden/" + name;
    const char *write = std::getenv("LOFTWING_WRITE_GOLDENS");
    if (write != nullptr && std::string(write) == "1") {
        std::ofstream(path, std::ios::binary) << got;
        return testing::AssertionSuccess();
    }
    std::ifstream file(path, std::ios::binary);
    std::ostringstream wanted;
    wanted << file.rdbuf();
    if (file && wanted.str() == got) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << path << (file ? " differs, see " : " is missing, see ")
           << Keep(name, got, wanted.str()) << "; LOFTWING_WRITE_GOLDENS=1 takes the new one";
}

} // namespace loftwing
