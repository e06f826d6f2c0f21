#include "base/version.h"
#include "windows/views_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr const char *kFive = "Five\n1 0\n0.5 0.1\n0 0\n0.5 -0.04\n1 0\n";

class SimplePlot : public Views {
  protected:
    std::string Five(const std::string &bytes = kFive) {
        return world.folder.File("five.dat", bytes);
    }
    void Plot() { Run("mnu_Outilcoupl", {Pick(Five())}); }
    /// The outline without the reference line.
    std::vector<DrawnSegment> Outline() const {
        std::vector<DrawnSegment> lines;
        for (const DrawnSegment &line : SegmentsOf(Drawing()->Operations())) {
            if (line.pen.style == LineStyle::solid) {
                lines.push_back(line);
            }
        }
        return lines;
    }
};

TEST_F(SimplePlot, FivePointsAreFourSegments) {
    Plot();
    EXPECT_TRUE(Rib().ModeCouple);
    ASSERT_NE(Drawing(), nullptr);
    const std::vector<DrawnSegment> lines = Outline();
    ASSERT_EQ(lines.size(), 4U);
    // 200 mm from 5 mm on, 15 mm under the top of the picture; the highest point is at 20 mm.
    EXPECT_NEAR(lines[0].x1, 205 * 56.7, 0.01);
    EXPECT_NEAR(lines[0].y1, 35 * 56.7, 0.01);
    EXPECT_NEAR(lines[0].x2, 105 * 56.7, 0.01);
    EXPECT_NEAR(lines[0].y2, 15 * 56.7, 0.01);
    EXPECT_EQ(Caption(), "Loftwing : five");
    EXPECT_EQ(world.Panel(1), kVersion);
    EXPECT_EQ(world.Panel(2), "Airfoil : five  Chord : 200 mm <> Information : Five");
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
}

TEST_F(SimplePlot, ThePickerSaysWhatItIsFor) {
    std::string title;
    Run("mnu_Outilcoupl", {[&title](Seen &dialog) { title = dialog.Title(); }});
    EXPECT_EQ(title, "Open airfoil file for the simple plot");
}

TEST_F(SimplePlot, AChordInTheTitleSetsTheScale) {
    Run("mnu_Outilcoupl", {Pick(Five("Five: 80\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n"))});
    EXPECT_EQ(world.programme.plot.CordeEchelle, static_cast<float>(80 * 56.7));
    EXPECT_THAT(world.Panel(2), testing::HasSubstr("Chord :  80 mm"));
}

TEST_F(SimplePlot, InvertedItsLowerSurfaceIsOnTop) {
    Plot();
    world.Action("mnu_affinver")->trigger();
    EXPECT_TRUE(Rib().AffHaut);
    const std::vector<DrawnSegment> lines = Outline();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_NEAR(lines[0].y1, (15 + 8) * 56.7, 0.01);
    EXPECT_NEAR(lines[0].y2, (15 + 8 + 20) * 56.7, 0.01);
    // Its height is fixed, so there is nothing to scroll.
    EXPECT_EQ(world.Find<QScrollBar>("Vsbpic")->minimum(), 0);
    world.Action("mnu_affinver")->trigger();
    EXPECT_NEAR(Outline()[0].y1, 35 * 56.7, 0.01);
}

TEST_F(SimplePlot, ACancelledPickerLeavesAClearedPictureInTheMode) {
    OpenRib();
    Run("mnu_Outilcoupl", {Cancel});
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Drawing(), nullptr);
    EXPECT_EQ(Caption(), "Loftwing");
    EXPECT_FALSE(Enabled("mnu_fileprint"));
    world.Resize(QSize(700, 400));
    EXPECT_EQ(Drawing(), nullptr);
}

TEST_F(SimplePlot, AsksBeforeChangesAreLostAndNoKeepsTheRib) {
    OpenRib();
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no, {.text = world.programme.Text({"FrmMainMessage", "5"})});
    world.Action("mnu_Outilcoupl")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_FALSE(Rib().ModeCouple);
    EXPECT_NE(Drawing(), nullptr);
}

TEST_F(SimplePlot, CommandsOfTheViewLive) {
    Plot();
    for (const char *name : {"mnu_affinver", "mnu_affInstxt", "mnu_filedxf", "mnu_filepage",
                             "mnu_fileprint", "mnu_filepdf", "mnu_filesvg"}) {
        EXPECT_TRUE(Enabled(name)) << name;
    }
    for (const char *name : {"mnu_affTrac", "mnu_afflignRef", "mnu_profillongeron", "mnu_param",
                             "mnu_filesaveas", "mnu_profilTalon"}) {
        EXPECT_FALSE(Enabled(name)) << name;
    }
}

TEST_F(SimplePlot, DoesNotMindTheDecimalSeparator) {
    world.platform.decimal_separator = ',';
    Plot();
    EXPECT_TRUE(Rib().ModeCouple);
}

TEST_F(SimplePlot, ANewChordIsDrawn) {
    Plot();
    Run("mnu_profilcorde", {Chord("100")});
    EXPECT_NEAR(Outline()[0].x1, 105 * 56.7, 0.01);
    EXPECT_THAT(world.Panel(2), testing::HasSubstr("Chord : 100 mm"));
}

TEST_F(SimplePlot, AnInsertedTextIsDrawn) {
    Plot();
    Run("mnu_affInstxt", {[](Seen &dialog) {
            dialog.Type("infotxt(0)", "Root");
            dialog.Type("infotxt(1)", "40");
            dialog.Click("cmdok");
        }});
    EXPECT_THAT(TextsOf(Drawing()->Operations()), testing::ElementsAre("Root"));
}

TEST_F(SimplePlot, PrintsWhatIsShown) {
    Plot();
    const std::vector<Operation> sheet = Printed("Print five");
    EXPECT_EQ(SegmentsOf(sheet).size(), 5U);
}

TEST_F(SimplePlot, DxfHoldsThePointsAndTheReferenceLine) {
    Plot();
    world.platform.files_expected = {world.folder.Path("five.dxf")};
    world.Action("mnu_filedxf")->trigger();
    EXPECT_EQ(world.platform.file_questions.back().name, "five 200 mm.dxf");
    const std::string dxf = ReadWholeFile(world.folder.Path("five.dxf"));
    const auto count = [&dxf](const std::string &word) {
        std::size_t times = 0;
        for (std::size_t at = dxf.find(word); at != std::string::npos;
             at = dxf.find(word, at + 1)) {
            ++times;
        }
        return times;
    };
    EXPECT_EQ(count("POLYLINE\r\n"), 2U);
    EXPECT_EQ(count("VERTEX\r\n"), 7U);
}

TEST_F(SimplePlot, OpeningAnAirfoilEndsTheView) {
    Plot();
    OpenRib();
    EXPECT_FALSE(Rib().ModeCouple);
    EXPECT_TRUE(Enabled("mnu_profillongeron"));
    EXPECT_GT(SegmentsOf(Drawing()->Operations()).size(), 500U);
}

TEST_F(SimplePlot, ACancelledOrRefusedFileLeavesThePlot) {
    Plot();
    Run("mnu_fileprofilopen", {[this](Seen &dialog) {
            // Looked at, and then not taken.
            LookAt(dialog, WindowWorld::Sample("naca2412.dat"));
            EXPECT_EQ(Rib().NomProfil, "naca2412");
            dialog.Key(Qt::Key_Escape);
        }});
    world.window->RetraceVues();
    EXPECT_EQ(Outline().size(), 4U);
    world.platform.Expect(BoxAnswer::ok);
    world.window->OuvreFichier(world.folder.File("bad.dat", "Title\n0.5 0.1\n1 0\n"));
    world.window->RetraceVues();
    EXPECT_EQ(Outline().size(), 4U);
    EXPECT_EQ(Rib().NomProfil, "five");
}

TEST_F(SimplePlot, ClearingEndsTheViewAndAsksWhereSomethingWasChanged) {
    Plot();
    Rib().Modifie = true; // another chord, say
    world.platform.Expect(BoxAnswer::no, {.title = "Clear all data"});
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_NE(Drawing(), nullptr);
    Rib().Modifie = false;
    world.Action("mnu_affclear")->trigger();
    EXPECT_FALSE(Rib().ModeCouple);
    EXPECT_EQ(Drawing(), nullptr);
}

TEST_F(SimplePlot, AComparisonThatIsCalledOffLeavesThePlot) {
    Plot();
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no, {.text = world.programme.Text({"OutilCompare", "1"})});
    world.Action("mnu_OutilCompare")->trigger();
    world.window->RetraceVues();
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_EQ(Outline().size(), 4U);
}

} // namespace
} // namespace loftwing
