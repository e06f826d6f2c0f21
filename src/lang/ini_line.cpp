#include "lang/ini_line.h"

#include "base/text_encoding.h"

#include <algorithm>

namespace loftwing {

bool SameIniName(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return LowerAscii(a) == LowerAscii(b); });
}

std::string_view WithoutIniBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool IsIniSection(std::string_view line) {
    return WithoutIniBlanks(line).starts_with('[');
}

std::string_view IniSectionName(std::string_view line) {
    line = WithoutIniBlanks(line);
    line.remove_prefix(1);
    return WithoutIniBlanks(line.substr(0, line.find(']')));
}

std::string_view IniKeyOf(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || WithoutIniBlanks(line).starts_with(';')) {
        return {};
    }
    return line.substr(0, equals);
}

std::string_view IniValueOf(std::string_view line) {
    std::string_view value = WithoutIniBlanks(line.substr(line.find('=') + 1));
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.front() == value.back()) {
        value = value.substr(1, value.size() - 2);
    }
    return value;
}

} // namespace loftwing
