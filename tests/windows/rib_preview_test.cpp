// What the picture shows while a value is typed.

#include "support/qt_window_world.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QTest>

namespace loftwing {
namespace {

class RibPreviewTest : public testing::Test {
  protected:
    RibPreviewTest() { world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat")); }

    const PicView &Pic() const { return *world.Find<PicView>("Pic"); }
    /// Whether the picture shows a preview once what was typed rests.
    bool Shown() const {
        QTest::qWait(120);
        return Pic().Essai() != nullptr;
    }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(RibPreviewTest, AChordIsSeenWhileItIsTypedAndCancelTakesItAway) {
    const Recording *stored = Pic().Dessin();
    world.Run("mnu_profilcorde", {[this](Seen &dialog) {
                  EXPECT_FALSE(Shown());
                  dialog.Type("infotxt", "250");
                  EXPECT_TRUE(Shown());
                  EXPECT_EQ(Rib().cordeAfich, "200");
                  dialog.Type("infotxt", "0");
                  EXPECT_FALSE(Shown()); // no chord
                  dialog.Type("infotxt", "200");
                  EXPECT_FALSE(Shown()); // what there is
                  dialog.Type("infotxt", "250");
                  EXPECT_TRUE(Shown());
                  dialog.Click("cmdannuler");
              }});
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Pic().Dessin(), stored);
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(RibPreviewTest, OkDrawsTheRibItself) {
    world.Run("mnu_profilcorde", {[this](Seen &dialog) {
                  dialog.Type("infotxt", "250");
                  EXPECT_TRUE(Shown());
                  dialog.Click("cmdok");
              }});
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Rib().cordeAfich, "250");
}

TEST_F(RibPreviewTest, IsAbsentWhenTheViewMenuSaysSoAlsoAtTheNextStart) {
    world.Action("mnu_affessai")->trigger();
    world.Run("mnu_profilcorde", {[this](Seen &dialog) {
                  dialog.Type("infotxt", "250");
                  EXPECT_FALSE(Shown());
                  dialog.Click("cmdannuler");
              }});
    EXPECT_EQ(GetINIFile("Apercu", "Saisie", world.programme.paths.fichier), "0");
    world.window.reset();
    world.Open();
    EXPECT_FALSE(world.Action("mnu_affessai")->isChecked());
}

TEST_F(RibPreviewTest, ASparIsSeenInItsSlotAndApplyMakesItTheRibs) {
    world.Run("mnu_profillongeron", {[this](Seen &dialog) {
                  dialog.Type("Text1(0)", "60");
                  EXPECT_FALSE(Shown()); // it has no width yet
                  dialog.Type("Text1(1)", "5");
                  dialog.Type("Text1(2)", "3");
                  EXPECT_TRUE(Shown());
                  EXPECT_EQ(Rib().longeron[0].PosLongAfich, "0");
                  dialog.Click("CmdApply");
                  EXPECT_FALSE(Shown());
                  EXPECT_EQ(Rib().longeron[0].PosLongAfich, "60");
                  dialog.Type("Text1(0)", "250"); // behind the trailing edge
                  EXPECT_FALSE(Shown());
                  dialog.Type("Text1(0)", "70");
                  EXPECT_TRUE(Shown());
                  dialog.Click("Cmdannuler");
              }});
    EXPECT_FALSE(Shown());
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "60");
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(RibPreviewTest, EveryOtherDialogOfTheRibShowsWhatItHolds) {
    struct Row {
        const char *command;
        std::vector<std::pair<ControlName, const char *>> typed;
        const char *cancel;
    };
    const Row rows[] = {
        {"mnu_profilepcoffrage", {{"infotxt", "3"}}, "cmdannuler"},
        {"mnu_profilbaD", {{"infotxt", "8"}}, "cmdannuler"},
        {"mnu_profilbf", {{"infotxt", "20"}}, "cmdannuler"},
        {"mnu_paramrep", {{"infotxt", "7"}}, "cmdannuler"},
        {"mnu_profiltrou", {{"Text1(0)", "60"}, {"Text1(1)", "8"}}, "Cmdannuler"},
        {"mnu_profilTalon", {{"txt(0)", "12"}}, "cmdannuler"},
        {"mnu_profilbaC", {{"infotxt(0)", "6"}}, "cmdannuler"},
        {"mnu_parambloc", {{"txt(0)", "40"}}, "cmdannuler"},
        {"mnu_affInstxt", {{"infotxt(0)", "mine"}, {"infotxt(1)", "50"}}, "cmdannuler"},
    };
    for (const Row &row : rows) {
        world.Run(row.command, {[&](Seen &dialog) {
                      for (const auto &[field, text] : row.typed) {
                          dialog.Type(field, text);
                      }
                      EXPECT_TRUE(Shown()) << row.command;
                      dialog.Click(row.cancel);
                  }});
        EXPECT_FALSE(Shown()) << row.command;
    }
    EXPECT_TRUE(world.platform.boxes.empty());
    EXPECT_EQ(S(world.Action("mnu_editannule")->text()), "&Undo: open naca2412");
}

TEST_F(RibPreviewTest, IsMarkedInThePicture) {
    world.Run("mnu_profilcorde", {[this](Seen &dialog) {
                  const QImage before = world.Find<PicView>("Pic")->grab().toImage();
                  dialog.Type("infotxt", "250");
                  ASSERT_TRUE(Shown());
                  const QImage preview = world.Find<PicView>("Pic")->grab().toImage();
                  const int y = preview.height() - 12; // beside the words of the mark
                  EXPECT_NE(preview.pixelColor(10, y), before.pixelColor(10, y));
                  EXPECT_EQ(preview.pixelColor(10, 12), before.pixelColor(10, 12));
                  dialog.Click("cmdannuler");
              }});
}

} // namespace
} // namespace loftwing
