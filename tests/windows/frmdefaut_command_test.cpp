// The whole road of a change of the defaults, through the main window.

#include "lang/ini_file.h"
#include "persist/LireEcrire.h"
#include "support/qt_window_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::HasSubstr;

class Defaults : public testing::Test {
  protected:
    void Start(const std::string &language = "English", const std::string &unit = "mm") {
        world = std::make_unique<WindowWorld>(language, unit);
        world->Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    }
    /// Opens the dialog, types a chord (none: leaves it), chooses a unit and presses a button.
    void Use(const char *unit, const char *chord, const char *button) const {
        InNextDialog([unit, chord, button](Seen &dialog) {
            ASSERT_EQ(dialog.Name(), "frmdefaut");
            if (*unit != '\0') {
                dialog.Click(unit);
            }
            if (*chord != '\0') {
                dialog.Type("txtdef(0)", chord);
            }
            dialog.Click(button);
        });
        world->Action("mnu_affdefaut")->trigger();
    }
    /// What the next chord dialog shows, and its caption.
    std::pair<std::string, std::string> ChordDialog() const {
        std::pair<std::string, std::string> shown;
        InNextDialog([&shown](Seen &dialog) { shown = {dialog.Text("infotxt"), dialog.Title()}; });
        world->Action("mnu_profilcorde")->trigger();
        return shown;
    }
    std::string File() const { return world->folder.Bytes("Loftwing.ini"); }
    RibModel &Rib() const { return world->programme.rib; }
    AppSettings &Settings() const { return world->programme.settings; }

    std::unique_ptr<WindowWorld> world;
};

TEST_F(Defaults, InchesWithYesClearTheRibAndHoldEverywhere) {
    Start();
    world->platform.Expect(BoxAnswer::yes);
    Use("inches", "", "cmdok");
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(world->Find<PicView>("Pic")->Dessin(), nullptr);
    EXPECT_THAT(File(), HasSubstr("unit= in\r\n"));
    EXPECT_THAT(File(), HasSubstr("cordeAfich=8\r\n"));
    EXPECT_EQ(world->Panel(3), "unit : in");
    EXPECT_EQ(world->Panel(2), "Chord length : 8");
    EXPECT_EQ(Rib().corde, 203.2F);
    EXPECT_EQ(ChordDialog().first, "8");
    EXPECT_EQ(ChordDialog().second, "Chord length  in");
    // The page is set up in inches too.
    EXPECT_EQ(Settings().page.MargeHautAfich, "1/2");
    EXPECT_EQ(Settings().page.MargeHaut, 12.7F);
}

TEST_F(Defaults, BackToMillimetresWithYes) {
    Start("French", "in");
    EXPECT_EQ(world->Panel(3), "unit : in");
    world->platform.Expect(BoxAnswer::yes);
    Use("mm", "", "cmdok");
    EXPECT_THAT(File(), HasSubstr("unit= mm\r\n"));
    EXPECT_THAT(File(), HasSubstr("EpCoffrageAfich=1.5\r\n"));
    EXPECT_EQ(world->Panel(3), "unit : mm");
    EXPECT_EQ(world->Panel(2), "Longueur de la corde : 200");
    EXPECT_EQ(ChordDialog().first, "200");
}

TEST_F(Defaults, TheNextRunSpeaksInches) {
    Start();
    world->platform.Expect(BoxAnswer::yes);
    Use("inches", "8.1/2", "cmdok");
    world->Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_EQ(world->Panel(3), "unit : in");
    EXPECT_THAT(world->Panel(2), HasSubstr("Chord : 8.1/2 in"));
    EXPECT_EQ(Rib().corde, 215.9F);
    EXPECT_EQ(Settings().page.recouvrement, 25.4F);
}

TEST_F(Defaults, InchesWithNoLeaveTheRibTheFileAndTheUnit) {
    Start();
    const std::string file = File();
    const std::string state = world->Panel(2);
    world->platform.Expect(BoxAnswer::no);
    Use("inches", "", "cmdok"); // and the dialog, which stays, is closed by Cancel
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(File(), file);
    EXPECT_EQ(world->Panel(2), state);
    EXPECT_EQ(world->Panel(3), "unit : mm");
    EXPECT_EQ(Settings().Unite, " mm");
    EXPECT_EQ(Settings().page.MargeHautAfich, "10");
    EXPECT_EQ(ChordDialog().first, "200");
}

TEST_F(Defaults, CancelPutsUnitAndPageBack) {
    Start();
    const std::string file = File();
    Use("inches", "", "cmdannuler");
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Settings().Unite, " mm");
    EXPECT_EQ(world->Panel(3), "unit : mm");
    EXPECT_EQ(File(), file);
    EXPECT_EQ(Settings().page.MargeHautAfich, "10");
    EXPECT_EQ(Settings().page.MargeHaut, 10.0F);
    EXPECT_EQ(Settings().page.NumIndex, 0);
}

TEST_F(Defaults, AnotherChordRedrawsTheRibThatIsThere) {
    Start();
    InNextDialog([](Seen &dialog) { dialog.Click("cmdok"); });
    world->Action("mnu_affInstxt")->trigger();
    ASSERT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 200");
    world->platform.Expect(
        BoxAnswer::yes,
        {.text = "The defaults are saved for the next rib.\n"
                 "Should the rib that is open now take them too? No leaves it as it is.",
         .title = "Template defaults",
         .buttons = BoxButtons::yes_no});
    Use("", "150", "cmdok");
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().corde, 150.0F);
    EXPECT_THAT(world->Panel(2), HasSubstr("Airfoil : naca2412  Chord : 150 mm"));
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 150");
}

TEST_F(Defaults, WithNoTheRibStaysAsItIsAndTheDefaultsAreSaved) {
    Start();
    InNextDialog([](Seen &dialog) {
        dialog.Type("infotxt", "220");
        dialog.Click("cmdok");
    });
    world->Action("mnu_profilcorde")->trigger();
    Rib().Modifie = false;
    const std::string rib = EcritComposants(Rib(), world->programme.settings.Unite);
    world->platform.Expect(BoxAnswer::no);
    Use("", "150", "cmdok");
    EXPECT_EQ(EcritComposants(Rib(), world->programme.settings.Unite), rib);
    EXPECT_EQ(Rib().corde, 220.0F);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_THAT(world->Panel(2), HasSubstr("Chord : 220 mm"));
    EXPECT_THAT(File(), HasSubstr("cordeAfich=150\r\n"));
}

TEST_F(Defaults, ValuesThatTheRibHasAlreadyAreSavedWithoutAQuestion) {
    Start();
    Rib().Modifie = false;
    const std::string rib = EcritComposants(Rib(), world->programme.settings.Unite);
    Use("", "200", "cmdok");
    EXPECT_EQ(EcritComposants(Rib(), world->programme.settings.Unite), rib);
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(Defaults, AClearedRibStartsFromWhatWasSaved) {
    Start();
    world->platform.Expect(BoxAnswer::yes);
    Use("", "150", "cmdok");
    Rib().cordeAfich = "99";
    Rib().Modifie = false;
    world->Action("mnu_affclear")->trigger();
    EXPECT_EQ(Rib().cordeAfich, "150");
    EXPECT_EQ(ChordDialog().first, "150");
}

TEST_F(Defaults, ThePanelNamesTheChordWhereNoRibIsDrawn) {
    Start();
    Rib().Modifie = false;
    world->Action("mnu_affclear")->trigger();
    EXPECT_EQ(world->Panel(2), "");
    Use("", "150", "cmdok");
    EXPECT_EQ(world->Panel(2), "Chord length : 150");
}

} // namespace
} // namespace loftwing
