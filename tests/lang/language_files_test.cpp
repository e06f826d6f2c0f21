#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "lang/ini_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using Key = std::pair<std::string, std::string>;

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

/// Every {"Section", "key"} literal of the sources. Only literals make a key, so this is all that
/// the program can ask for.
std::set<Key> KeysAskedFor() {
    const std::regex literal(
        R"re(\{\s*"((?:Frm|frm|Menu|Main|Message|Erreur|TextButton|Language|LANGUAGE|fileopen|filesaveas|filedxf|Outil|Import|Panel|Plan|Piece|Sheet|Undo|Recovery)[A-Za-z0-9]*)"\s*,\s*"([^"]+)"\s*\})re");
    std::set<Key> keys;
    for (const auto &entry : fs::recursive_directory_iterator(LOFTWING_SOURCE_DIR "/src")) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".cpp" && extension != ".h") {
            continue;
        }
        const std::string text = ReadWholeFile(entry.path().string());
        for (std::sregex_iterator match(text.begin(), text.end(), literal), end; match != end;
             ++match) {
            keys.emplace(Lower((*match)[1]), Lower((*match)[2]));
        }
    }
    return keys;
}

std::vector<fs::path> LanguageFiles() {
    std::vector<fs::path> files;
    for (const auto &entry : fs::directory_iterator(LOFTWING_SOURCE_DIR "/resources/lng")) {
        if (entry.path().extension() == ".lng") {
            files.push_back(entry.path());
        }
    }
    return files;
}

std::set<Key> KeysOf(const fs::path &file) {
    std::set<Key> keys;
    for (const auto &[section, key] : IniFile::Read(file.string()).Keys()) {
        keys.emplace(Lower(section), Lower(key));
    }
    return keys;
}

std::string Listed(const std::set<Key> &keys, const std::set<Key> &others) {
    std::string text;
    for (const Key &key : keys) {
        if (!others.contains(key)) {
            text += "  [" + key.first + "] " + key.second + "\n";
        }
    }
    return text;
}

TEST(LanguageFiles, OfFourLanguagesAreThere) {
    std::set<std::string> names;
    for (const fs::path &file : LanguageFiles()) {
        names.insert(file.stem().string());
    }
    EXPECT_TRUE(names.contains("English"));
    EXPECT_TRUE(names.contains("French"));
    EXPECT_TRUE(names.contains("German"));
    EXPECT_TRUE(names.contains("Spanish"));
}

TEST(LanguageFiles, HoldEveryKeyThatTheProgramAsksFor) {
    const std::set<Key> asked = KeysAskedFor();
    ASSERT_GT(asked.size(), 100U);
    for (const fs::path &file : LanguageFiles()) {
        EXPECT_EQ(Listed(asked, KeysOf(file)), "") << "missing in " << file;
    }
}

TEST(LanguageFiles, HoldNoOtherKey) {
    const std::set<Key> asked = KeysAskedFor();
    for (const fs::path &file : LanguageFiles()) {
        EXPECT_EQ(Listed(KeysOf(file), asked), "") << "left over in " << file;
    }
}

TEST(LanguageFiles, HoldEachKeyOnce) {
    for (const fs::path &file : LanguageFiles()) {
        std::set<Key> seen;
        for (const auto &[section, key] : IniFile::Read(file.string()).Keys()) {
            EXPECT_TRUE(seen.emplace(Lower(section), Lower(key)).second)
                << file << ": [" << section << "] " << key;
        }
    }
}

TEST(LanguageFiles, HoldNoValueLongerThanTheProgramReads) {
    for (const fs::path &file : LanguageFiles()) {
        for (const std::string &line : SplitLines(ReadWholeFile(file.string()))) {
            EXPECT_LE(CharacterCount(line.substr(line.find('=') + 1)), 199U) << line;
        }
    }
}

/// What must be alike in every language: what stands for something that the program puts in, file
/// endings, the dots of an entry that opens a window, and a blank that holds a piece apart from the
/// text in front of it.
std::string Fixed(const std::string &value) {
    const std::regex fixed(R"(%[0-9]|\*\.[a-z]+|\.\.\.$)");
    std::string kept = value.starts_with(' ') ? "blank " : "";
    for (std::sregex_iterator each(value.begin(), value.end(), fixed), end; each != end; ++each) {
        kept += each->str() + " ";
    }
    return kept;
}

TEST(LanguageFiles, HoldTheSamePlaceholders) {
    const IniFile english = IniFile::Read(LOFTWING_SOURCE_DIR "/resources/lng/English.lng");
    for (const fs::path &path : LanguageFiles()) {
        const IniFile file = IniFile::Read(path.string());
        for (const auto &[section, key] : english.Keys()) {
            EXPECT_EQ(Fixed(file.Value(section, key)), Fixed(english.Value(section, key)))
                << path << " [" << section << "] " << key;
        }
    }
}

/// The access letter of a caption, 0 for none.
char AccessLetter(const std::string &caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string::npos || mark + 1 >= caption.size()
               ? '\0'
               : Lower(caption.substr(mark + 1, 1)).front();
}

TEST(LanguageFiles, GiveNoAccessLetterTwiceInAMenu) {
    for (const fs::path &path : LanguageFiles()) {
        const IniFile file = IniFile::Read(path.string());
        std::map<std::string, std::set<char>> letters;
        std::set<char> bar;
        for (const auto &[section, key] : file.Keys()) {
            if (!section.starts_with("Menu")) {
                continue;
            }
            const std::string caption = file.Value(section, key);
            const char letter = AccessLetter(caption);
            std::set<char> &taken = key == "1" ? bar : letters[section];
            EXPECT_TRUE(letter == '\0' || taken.insert(letter).second)
                << path << " [" << section << "] " << caption;
        }
    }
}

} // namespace
} // namespace loftwing
