#include "lang/ini_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

namespace loftwing {
namespace {

constexpr const char *kEnglish = LOFTWING_SOURCE_DIR "/resources/lng/English.lng";

/// The words of a text in small letters.
std::vector<std::string> WordsOf(const std::string &text) {
    std::vector<std::string> words(1);
    for (const char c : text) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            words.back() += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    return words;
}

TEST(EnglishWords, HoldNoFrenchRestsAndNoSlips) {
    const std::set<std::string> rests = {
        "axe",      "ou",      "et",       "centrer",  "longeron", "longerons", "trou",
        "trous",    "extra",   "intra",    "profil",   "profils",  "corde",     "nervure",
        "nervures", "gabarit", "vrillage", "extrados", "intrados", "de",        "la",
        "le",       "les",     "du",       "des",      "traiding", "modiify"};
    const IniFile english = IniFile::Read(kEnglish);
    for (const auto &[section, key] : english.Keys()) {
        for (const std::string &word : WordsOf(english.Value(section, key))) {
            EXPECT_FALSE(rests.contains(word))
                << "[" << section << "] " << key << ": " << english.Value(section, key);
        }
    }
}

TEST(EnglishWords, HaveNoAccentsAndNoFrenchNumberSign) {
    const IniFile english = IniFile::Read(kEnglish);
    for (const auto &[section, key] : english.Keys()) {
        std::string text = english.Value(section, key);
        // The degree sign is the one character beyond the plain ones.
        const std::string degree = "20\u00B0";
        if (const std::size_t at = text.find(degree); at != std::string::npos) {
            text.erase(at, degree.size());
        }
        EXPECT_TRUE(std::all_of(text.begin(), text.end(),
                                [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
            << "[" << section << "] " << key << ": " << text;
    }
}

TEST(EnglishWords, NameTheMarginsOfThePageByTheEdgesOfTheRib) {
    const IniFile english = IniFile::Read(kEnglish);
    EXPECT_EQ(english.Value("FrmPrint", "19"), "Before the leading edge :");
    EXPECT_EQ(english.Value("FrmPrint", "20"), "After the trailing edge :");
}

} // namespace
} // namespace loftwing
