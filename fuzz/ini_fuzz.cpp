// Any bytes as an ini-style file: every value can be asked for and replaced, and what is written
// reads back.

#include "base/text_encoding.h"
#include "lang/ini_file.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace loftwing {
namespace {

void Require(bool holds, const char *what) {
    if (!holds) {
        std::fprintf(stderr, "Not so: %s\n", what);
        std::abort();
    }
}

void ReadAll(const IniFile &file) {
    for (const auto &[section, key] : file.Keys()) {
        const std::string value = file.Value(section, key);
        Require(IsUtf8(value), "value of valid characters");
        Require(CharacterCount(value) <= 199, "value of at most 199 characters");
        Require(value.find('\n') == std::string::npos, "value of one line");
    }
}

void CheckReadBack(const IniFile &file) {
    const std::string text = file.Text();
    if (!text.starts_with("\xEF\xBB\xBF")) { // a second mark in front is taken for the first
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
}

void ParseAndChange(const std::uint8_t *data, std::size_t size) {
    const IniFile file =
        IniFile::Parse(std::string_view(reinterpret_cast<const char *>(data), size));
    ReadAll(file);
    CheckReadBack(file);
    CheckChange(file, "Defaut", "unit");
    const auto keys = file.Keys();
    if (!keys.empty()) {
        CheckChange(file, keys.back().first, keys.back().second);
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::ParseAndChange(data, size);
    return 0;
}
