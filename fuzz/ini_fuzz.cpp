// Any bytes as an ini-style file: every value can be asked for and replaced, a look-up finds what a
// plain search from the top finds, and what is written reads back. The same bytes as a language
// file have words of valid characters.

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "fuzz_world.h"
#include "lang/LngIni.h"
#include "lang/ini_file.h"

#include <algorithm>
#include <optional>

namespace loftwing {
namespace {

std::string Bare(const std::string &text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(" \t\r") + 1 - first);
}

/// A value as a plain search finds it: the first section of that name, in it the first key that is
/// written alike, else the first that is but for blanks.
std::string Searched(const std::vector<std::string> &lines, const std::string &section,
                     const std::string &key) {
    bool inside = false;
    std::optional<std::string> found;
    std::optional<std::string> nearly;
    for (const std::string &line : lines) {
        if (Bare(line).starts_with('[')) {
            if (inside) {
                break;
            }
            std::string name = Bare(line).substr(1);
            name = Bare(name.substr(0, name.find(']')));
            inside = LowerAscii(name) == LowerAscii(section);
            continue;
        }
        const std::size_t equals = line.find('=');
        if (!inside || equals == std::string::npos || equals == 0 || Bare(line).starts_with(';')) {
            continue;
        }
        const std::string name = line.substr(0, equals);
        const std::string value = Bare(line.substr(equals + 1));
        if (!found && LowerAscii(name) == LowerAscii(key)) {
            found = value;
        }
        if (!nearly && LowerAscii(Bare(name)) == LowerAscii(Bare(key))) {
            nearly = value;
        }
    }
    std::string value = found.value_or(nearly.value_or(""));
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.front() == value.back()) {
        value = value.substr(1, value.size() - 2);
    }
    return FirstCharacters(value, 199);
}

void ReadAll(const IniFile &file, std::string_view bytes) {
    constexpr std::size_t kSearches = 50; // each of them reads the whole file
    const std::vector<std::string> lines = SplitLines(AnyToUtf8(bytes));
    std::size_t searched = 0;
    for (const auto &[section, key] : file.Keys()) {
        const std::string value = file.Value(section, key);
        Require(IsUtf8(value), "value of valid characters");
        Require(CharacterCount(value) <= 199, "value of at most 199 characters");
        Require(value.find('\n') == std::string::npos, "value of one line");
        if (++searched <= kSearches) {
            Require(value == Searched(lines, section, key), "value that a search finds");
        }
    }
    Require(file.Value("Defaut", "unit") == Searched(lines, "Defaut", "unit"), "value of a name");
}

/// Whether a text is read as it was written: a second mark in front is taken for the first, and
/// zeros may be those of an encoding in pairs of bytes.
bool TellsItsEncoding(const std::string &text) {
    return !text.starts_with("\xEF\xBB\xBF") && text.find('\0') == std::string::npos;
}

void CheckReadBack(const IniFile &file) {
    const std::string text = file.Text();
    if (TellsItsEncoding(text)) {
        Require(IniFile::Parse(text).Text() == text, "same text when read again");
    }
}

void CheckChange(IniFile file, const std::string &section, const std::string &key) {
    file.SetValue(section, key, "new value\n[other]\nkey=injected");
    Require(file.Value(section, key) == "new value", "value that was set");
    const std::size_t count = file.Keys().size();
    file.SetValue(section, key, "newer");
    Require(file.Value(section, key) == "newer", "value that was set last");
    Require(file.Keys().size() == count, "no key added by replacing");
    CheckReadBack(file);
    if (!TellsItsEncoding(file.Text())) {
        return;
    }
    const IniFile again = IniFile::Parse(file.Text());
    for (const auto &[each_section, each_key] : again.Keys()) {
        Require(file.Value(each_section, each_key) == again.Value(each_section, each_key),
                "same values when read again");
    }
}

void AsLanguage(std::string_view bytes) {
    const std::string path = LngIni::Fichier(ScratchFolder(), "Any");
    WriteWholeFile(path, bytes);
    Require(LngIni::Languages(ScratchFolder()).size() == 1, "language in its folder");
    LngIni language;
    language.Charge(ScratchFolder(), "Any");
    for (const std::string &words :
         {language.LngText({"Defaut", "1"}), language.LngText({"FrmMainMessage", "2"})}) {
        Require(IsUtf8(words), "words of valid characters");
        Require(CharacterCount(words) <= 199, "words of at most 199 characters");
    }
    std::remove(path.c_str());
}

void ParseAndChange(std::string_view bytes) {
    const IniFile file = IniFile::Parse(bytes);
    ReadAll(file, bytes);
    CheckReadBack(file);
    CheckChange(file, "Defaut", "unit");
    const auto keys = file.Keys();
    if (!keys.empty()) {
        CheckChange(file, keys.back().first, keys.back().second);
    }
    AsLanguage(bytes);
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::ParseAndChange(loftwing::BytesOf(data, size));
    return 0;
}
