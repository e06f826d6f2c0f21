#include "programme/startup.h"

#include "base/version.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

class StartupTest : public testing::Test {
  protected:
    StartupTest() {
        folder.File("One.lng", "[Message]\n10=ten\n11=eleven\n12=twelve\n13=thirteen\n"
                               "14=fourteen\n15=fifteen\n16=sixteen\n25=twentyfive\n"
                               "26=twentysix\n27=command\n[MenuOutils]\n5t=tip\n"
                               "[Erreur]\n1=Error\n2=in\n");
        folder.File("Two.lng", "[Message]\n10=dix\n");
    }

    void Note(const std::string &name) {
        ASSERT_TRUE(WriteINIFile("Language", "Langue", name, programme.paths.fichier));
    }

    static void NobodyAsked() { ADD_FAILURE() << "the language dialog was shown"; }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme{Paths{folder.Path(), folder.Path(), folder.Path("Loftwing.ini"), {}},
                        platform};
};

TEST_F(StartupTest, LoadsTheLanguageOfTheSettingsFileWithoutAsking) {
    Note("Two");
    ChargeLangue(programme, NobodyAsked);
    EXPECT_EQ(programme.language.LangueCourante, "Two");
    EXPECT_EQ(programme.language.FichierLng, folder.Path("Two.lng"));
    EXPECT_FALSE(programme.language.LangueAbsente);
    EXPECT_EQ(programme.Text({"Message", "10"}), "dix");
}

TEST_F(StartupTest, AsksForTheLanguageWhenNoneIsNoted) {
    int asked = 0;
    ChargeLangue(programme, [&] {
        ++asked;
        EXPECT_TRUE(programme.language.LangueAbsente);
        Note("One");
    });
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(programme.language.LangueCourante, "One");
    EXPECT_EQ(programme.Text({"Message", "10"}), "ten");
    EXPECT_FALSE(programme.language.LangueAbsente);
}

TEST_F(StartupTest, RepeatsUntilALanguageIsChosen) {
    constexpr int kStubborn = 25;
    for (int i = 0; i < kStubborn; ++i) {
        platform.Expect(BoxAnswer::ok);
    }
    int asked = 0;
    ChargeLangue(programme, [&] {
        if (asked++ == kStubborn) {
            Note("One");
        }
    });
    EXPECT_EQ(asked, kStubborn + 1);
    ASSERT_EQ(platform.boxes.size(), static_cast<std::size_t>(kStubborn));
    for (const MessageBox &box : platform.boxes) {
        EXPECT_EQ(box.text, "Please select a language");
        EXPECT_EQ(box.icon, BoxIcon::stop);
        EXPECT_EQ(box.buttons, BoxButtons::ok);
    }
}

TEST_F(StartupTest, TakesTheChoiceForThisRunWhereSettingsCannotBeKept) {
    programme.paths.fichier = folder.Path("no/such/folder/Loftwing.ini");
    ChargeLangue(programme, [&] { programme.language.Charge(folder.Path(), "One"); });
    EXPECT_EQ(programme.language.LangueCourante, "One");
    EXPECT_FALSE(programme.language.LangueAbsente);
}

TEST_F(StartupTest, MissingLanguageFileGivesEmptyTextsWithoutAMessage) {
    Note("Three");
    ChargeLangue(programme, NobodyAsked);
    EXPECT_EQ(programme.language.LangueCourante, "Three");
    EXPECT_EQ(programme.Text({"Message", "10"}), "");
}

TEST_F(StartupTest, UnreadableLanguageFileIsReportedAndTextsStayEmpty) {
    Note("Folder");
    std::filesystem::create_directory(folder.Path("Folder.lng"));
    platform.Expect(BoxAnswer::ok);
    ChargeLangue(programme, NobodyAsked);
    EXPECT_EQ(programme.language.LangueCourante, "Folder");
    EXPECT_EQ(programme.language.FichierLng, folder.Path("Folder.lng"));
    EXPECT_FALSE(programme.language.LangueAbsente);
    EXPECT_EQ(programme.Text({"Message", "10"}), "");
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, " GetINIFile");
}

TEST_F(StartupTest, UnreadableSettingsFileIsReportedAndTheLanguageAskedFor) {
    std::filesystem::create_directory(folder.Path("Loftwing.ini"));
    platform.Expect(BoxAnswer::ok);
    platform.Expect(BoxAnswer::ok);
    ChargeLangue(programme, [&] { programme.language.Charge(folder.Path(), "One"); });
    EXPECT_EQ(programme.language.LangueCourante, "One");
    for (const MessageBox &box : platform.boxes) {
        EXPECT_EQ(box.title, " GetINIFile");
    }
}

TEST_F(StartupTest, PointAsSeparatorAsksNothing) {
    EXPECT_TRUE(ControleSeparateur(programme));
    EXPECT_TRUE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"}));
}

TEST_F(StartupTest, AnotherSeparatorIsWarnedOfAndYesEndsTheProgram) {
    programme.language.Charge(folder.Path(), "One");
    platform.decimal_separator = ',';
    platform.Expect(BoxAnswer::yes);
    EXPECT_FALSE(ControleSeparateur(programme));
    ASSERT_EQ(platform.boxes.size(), 1U);
    const MessageBox &box = platform.boxes[0];
    EXPECT_EQ(box.text, "ten\neleven\ntwelve\nthirteen\nfourteen\ntwentyfive\nfifteen");
    EXPECT_EQ(box.title, "sixteen");
    EXPECT_EQ(box.icon, BoxIcon::warning);
    EXPECT_EQ(box.buttons, BoxButtons::yes_no);
}

TEST_F(StartupTest, AfterNoTheProgramGoesOnWithANote) {
    programme.language.Charge(folder.Path(), "One");
    platform.decimal_separator = ',';
    platform.Expect(BoxAnswer::no);
    platform.Expect(BoxAnswer::ok);
    EXPECT_TRUE(ControleSeparateur(programme));
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[1].text, "eleven\ntwentysix");
    EXPECT_EQ(platform.boxes[1].title, "sixteen");
    EXPECT_EQ(platform.boxes[1].buttons, BoxButtons::ok);
}

TEST_F(StartupTest, CommandWarnsWithItsTipAndCancelStopsIt) {
    programme.language.Charge(folder.Path(), "One");
    platform.decimal_separator = ',';
    platform.Expect(BoxAnswer::cancel);
    platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"}));
    EXPECT_TRUE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"}));
    ASSERT_EQ(platform.boxes.size(), 2U);
    const MessageBox &box = platform.boxes[0];
    EXPECT_EQ(box.text, "eleven\nfourteen\ntwentyfive\ncommand : tip\ntwentysix");
    EXPECT_EQ(box.title, "sixteen");
    EXPECT_EQ(box.icon, BoxIcon::warning);
    EXPECT_EQ(box.buttons, BoxButtons::ok_cancel);
}

} // namespace
} // namespace loftwing
