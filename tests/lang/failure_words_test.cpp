#include "lang/failure_words.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace loftwing {
namespace {

constexpr const char *kLanguages = LOFTWING_SOURCE_DIR "/resources/lng";

LngIni Language(const std::string &name) {
    LngIni language;
    language.Charge(kLanguages, name);
    return language;
}

const std::map<int, std::string> kEnglishWords = {{5, "Invalid procedure call or argument"},
                                                  {6, "Overflow"},
                                                  {7, "Out of memory"},
                                                  {9, "Subscript out of range"},
                                                  {11, "Division by zero"},
                                                  {13, "Type mismatch"},
                                                  {53, "File not found"},
                                                  {57, "Device input/output error"},
                                                  {61, "Disk full"},
                                                  {62, "Input past end of file"},
                                                  {70, "Permission denied"},
                                                  {75, "Path/file access error"},
                                                  {76, "Path not found"},
                                                  {32755, "Cancel was selected"},
                                                  {4711, "Unknown failure"}};

TEST(FailureWords, AreThoseOfTheLanguageFile) {
    const LngIni french = Language("French");
    EXPECT_EQ(Description({11, {}}, french), "Division par zéro");
    EXPECT_EQ(Description({53, "/x.dat"}, french), "Fichier introuvable\u00a0: /x.dat");
    EXPECT_EQ(Description({53, "/x.dat"}, Language("English")), "File not found: /x.dat");
}

TEST(FailureWords, AreInEveryLanguageForEveryNumber) {
    const LngIni english = Language("English");
    const LngIni french = Language("French");
    std::set<std::string> seen;
    for (const auto &[number, words] : kEnglishWords) {
        EXPECT_EQ(Description({number, {}}, english), words);
        EXPECT_NE(Description({number, {}}, french), words);
        EXPECT_TRUE(seen.insert(Description({number, {}}, french)).second) << number;
    }
}

TEST(FailureWords, AreEnglishWhereThereIsNoLanguage) {
    for (const auto &[number, words] : kEnglishWords) {
        EXPECT_EQ(Description({number, {}}, LngIni()), words);
        EXPECT_EQ(Description({number, "Spars 1"}, LngIni()), words + ": Spars 1");
    }
}

TEST(FailureWords, AreThePersonsOwnWhereTheFileHasOthers) {
    const TempFolder folder;
    folder.File("Mine.lng", "[Erreur]\n6=Too much\n191=Far too much\n");
    LngIni mine;
    mine.Charge(folder.Path(), "Mine");
    EXPECT_EQ(Description(MakeFailure(kOverflow), mine), "Far too much");
    EXPECT_EQ(Description(MakeFailure(kDiskFull), mine), "Disk full");
}

TEST(FailureWords, SayNothingWhereNothingFailed) {
    EXPECT_EQ(Description({0, {}}, Language("English")), "");
}

} // namespace
} // namespace loftwing
