#include "programme/startup.h"

#include "base/version.h"
#include "persist/default_entry.h"
#include "programme/load.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

class StartupTest : public testing::Test {
  protected:
    StartupTest() {
        folder.File("One.lng",
                    "[Message]\n10=ten\n11=eleven\n12=twelve\n13=thirteen\n"
                    "14=fourteen\n15=fifteen\n16=sixteen\n25=twentyfive\n"
                    "26=twentysix\n27=command\n141=again\n"
                    "142=lost\n143=built in\n[TextButton]\n1=fine\n2=stop\n30=yea\n31=nay\n"
                    "32=once more\n[MenuOutils]\n5t=tip\n"
                    "[Erreur]\n1=Error\n2=in\n");
        folder.File("Two.lng", "[Message]\n10=dix\n");
    }

    void Note(const std::string &name) {
        ASSERT_TRUE(WriteINIFile("Language", "Langue", name, programme.paths.fichier));
    }

    /// The folders that an installation brings.
    void Installe() {
        for (const char *key : {"RepAirfoil", "RepEvol"}) {
            std::filesystem::create_directory(folder.Path(key));
            platform.store[{"Install", key}] = folder.Path(key);
        }
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

TEST_F(StartupTest, ASettingsFileThatCannotBeReadIsToldOnceAndInTheLanguageThatIsChosen) {
    std::filesystem::create_directory(folder.Path("Loftwing.ini"));
    Installe();
    platform.Expect(BoxAnswer::ok, {.text = "lost\n" + folder.Path("Loftwing.ini") + "\nbuilt in",
                                    .icon = BoxIcon::warning});
    ChargeLangue(programme, [&] {
        ChargeReglages(programme); // the window is made for the language dialog
        programme.language.Charge(folder.Path(), "One");
    });
    EXPECT_EQ(programme.language.LangueCourante, "One");
    EXPECT_EQ(programme.rib.corde, 200.0F);
    EXPECT_EQ(programme.settings.repertoires.RepProfil, folder.Path("RepAirfoil"));
    ChargeReglages(programme);
    EXPECT_TRUE(FichiersRecentsConnus(programme).front().empty());
    NoteRecent(programme, "/a.dat");
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(StartupTest, AFolderThatTakesNoSettingsLeavesTheBuiltInDefaultsAndIsToldOnce) {
    programme.paths.fichier = folder.Path("no/such/folder/Loftwing.ini");
    Installe();
    programme.language.Charge(folder.Path(), "One");
    platform.Expect(BoxAnswer::ok, {.text = "lost\n" + programme.paths.fichier + "\nbuilt in"});
    ChargeReglages(programme);
    programme.rib.corde = 140;
    programme.rib.cordeAfich = "140";
    EXPECT_TRUE(programme.settings.fichier.perdu);
    VideRib(programme);
    LitDefauts(programme.ReglagesEnCours());
    EXPECT_EQ(programme.rib.corde, 200.0F);
    EXPECT_EQ(programme.rib.cordeAfich, "200");
    EXPECT_EQ(programme.rib.EpCoffrage, 1.5F);
    EXPECT_EQ(programme.settings.Unite, kUniteMm);
    EXPECT_EQ(TextesDefautConnus(programme.settings, programme.paths.fichier),
              (TextesDefaut{"200", "1.5", "0", "0", "0", "0"}));
    ChargeReglages(programme);
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(StartupTest, BoxesSpeakTheLanguageAsSoonAsItIsLoaded) {
    Note("One");
    platform.decimal_separator = ',';
    platform.Expect(BoxAnswer::yes, {.meanwhile = [this] {
                        EXPECT_EQ(platform.button_words.ok, "fine");
                        EXPECT_EQ(platform.button_words.cancel, "stop");
                        EXPECT_EQ(platform.button_words.yes, "yea");
                        EXPECT_EQ(platform.button_words.no, "nay");
                        EXPECT_EQ(platform.button_words.retry, "once more");
                    }});
    ChargeLangue(programme, NobodyAsked);
    EXPECT_FALSE(ControleSeparateur(programme));
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
    EXPECT_FALSE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"}));
    EXPECT_TRUE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"})) << "told once";
    ASSERT_EQ(platform.boxes.size(), 1U);
    const MessageBox &box = platform.boxes[0];
    EXPECT_EQ(box.text, "eleven\nfourteen\ntwentyfive\ncommand : tip\ntwentysix");
    EXPECT_EQ(box.title, "sixteen");
    EXPECT_EQ(box.icon, BoxIcon::warning);
    EXPECT_EQ(box.buttons, BoxButtons::ok_cancel);
}

TEST_F(StartupTest, TheSeparatorIsToldOnceForAll) {
    programme.language.Charge(folder.Path(), "One");
    platform.decimal_separator = ',';
    platform.Expect(BoxAnswer::no);
    platform.Expect(BoxAnswer::ok);
    EXPECT_TRUE(ControleSeparateur(programme));
    EXPECT_TRUE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"}));
    EXPECT_EQ(platform.ticks_offered, std::vector<std::string>({"again"}));

    Programme next(programme.paths, platform);
    EXPECT_TRUE(ControleSeparateur(next));
    EXPECT_TRUE(ControleSeparateurCommande(next, {"MenuOutils", "5t"}));
    EXPECT_EQ(platform.boxes.size(), 2U);
}

TEST_F(StartupTest, WithoutItsTickTheSeparatorIsToldAtTheNextStart) {
    programme.language.Charge(folder.Path(), "One");
    platform.decimal_separator = ',';
    platform.leaves_ticks = false;
    platform.Expect(BoxAnswer::cancel);
    EXPECT_FALSE(ControleSeparateurCommande(programme, {"MenuOutils", "5t"}));
    EXPECT_TRUE(ControleSeparateur(programme)) << "this run has told it";

    Programme next(programme.paths, platform);
    platform.Expect(BoxAnswer::yes);
    EXPECT_FALSE(ControleSeparateur(next));
}

} // namespace
} // namespace loftwing
