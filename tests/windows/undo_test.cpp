// Undo and redo as the main window's user has them.

#include "support/qt_window_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

namespace loftwing {
namespace {

using testing::HasSubstr;

class UndoInTheWindow : public testing::Test {
  protected:
    UndoInTheWindow() { world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat")); }

    void Type(const char *command, const std::string &value) {
        world.Run(command, {[&](Seen &dialog) {
                      dialog.Type("infotxt", value);
                      dialog.Click("cmdok");
                  }});
    }
    std::string Word(const char *name) const { return S(world.Action(name)->text()); }
    bool Alive(const char *name) const { return world.Action(name)->isEnabled(); }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(UndoInTheWindow, MenuAndButtonsNameTheStepThatTheyTake) {
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: open naca2412");
    EXPECT_EQ(Word("mnu_editretablit"), "&Redo");
    EXPECT_TRUE(Alive("mnu_editannule"));
    EXPECT_FALSE(Alive("mnu_editretablit"));
    EXPECT_EQ(S(world.Action("Toolbar1(9)")->toolTip()), "Undo: open naca2412");
    EXPECT_FALSE(Alive("Toolbar1(10)"));
    world.Action("Toolbar1(9)")->trigger();
    EXPECT_FALSE(Alive("mnu_editannule"));
    EXPECT_EQ(S(world.Action("Toolbar1(10)")->toolTip()), "Redo: open naca2412");
}

TEST_F(UndoInTheWindow, BeforeAnythingIsDoneThereIsNothingToUndo) {
    WindowWorld fresh;
    fresh.Open();
    for (const char *name : {"mnu_editannule", "mnu_editretablit", "Toolbar1(9)", "Toolbar1(10)"}) {
        EXPECT_FALSE(fresh.Action(name)->isEnabled()) << name;
    }
}

TEST_F(UndoInTheWindow, AValueGoesBackAndForthByTheKeys) {
    Type("mnu_profilcorde", "250");
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: chord");
    world.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(world.window.get()));
    QTest::keyClick(world.window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_THAT(world.Panel(2), HasSubstr("Chord : 200 mm"));
    QTest::keyClick(world.window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Rib().cordeAfich, "250");
    EXPECT_THAT(world.Panel(2), HasSubstr("Chord : 250 mm"));
}

TEST_F(UndoInTheWindow, AValueThatIsCancelledIsNoStep) {
    world.Run("mnu_profilcorde", {[](Seen &dialog) {
                  dialog.Type("infotxt", "250");
                  dialog.Click("cmdannuler");
              }});
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: open naca2412");
}

TEST_F(UndoInTheWindow, AnApplyInAnOpenDialogIsAStepOfItsOwn) {
    world.Run("mnu_profillongeron", {[](Seen &dialog) {
                  for (const char *place : {"30", "60"}) {
                      dialog.Type("Text1(0)", place);
                      dialog.Type("Text1(1)", "5");
                      dialog.Type("Text1(2)", "3");
                      dialog.Click("CmdApply");
                  }
                  dialog.Click("cmdok");
              }});
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "60");
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: spar 1");
    world.Action("mnu_editannule")->trigger();
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "30");
    world.Action("mnu_editannule")->trigger();
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "0");
}

TEST_F(UndoInTheWindow, ControlZInADialogIsItsFields) {
    world.Run("mnu_profilcorde", {[this](Seen &dialog) {
                  dialog.Type("infotxt", "250");
                  auto &field = dialog.Find<QLineEdit>("infotxt");
                  QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
                  EXPECT_NE(field.text(), "250");
                  EXPECT_TRUE(Rib().ProfilCharge);
                  dialog.Click("cmdannuler");
              }});
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: open naca2412");
}

TEST_F(UndoInTheWindow, AClearedRibComesBackWithItsCommands) {
    Type("mnu_profilbf", "12");
    world.platform.Expect(BoxAnswer::yes);
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: clear all");
    EXPECT_FALSE(Alive("mnu_filesaveas"));
    world.Action("mnu_editannule")->trigger();
    EXPECT_EQ(Rib().EpBFAfich, "12");
    EXPECT_TRUE(Alive("mnu_filesaveas"));
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_NE(world.Find<PicView>("Pic")->Dessin(), nullptr);
    EXPECT_EQ(S(world.window->windowTitle()), "Loftwing Airfoil : naca2412");
}

TEST_F(UndoInTheWindow, ARibThatAFailedDrawingClearedComesBack) {
    Type("mnu_profilbf", "12");
    Rib().longeron[0].PosLongAfich = "900"; // no plot holds it
    world.platform.Expect(BoxAnswer::ok);
    world.window->affiche();
    ASSERT_FALSE(Rib().ProfilCharge);
    world.Action("mnu_editannule")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "0");
    EXPECT_EQ(Rib().EpBFAfich, "12");
}

TEST_F(UndoInTheWindow, TheChecksOfTheViewMenuFollow) {
    world.Action("mnu_affinver")->trigger();
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: upside down");
    world.Action("mnu_editannule")->trigger();
    EXPECT_FALSE(world.Action("mnu_affinver")->isChecked());
    EXPECT_FALSE(Rib().AffHaut);
}

TEST_F(UndoInTheWindow, AComparisonGivesTheRibBack) {
    Type("mnu_profilbf", "12");
    world.programme.compare.CompareX1 = Rib().ContourX;
    world.programme.compare.CompareY1 = Rib().ContourY;
    world.programme.compare.CompareNb1 = Rib().NbContour;
    world.programme.compare.CompareX2 = Rib().ContourX;
    world.programme.compare.CompareY2 = Rib().ContourY;
    world.programme.compare.CompareNb2 = Rib().NbContour;
    Rib().ModeCompare = true;
    world.window->afficheCompare();
    world.Action("mnu_affzoom100")->trigger(); // any command takes in what is shown
    EXPECT_EQ(Word("mnu_editannule"), "&Undo: compare airfoils");
    world.Action("mnu_editannule")->trigger();
    EXPECT_EQ(Rib().EpBFAfich, "12");
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_THAT(world.Panel(2), HasSubstr("naca2412"));
}

TEST_F(UndoInTheWindow, TheWordsFollowTheLanguage) {
    WindowWorld german("German");
    german.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_EQ(S(german.Action("mnu_editannule")->text()), "&Rückgängig: öffnen naca2412");
}

} // namespace
} // namespace loftwing
