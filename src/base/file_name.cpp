#include "base/file_name.h"

#include "base/disk.h"
#include "base/text_encoding.h"

#include <algorithm>
#include <array>
#include <type_traits>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr bool kWidePaths = std::is_same_v<fs::path::value_type, wchar_t>;

constexpr char32_t kHigh = 0xD800; // the first halves of pairs
constexpr char32_t kLow = 0xDC00;  // the second ones
constexpr char32_t kBehindLow = 0xE000;
constexpr char32_t kPairs = 0x10000; // what is written as a pair
constexpr char32_t kBehindLast = 0x110000;

struct Decoded {
    char32_t letter;
    std::size_t length;
};

/// The letter at a place, halves of pairs too. A byte that begins none is a second half of its own.
Decoded LetterAt(std::string_view text, std::size_t at) {
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, kPairs}; // by length
    const auto lead = static_cast<unsigned char>(text[at]);
    const Decoded odd = {kLow + lead, 1};
    if (lead < 0x80U) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0U ? 4 : lead >= 0xE0U ? 3 : 2;
    if (lead < 0xC0U || lead >= 0xF8U || at + length > text.size()) {
        return odd;
    }
    char32_t letter = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[at + i]);
        if ((byte & 0xC0U) != 0x80U) {
            return odd;
        }
        letter = letter * 0x40U + (byte & 0x3FU);
    }
    return letter >= kLeast.at(length) && letter < kBehindLast ? Decoded{letter, length} : odd;
}

void AppendUtf8(std::string &text, char32_t letter) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (letter < 0x80U) {
        append(letter);
        return;
    }
    if (letter < 0x800U) {
        append(0xC0U + letter / 0x40U);
    } else {
        if (letter < kPairs) {
            append(0xE0U + letter / 0x1000U);
        } else {
            append(0xF0U + letter / 0x40000U);
            append(0x80U + letter / 0x1000U % 0x40U);
        }
        append(0x80U + letter / 0x40U % 0x40U);
    }
    append(0x80U + letter % 0x40U);
}

/// Names of devices, which are no files' whatever extension follows.
bool IsDevice(const std::string &name) {
    constexpr std::array kDevices = {"con", "prn", "aux", "nul", "conin$", "conout$"};
    std::string stem = LowerAscii(name.substr(0, name.find('.')));
    stem.erase(stem.find_last_not_of(' ') + 1);
    if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) {
        return true;
    }
    if (!stem.starts_with("com") && !stem.starts_with("lpt")) {
        return false;
    }
    constexpr std::array kNumbers = {"\xC2\xB9", "\xC2\xB2",
                                     "\xC2\xB3"}; // 1, 2, 3 in raised figures
    const std::string number = stem.substr(3);
    return (number.size() == 1 && number[0] >= '0' && number[0] <= '9') ||
           std::find(kNumbers.begin(), kNumbers.end(), number) != kNumbers.end();
}

/// The length of "\\computer\folder" at the beginning of a path on the network.
std::size_t RootOnNetwork(const fs::path::string_type &letters) {
    const auto separates = [](auto letter) { return letter == '/' || letter == '\\'; };
    const auto computer = std::find_if(letters.begin() + 2, letters.end(), separates);
    const auto folder = computer == letters.end() ? computer : std::next(computer);
    return static_cast<std::size_t>(std::find_if(folder, letters.end(), separates) -
                                    letters.begin());
}

fs::file_status StateAt(std::string_view path) {
    std::error_code unknown;
    return StateOf(PathOf(path), unknown);
}

} // namespace

NameRules RulesHere() {
    return fs::path::preferred_separator == '/' ? NameRules::bytes : NameRules::letters;
}

std::u16string WideName(std::string_view text) {
    std::u16string name;
    name.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Decoded next = LetterAt(text, at);
        at += next.length;
        if (next.letter < kPairs) {
            name += static_cast<char16_t>(next.letter);
        } else {
            const char32_t above = next.letter - kPairs;
            name += static_cast<char16_t>(kHigh + above / 0x400U);
            name += static_cast<char16_t>(kLow + above % 0x400U);
        }
    }
    return name;
}

std::string NarrowName(std::u16string_view name) {
    std::string text;
    text.reserve(name.size());
    for (std::size_t at = 0; at < name.size(); ++at) {
        char32_t letter = name[at];
        const char32_t next = at + 1 < name.size() ? name[at + 1] : 0;
        if (letter >= kHigh && letter < kLow && next >= kLow && next < kBehindLow) {
            letter = kPairs + (letter - kHigh) * 0x400U + (next - kLow);
            ++at;
        }
        AppendUtf8(text, letter);
    }
    return text;
}

// Both ways go by the path's own letters: the library's conversions throw.
fs::path PathOf(std::string_view text) {
    if constexpr (kWidePaths) {
        const std::u16string name = WideName(text);
        return fs::path(fs::path::string_type(name.begin(), name.end()));
    } else {
        return fs::path(text);
    }
}

std::string TextOf(const fs::path &path) {
    if constexpr (kWidePaths) {
        return NarrowName(std::u16string(path.native().begin(), path.native().end()));
    } else {
        return std::string(path.native().begin(), path.native().end());
    }
}

std::string NameIn(std::string_view path) {
    return TextOf(PathOf(path).filename());
}

std::string StemOf(std::string_view path) {
    return TextOf(PathOf(path).stem());
}

std::string ExtensionOf(std::string_view path) {
    return TextOf(PathOf(path).extension());
}

std::string FolderOf(std::string_view path) {
    return TextOf(PathOf(path).parent_path());
}

bool Separates(char letter, NameRules rules) {
    return letter == '/' || (letter == '\\' && rules == NameRules::letters);
}

bool EndsInSeparator(std::string_view folder, NameRules rules) {
    return !folder.empty() && Separates(folder.back(), rules);
}

std::string WithSeparator(std::string folder, NameRules rules) {
    if (!EndsInSeparator(folder, rules)) {
        const auto has = [&folder](char letter) {
            return folder.find(letter) != std::string::npos;
        };
        folder += rules == NameRules::letters && (has('\\') || !has('/')) ? '\\' : '/';
    }
    return folder;
}

std::string Above(std::string_view folder) {
    const fs::path path = PathOf(folder);
    const fs::path parent = path.parent_path();
    const bool above_root =
        IsOnNetwork(path) && parent.native().size() < RootOnNetwork(path.native());
    return parent == path || above_root ? std::string() : TextOf(parent);
}

std::string WithSlashes(std::string path, NameRules rules) {
    std::replace_if(
        path.begin(), path.end(), [rules](char letter) { return Separates(letter, rules); }, '/');
    return path;
}

std::string AsFileName(std::string text, NameRules rules) {
    if (rules == NameRules::bytes) {
        return text;
    }
    const auto forbidden = [](char letter) {
        constexpr std::string_view kForbidden = "/\\:*?\"<>|";
        return static_cast<unsigned char>(letter) < ' ' ||
               kForbidden.find(letter) != std::string_view::npos;
    };
    std::replace_if(text.begin(), text.end(), forbidden, '-');
    if (text.ends_with(' ') || text.ends_with('.')) {
        text.back() = '-';
    }
    if (IsDevice(text)) {
        text.insert(std::min(text.find('.'), text.size()), 1, '-');
    }
    return text;
}

bool IsOnNetwork(const fs::path &path, NameRules rules) {
    const fs::path::string_type &letters = path.native();
    const auto separates = [&letters](std::size_t at) {
        return letters[at] == '/' || letters[at] == '\\';
    };
    return rules == NameRules::letters && letters.size() > 2 && separates(0) && separates(1) &&
           !separates(2);
}

fs::path SeenFrom(const fs::path &folder, const fs::path &path) {
    fs::path seen = IsOnNetwork(path) ? path : folder / path;
    return seen.make_preferred();
}

fs::path Plain(const fs::path &path, NameRules rules) {
    if (!IsOnNetwork(path, rules)) {
        return path.lexically_normal();
    }
    // Computer and folder are the root: nothing leads above them.
    const fs::path::string_type &letters = path.native();
    const std::size_t root = RootOnNetwork(letters);
    fs::path plain = letters.substr(0, root);
    if (root < letters.size()) {
        plain += fs::path(letters.substr(root)).lexically_normal();
    }
    return plain.make_preferred();
}

fs::path WholePath(const fs::path &path, std::error_code &error) {
    error.clear();
    if (IsOnNetwork(path)) {
        return Plain(path);
    }
    const fs::path whole = fs::absolute(path, error);
    return error ? fs::path() : whole.lexically_normal();
}

bool IsThere(std::string_view path) {
    return fs::exists(StateAt(path));
}

bool IsFolder(std::string_view path) {
    return fs::is_directory(StateAt(path));
}

bool IsPlainFile(std::string_view path) {
    return fs::is_regular_file(StateAt(path));
}

} // namespace loftwing
