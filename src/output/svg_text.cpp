#include "output/svg_text.h"

#include "base/text_encoding.h"

#include <array>
#include <charconv>

namespace loftwing {

std::string SvgNumber(double value, int decimals) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    std::string text(buffer.data(), result.ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string SvgColour(Colour colour) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += kDigits[(colour >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

std::string SvgAttribute(const std::string &name, const std::string &value) {
    return " " + name + "=\"" + value + "\"";
}

std::string SvgText(const std::string &text) {
    std::string escaped;
    for (const char character : ToUtf8(text)) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += static_cast<unsigned char>(character) < 0x20U ? ' ' : character;
        }
    }
    return escaped;
}

} // namespace loftwing
