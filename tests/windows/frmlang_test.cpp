#include "lang/frmlang.h"

#include "support/noted_view.h"
#include "support/qt_seen.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using Asked = std::vector<std::string>;

class FrmLangTest : public testing::Test {
  protected:
    FrmLangTest() {
        for (const char *name : {"English.lng", "French.lng"}) {
            std::filesystem::copy_file(std::filesystem::path(LOFTWING_SOURCE_DIR "/resources/lng") /
                                           name,
                                       folder.Path(name));
        }
        folder.File("notes.txt", "no language");
    }

    void Speak(const std::string &name) {
        programme.language.Charge(folder.Path(), name);
        programme.language.LangueAbsente = false;
        ASSERT_TRUE(WriteINIFile("Language", "Langue", name, programme.paths.fichier));
    }

    std::string Noted() const { return GetINIFile("Language", "Langue", programme.paths.fichier); }

    static QComboBox &List(const Seen &window) { return window.Find<QComboBox>("Combo1"); }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme{Paths{folder.Path(), folder.Path(), folder.Path("Loftwing.ini"), {}},
                        platform};
    NotedView view;
};

TEST_F(FrmLangTest, OpeningClosesDialogsAndClearsTheRib) {
    const lang window(programme, view, nullptr);
    EXPECT_EQ(view.asked, (Asked{"FermeDialogues", "affclear"}));
}

TEST_F(FrmLangTest, ListsTheLanguageFilesWithoutTheirExtension) {
    lang language(programme, view, nullptr);
    const Seen window(language);
    ASSERT_EQ(List(window).count(), 2);
    EXPECT_EQ(S(List(window).itemText(0)), "English");
    EXPECT_EQ(S(List(window).itemText(1)), "French");
}

TEST_F(FrmLangTest, SpeaksPlainEnglishWhileNoLanguageIsLoaded) {
    lang language(programme, view, nullptr);
    const Seen window(language);
    EXPECT_EQ(window.Title(), "Language");
    EXPECT_EQ(window.Word("ok"), "OK");
}

TEST_F(FrmLangTest, AFirstChoiceBeginsWithTheLanguageOfTheSystem) {
    platform.system_language = "fr";
    lang language(programme, view, nullptr);
    const Seen window(language);
    EXPECT_EQ(S(List(window).currentText()), "French");
    language.show();
    window.Click("ok");
    EXPECT_EQ(Noted(), "French");
    EXPECT_EQ(programme.language.LangueCourante, "French");
    EXPECT_EQ(programme.Text({"TextButton", "2"}), "Annuler");
}

TEST_F(FrmLangTest, AFirstChoiceOfALanguageThatIsNotThereBeginsWithEnglish) {
    for (const char *code : {"fi", ""}) {
        platform.system_language = code;
        lang language(programme, view, nullptr);
        EXPECT_EQ(S(List(Seen(language)).currentText()), "English") << code;
    }
}

TEST_F(FrmLangTest, AFirstChoiceThatIsGivenUpLeavesNoLanguage) {
    platform.system_language = "fr";
    lang language(programme, view, nullptr);
    const Seen window(language);
    language.show();
    window.Key(Qt::Key_Escape);
    EXPECT_FALSE(window.IsOpen());
    EXPECT_EQ(Noted(), "");
    EXPECT_EQ(programme.language.LangueCourante, "");
}

TEST_F(FrmLangTest, ShowsTheLanguageThatIsLoaded) {
    Speak("French");
    lang language(programme, view, nullptr);
    const Seen window(language);
    EXPECT_EQ(window.Title(), "Langue");
    EXPECT_EQ(S(List(window).currentText()), "French");
}

TEST_F(FrmLangTest, OkWithoutAChangeJustCloses) {
    Speak("French");
    lang language(programme, view, nullptr);
    const Seen window(language);
    language.show();
    view.asked.clear();
    window.Click("ok");
    EXPECT_FALSE(window.IsOpen());
    EXPECT_TRUE(view.asked.empty());
    EXPECT_EQ(Noted(), "French");
}

TEST_F(FrmLangTest, NewLanguageIsNotedAndAppliedAtOnce) {
    Speak("English");
    lang language(programme, view, nullptr);
    const Seen window(language);
    language.show();
    view.asked.clear();
    window.GoTo("Combo1");
    window.Key("Combo1", Qt::Key_Down);
    EXPECT_EQ(Noted(), "English");
    window.Click("ok");
    EXPECT_FALSE(window.IsOpen());
    EXPECT_EQ(Noted(), "French");
    EXPECT_EQ(programme.language.LangueCourante, "French");
    EXPECT_EQ(programme.language.FichierLng, folder.Path("French.lng"));
    EXPECT_EQ(programme.Text({"TextButton", "2"}), "Annuler");
    EXPECT_EQ(view.asked, (Asked{"AppliqueLangue", "RetraceVues", "affiche"}));
}

TEST_F(FrmLangTest, RowSelectedAgainCountsAsAChange) {
    Speak("English");
    lang language(programme, view, nullptr);
    const Seen window(language);
    view.asked.clear();
    Q_EMIT List(window).activated(0);
    window.Click("ok");
    EXPECT_EQ(view.asked, (Asked{"AppliqueLangue", "RetraceVues", "affiche"}));
}

TEST_F(FrmLangTest, EscapeChangesNothing) {
    Speak("English");
    lang language(programme, view, nullptr);
    const Seen window(language);
    language.show();
    view.asked.clear();
    window.Key("Combo1", Qt::Key_Down);
    window.Key(Qt::Key_Escape);
    EXPECT_FALSE(window.IsOpen());
    EXPECT_EQ(Noted(), "English");
    EXPECT_EQ(programme.language.LangueCourante, "English");
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrmLangTest, EmptyFolderLeavesTheListEmpty) {
    programme.paths.langues = folder.Path("gone");
    lang language(programme, view, nullptr);
    const Seen window(language);
    language.show();
    EXPECT_EQ(List(window).count(), 0);
    window.Click("ok");
    EXPECT_FALSE(window.IsOpen());
    EXPECT_EQ(Noted(), "");
}

TEST_F(FrmLangTest, LanguageThatCannotBeReadIsReportedAndTheOldOneKept) {
    Speak("English");
    const std::string broken = folder.File("Broken.lng", "");
    lang language(programme, view, nullptr);
    const Seen window(language);
    std::filesystem::remove(broken);
    std::filesystem::create_directory(broken);
    language.show();
    view.asked.clear();
    window.Key("Combo1", Qt::Key_Home);
    ASSERT_EQ(S(List(window).currentText()), "Broken");
    platform.Expect(BoxAnswer::ok);
    window.Click("ok");
    EXPECT_TRUE(window.IsOpen());
    EXPECT_EQ(platform.boxes.at(0).title, " GetINIFile");
    EXPECT_EQ(Noted(), "English");
    EXPECT_EQ(programme.language.LangueCourante, "English");
    EXPECT_TRUE(view.asked.empty());
}

TEST_F(FrmLangTest, ChoiceThatCannotBeKeptIsReportedAndHoldsForThisRun) {
    programme.paths.fichier = folder.Path("no/such/folder/Loftwing.ini");
    lang language(programme, view, nullptr);
    const Seen window(language);
    language.show();
    platform.Expect(BoxAnswer::ok);
    window.Click("ok");
    EXPECT_EQ(platform.boxes.at(0).title, " WriteINIFile");
    EXPECT_FALSE(window.IsOpen());
    EXPECT_EQ(programme.language.LangueCourante, "English");
}

} // namespace
} // namespace loftwing
