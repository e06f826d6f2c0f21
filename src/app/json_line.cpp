#include "app/json_line.h"

#include "base/text_encoding.h"

#include <array>
#include <charconv>

namespace loftwing {

namespace {

std::string Quoted(std::string_view text) {
    constexpr std::string_view kHex = "0123456789abcdef";
    std::string quoted = "\"";
    // A name's bytes may be anything, and what isn't UTF-8 no reader of JSON takes.
    for (const char character : ToUtf8(text)) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            quoted += '\\';
            quoted += character;
        } else if (code < 0x20U) {
            quoted += "\\u00";
            quoted += kHex[code >> 4U];
            quoted += kHex[code & 0xFU];
        } else {
            quoted += character;
        }
    }
    return quoted + '"';
}

std::string Real(double number) {
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::general, 17);
    return {buffer.data(), result.ptr};
}

} // namespace

void JsonLine::Name(std::string_view name) {
    if (!body_.empty()) {
        body_ += ", ";
    }
    body_ += Quoted(name) + ": ";
}

void JsonLine::Add(std::string_view name, std::string_view text) {
    Name(name);
    body_ += Quoted(text);
}

void JsonLine::Add(std::string_view name, long number) {
    Name(name);
    body_ += std::to_string(number);
}

void JsonLine::Add(std::string_view name, double number) {
    Name(name);
    body_ += Real(number);
}

void JsonLine::Add(std::string_view name, std::span<const double> numbers) {
    Name(name);
    body_ += '[';
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        body_ += (i == 0 ? "" : ", ") + Real(numbers[i]);
    }
    body_ += ']';
}

void JsonLine::Add(std::string_view name, std::span<const std::string> texts) {
    Name(name);
    body_ += '[';
    for (std::size_t i = 0; i < texts.size(); ++i) {
        body_ += (i == 0 ? "" : ", ") + Quoted(texts[i]);
    }
    body_ += ']';
}

} // namespace loftwing
