#include "windows/views_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;

std::size_t LinesOf(const Recording &drawing, Colour colour) {
    std::size_t count = 0;
    for (const DrawnSegment &segment : SegmentsOf(drawing.Operations())) {
        count += segment.pen.colour == colour ? 1 : 0;
    }
    return count;
}

class CompareView : public Views {
  protected:
    const Comparaison &Both() const { return world.programme.compare; }
    void ExpectShown(const std::string &chord) {
        ASSERT_NE(Drawing(), nullptr);
        EXPECT_THAT(TextsOf(Drawing()->Operations()),
                    ElementsAre("Airfoil #1 : naca0012     ", "Airfoil #2 : naca2412"));
        EXPECT_EQ(LinesOf(*Drawing(), PaletteColour(5)),
                  static_cast<std::size_t>(Both().CompareNb1 - 1));
        EXPECT_EQ(LinesOf(*Drawing(), PaletteColour(9)),
                  static_cast<std::size_t>(Both().CompareNb2 - 1));
        EXPECT_EQ(world.Panel(2), "Airfoil #1 :  naca0012Airfoil #2 :  naca2412Chord : " + chord);
        EXPECT_EQ(Caption(), "Loftwing : comparison of naca0012 with naca2412");
    }
};

TEST_F(CompareView, ShowsBothAirfoilsAtTheChordTyped) {
    Compare();
    ExpectShown("150 mm");
    EXPECT_TRUE(Rib().ModeCompare);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(world.programme.plot.CordeEchelle, static_cast<float>(150 * 56.7));
    // Dense contours, of the right airfoils: the second one is cambered.
    EXPECT_GT(Both().CompareNb1, 500);
    EXPECT_EQ(Both().CompareNom1, "naca0012");
    EXPECT_EQ(Both().CompareY2.Values(), Rib().ContourY.Values());
    EXPECT_NE(Both().CompareY1.Values(), Both().CompareY2.Values());
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    EXPECT_EQ(world.Action("mnuFileMRU(1)")->data().toString().toStdString(),
              WindowWorld::Sample("naca2412.dat"));
    EXPECT_EQ(world.Action("mnuFileMRU(2)")->data().toString().toStdString(),
              WindowWorld::Sample("naca0012.dat"));
}

TEST_F(CompareView, ThePickersSayWhichAirfoilTheyAskFor) {
    const auto look = [](const std::string &title, bool check, const std::string &note,
                         const User &then) {
        return [=](Seen &dialog) {
            EXPECT_EQ(dialog.Title(), title);
            EXPECT_EQ(dialog.Shown("memP1"), check);
            EXPECT_EQ(dialog.Shown("LbMem"), check);
            EXPECT_EQ(dialog.Shown("Label3"), !note.empty());
            EXPECT_EQ(dialog.Label("Label3"), note);
            then(dialog);
        };
    };
    Run("mnu_OutilCompare",
        {Chord("150"), look("Airfoil to compare  #1", true, "", PickSample("naca0012.dat")),
         look("Airfoil to compare #2", false, "Airfoil #1 = naca0012",
              PickSample("naca2412.dat"))});
    ExpectShown("150 mm");
}

TEST_F(CompareView, RoomIsLeftForTheHigherAirfoilWhicheverComesFirst) {
    Run("mnu_OutilCompare", {Chord("150"), PickSample("naca6409.dat"), PickSample("naca0006.dat")});
    double top = 0;
    for (const double y : Both().CompareY1.Values()) {
        top = std::max(top, y);
    }
    EXPECT_NEAR(Rib().ExtradosMaxi, top, 0.001);
    EXPECT_GT(Rib().ExtradosMaxi, 0.08);
}

TEST_F(CompareView, WithATickTheNextOneStartsAtTheSecondAirfoil) {
    Run("mnu_OutilCompare", {Chord("150"),
                             [](Seen &dialog) {
                                 dialog.Click("memP1");
                                 PickSample("naca0012.dat")(dialog);
                             },
                             PickSample("naca6409.dat")});
    EXPECT_EQ(world.Panel(2), "Airfoil #1 :  naca0012Airfoil #2 :  naca6409Chord : 150 mm");
    std::string note;
    const auto second = [&note](Seen &dialog) {
        note = dialog.Label("Label3");
        PickSample("naca2412.dat")(dialog);
    };
    Run("mnu_OutilCompare", {second});
    EXPECT_EQ(note, "Airfoil #1 = naca0012");
    ExpectShown("150 mm");
    // Nothing of airfoil 1 is kept for the height in such a run.
    EXPECT_NEAR(Rib().ExtradosMaxi, 0.0788, 0.001);
    // It stays when the rib is cleared, and the commands are the view's again.
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(Drawing(), nullptr);
    EXPECT_FALSE(Enabled("mnu_fileprint"));
    Run("mnu_OutilCompare", {second});
    ExpectShown("200 mm");
    EXPECT_TRUE(Enabled("mnu_fileprint"));
}

TEST_F(CompareView, CancellingTheSecondAirfoilClearsEverything) {
    Compare();
    Run("mnu_OutilCompare", {Chord("150"), PickSample("naca0012.dat"), Cancel});
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_FALSE(Rib().MemProfil);
    EXPECT_EQ(Drawing(), nullptr);
    EXPECT_EQ(world.Panel(2), "");
    EXPECT_EQ(Caption(), "Loftwing");
    EXPECT_FALSE(Enabled("mnu_fileprint"));
}

TEST_F(CompareView, CancellingTheChordEndsTheCommandInTheView) {
    OpenRib();
    Run("mnu_OutilCompare", {Cancel});
    EXPECT_TRUE(Rib().ModeCompare);
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().NomProfil, "naca2412");
    // There is no comparison to be shown yet; the next airfoil ends the view.
    world.window->RetraceVues();
    EXPECT_EQ(Caption(), "Loftwing Airfoil : naca2412");
    OpenRib();
    EXPECT_FALSE(Rib().ModeCompare);
}

TEST_F(CompareView, CancellingTheFirstAirfoilGivesTheRibBackAsItWas) {
    OpenRib();
    Rib().texte.TexteUtilisateur = true;
    const std::vector<double> points = Rib().ProfilY.Values();
    Run("mnu_OutilCompare", {Chord("150"), [this](Seen &dialog) {
                                 LookAt(dialog, WindowWorld::Sample("naca6409.dat"));
                                 EXPECT_EQ(Rib().NomProfil, "naca6409");
                                 dialog.Key(Qt::Key_Escape);
                             }});
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_EQ(Rib().ProfilY.Values(), points);
    EXPECT_TRUE(Rib().texte.TexteUtilisateur);
    Rib().AffHaut = true;
    world.window->affiche();
    EXPECT_EQ(world.Panel(2), "Airfoil : naca2412  Chord : 200 mm <> Information : NACA 2412");
}

TEST_F(CompareView, WithoutAComparisonOnTheScreenChangesAreStillAskedFor) {
    OpenRib();
    Run("mnu_OutilCompare", {Cancel});
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no, {.text = world.programme.Text({"FrmMainMessage", "5"})});
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    world.platform.Expect(BoxAnswer::cancel, {.buttons = BoxButtons::save_discard_cancel});
    world.window->close();
    EXPECT_TRUE(world.window->isVisible());
}

TEST_F(CompareView, WithoutAComparisonOnTheScreenANewChordIsAChange) {
    OpenRib();
    Run("mnu_OutilCompare", {Cancel});
    Run("mnu_profilcorde", {Chord("170")});
    EXPECT_TRUE(Rib().Modifie);
}

TEST_F(CompareView, CalledOffAtTheChordASimplePlotIsStillExportedAsSuch) {
    Run("mnu_Outilcoupl", {PickSample("naca0012.dat")});
    Run("mnu_OutilCompare", {Cancel});
    EXPECT_TRUE(Rib().ModeCouple);
    const auto sheet = Printed("Print naca0012");
    // Only the reference line and the segments between the points.
    EXPECT_EQ(SegmentsOf(sheet).size(), static_cast<std::size_t>(Rib().NbPoints));
}

TEST_F(CompareView, AFileThatCannotBeReadLeavesTheChordThatWasTyped) {
    const std::string broken =
        world.folder.File("broken.dat", "Broken\n1 0\n0.5 0.1\n\n0.5 0\n1 0\n");
    const auto first = [this, broken](Seen &dialog) {
        world.platform.Expect(BoxAnswer::ok);
        LookAt(dialog, broken);
        PickSample("naca0012.dat")(dialog);
    };
    Run("mnu_OutilCompare", {Chord("150"), first, PickSample("naca2412.dat")});
    ExpectShown("150 mm");
}

TEST_F(CompareView, ACancelledChordLeavesTheComparisonThatWasShown) {
    Compare();
    Run("mnu_OutilCompare", {Cancel});
    world.window->RetraceVues();
    ExpectShown("150 mm");
}

TEST_F(CompareView, AsksBeforeChangesAreLostAndNoKeepsTheRib) {
    OpenRib();
    Rib().Modifie = true;
    world.platform.Expect(BoxAnswer::no, {.text = world.programme.Text({"OutilCompare", "1"})});
    world.Action("mnu_OutilCompare")->trigger();
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_EQ(world.platform.boxes.back().title, "Compare 2 airfoils");
    world.platform.Expect(BoxAnswer::yes, {.text = world.programme.Text({"OutilCompare", "1"})});
    Compare();
    ExpectShown("150 mm");
}

TEST_F(CompareView, ADecimalSeparatorMayStopTheCommand) {
    world.platform.decimal_separator = ',';
    world.platform.Expect(BoxAnswer::cancel);
    world.Action("mnu_OutilCompare")->trigger();
    EXPECT_FALSE(Rib().ModeCompare);
}

TEST_F(CompareView, RibCommandsSleepAndPaperCommandsLive) {
    OpenRib();
    Compare();
    for (const char *name :
         {"mnu_affinver", "mnu_affdefaut", "mnu_affhautba", "mnu_affhautbf", "mnu_affepr",
          "mnu_affTrac", "mnu_afflignRef", "mnu_affInstxt", "mnu_profilepcoffrage", "mnu_profilba",
          "mnu_profillongeron", "mnu_profiltrou", "mnu_profilbf", "mnu_profilTalon", "mnu_param",
          "mnu_filesaveas", "mnu_filedxf"}) {
        EXPECT_FALSE(Enabled(name)) << name;
    }
    for (const char *name : {"mnu_filepage", "mnu_fileprinterconfig", "mnu_fileprint",
                             "mnu_filepdf", "mnu_filesvg", "mnu_profilcorde", "mnu_affcouleur"}) {
        EXPECT_TRUE(Enabled(name)) << name;
    }
    for (const char *name : {"cmdba", "cmdlongeron", "cmdtrou", "cmdbf"}) {
        EXPECT_FALSE(world.Main().Enabled(name)) << name;
    }
}

TEST_F(CompareView, ANewChordRedrawsBothAndIsNoChange) {
    Compare();
    Run("mnu_profilcorde", {Chord("90")});
    ExpectShown("90 mm");
    EXPECT_EQ(world.programme.plot.CordeEchelle, static_cast<float>(90 * 56.7));
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(CompareView, ZoomScrollAndSizeRedrawTheView) {
    Compare();
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    EXPECT_EQ(world.programme.plot.CordeEchelle, static_cast<float>(150 * 56.7 * 3));
    auto *across = world.Find<QScrollBar>("Hsbpic");
    ASSERT_GT(across->maximum(), 0);
    const double before = SegmentsOf(Drawing()->Operations()).front().x1;
    across->setValue(1);
    EXPECT_EQ(Rib().DecalX, -1);
    EXPECT_NEAR(SegmentsOf(Drawing()->Operations()).front().x1, before - 150 * 3 / 2.0, 0.01);
    const Recording *drawing = Drawing();
    world.Resize(QSize(700, 400));
    EXPECT_NE(Drawing(), drawing);
    ExpectShown("150 mm");
}

TEST_F(CompareView, PrintsAndSavesWhatIsShown) {
    Compare();
    const std::vector<Operation> sheet =
        Printed("Print Airfoil #1 :  naca0012 / Airfoil #2 :  naca2412");
    EXPECT_THAT(TextsOf(sheet), ElementsAre("Airfoil #1 : naca0012     ", "Airfoil #2 : naca2412"));
    EXPECT_EQ(SegmentsOf(sheet).size(), SegmentsOf(Drawing()->Operations()).size());
    EXPECT_EQ(world.platform.print_questions.back().proposed_pdf, "naca0012 - naca2412 150 mm.pdf");
    world.platform.files_expected = {world.folder.Path("both.svg"), world.folder.Path("both.pdf")};
    world.Action("mnu_filesvg")->trigger();
    world.Action("mnu_filepdf")->trigger();
    EXPECT_EQ(world.platform.file_questions[0].name, "naca0012 - naca2412 150 mm.svg");
    EXPECT_THAT(ReadWholeFile(world.folder.Path("both.svg")),
                testing::HasSubstr("Airfoil #2 : naca2412"));
    EXPECT_GT(ReadWholeFile(world.folder.Path("both.pdf")).size(), 1000U);
}

TEST_F(CompareView, AnAirfoilTooShortForAContourClearsTheView) {
    const std::string five =
        world.folder.File("five.dat", "Five\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n");
    world.platform.Expect(BoxAnswer::ok);
    world.platform.Expect(BoxAnswer::ok);
    Run("mnu_OutilCompare", {Chord("150"), PickSample("naca0012.dat"), Pick(five)});
    EXPECT_EQ(world.platform.boxes.back().title, " Calcul/MiniX");
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Drawing(), nullptr);
}

TEST_F(CompareView, AFailedDrawingIsReportedOnceAndClears) {
    Compare();
    world.programme.compare.CompareNb1 = 32000;
    world.platform.Expect(BoxAnswer::ok);
    world.window->RetraceVues();
    EXPECT_EQ(world.platform.boxes.back().title, "Error Main/PrintRoutine2");
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_EQ(Drawing(), nullptr);
    world.window->RetraceVues();
    EXPECT_EQ(world.platform.boxes.size(), 1U);
}

TEST_F(CompareView, ANewAirfoilEndsTheView) {
    Compare();
    OpenRib();
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_EQ(Caption(), "Loftwing Airfoil : naca2412");
    EXPECT_TRUE(Enabled("mnu_profillongeron"));
    EXPECT_GT(SegmentsOf(Drawing()->Operations()).size(), 500U);
}

TEST_F(CompareView, TheReferenceLineEntryShowsTheOtherViewAsItAlwaysDid) {
    Compare();
    world.window->mnu_afflignRef_Click();
    EXPECT_THAT(world.Panel(2), testing::HasSubstr("naca2412 + naca2412 thickness"));
}

} // namespace
} // namespace loftwing
