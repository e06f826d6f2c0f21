#include "lang/LngIni.h"

#include "support/failures.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(LngIni, GivesTheTextsOfTheChosenLanguage) {
    const TempFolder folder;
    folder.File("English.lng", "[TextButton]\r\n1=OK\r\n2=Cancel\r\n");
    folder.File("French.lng", "[TextButton]\r\n1=OK\r\n2=Annuler\r\n");
    LngIni language;
    language.Charge(folder.Path(), "French");
    EXPECT_EQ(language.LngText({"TextButton", "2"}), "Annuler");
    EXPECT_EQ(language.LngText({"TEXTBUTTON", "2"}), "Annuler");
    EXPECT_EQ(language.LangueCourante, "French");
    EXPECT_EQ(language.FichierLng, folder.Path("French.lng"));
    language.Charge(folder.Path(), "English");
    EXPECT_EQ(language.LngText({"TextButton", "2"}), "Cancel");
}

TEST(LngIni, GivesEmptyTextsForMissingKeysAndFiles) {
    const TempFolder folder;
    folder.File("English.lng", "[TextButton]\r\n1=OK\r\n");
    LngIni language;
    EXPECT_EQ(language.LngText({"TextButton", "1"}), "");
    language.Charge(folder.Path(), "English");
    EXPECT_EQ(language.LngText({"TextButton", "9"}), "");
    EXPECT_EQ(language.LngText({"Nothing", "1"}), "");
    language.Charge(folder.Path(), "Breton");
    EXPECT_EQ(language.LngText({"TextButton", "1"}), "");
}

TEST(LngIni, KeepsTheOldTextsWhenTheFileCannotBeRead) {
    const TempFolder folder;
    folder.File("English.lng", "[TextButton]\r\n1=OK\r\n");
    fs::create_directory(folder.Path("Folder.lng"));
    LngIni language;
    language.Charge(folder.Path(), "English");
    EXPECT_EQ(FailureOf([&] { language.Charge(folder.Path(), "Folder"); }), kPathFileAccess);
    EXPECT_EQ(language.LngText({"TextButton", "1"}), "OK");
    EXPECT_EQ(language.LangueCourante, "English");
}

TEST(LngIni, ReadsALanguageOnceAndNotAtEachText) {
    const TempFolder folder;
    folder.File("English.lng", "[TextButton]\r\n1=OK\r\n");
    LngIni language;
    language.Charge(folder.Path(), "English");
    fs::remove(folder.Path("English.lng"));
    EXPECT_EQ(language.LngText({"TextButton", "1"}), "OK");
}

TEST(LngIni, ListsTheLanguagesOfAFolderSorted) {
    const TempFolder folder;
    folder.File("French.lng", "");
    folder.File("English.lng", "");
    folder.File("Fran\xC3\xA7"
                "ais.lng",
                "");
    folder.File("English.txt", "");
    folder.File("lng", "");
    fs::create_directory(folder.Path("Folder.lng"));
    EXPECT_THAT(LngIni::Languages(folder.Path()), ElementsAre("English",
                                                              "Fran\xC3\xA7"
                                                              "ais",
                                                              "French"));
}

TEST(LngIni, ListsNoLanguageWhereThereIsNone) {
    const TempFolder folder;
    EXPECT_THAT(LngIni::Languages(folder.Path()), IsEmpty());
    EXPECT_THAT(LngIni::Languages(folder.Path("none")), IsEmpty());
}

TEST(LngIni, FindsALanguageByItsTwoLetters) {
    const TempFolder folder;
    folder.File("Deutsch.lng", "[Language]\r\nCode=de\r\n");
    folder.File("English.lng", "[Language]\r\nCode=en\r\n");
    folder.File("Old.lng", "[Language]\r\n2=Language\r\n");
    EXPECT_EQ(LngIni::LanguageOf(folder.Path(), "de"), "Deutsch");
    EXPECT_EQ(LngIni::LanguageOf(folder.Path(), "en"), "English");
    EXPECT_EQ(LngIni::LanguageOf(folder.Path(), "fi"), "English");
    EXPECT_EQ(LngIni::LanguageOf(folder.Path(), ""), "English");
    fs::remove(folder.Path("English.lng"));
    EXPECT_EQ(LngIni::LanguageOf(folder.Path(), "fi"), "Deutsch");
    EXPECT_EQ(LngIni::LanguageOf(folder.Path("none"), "de"), "");
}

} // namespace
} // namespace loftwing
