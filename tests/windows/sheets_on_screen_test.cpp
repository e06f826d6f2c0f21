// The sheets over the main window's picture.

#include "base/whole_file.h"
#include "output/page_setup.h"
#include "support/qt_pdf.h"
#include "windows/views_fixture.h"

#include <gmock/gmock.h>

#include <QScrollBar>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Numbers = std::vector<std::string>;

/// A rib of 300 mm: two sheets of A4.
class SheetsOnScreen : public Views {
  protected:
    SheetsOnScreen() {
        OpenRib();
        SetChord(300);
        world.window->affiche();
    }

    void SetChord(float mm) {
        Rib().corde = mm;
        Rib().cordeAfich = std::to_string(static_cast<int>(mm));
    }
    MiseEnPage &Page() { return world.programme.settings.page; }
    void Toggle() { world.Action("mnu_afffeuilles")->trigger(); }
    const Recording *Sheets() const { return world.Find<PicView>("Pic")->Dessus(); }
    Numbers Shown() const {
        return Sheets() == nullptr ? Numbers{} : TextsOf(Sheets()->Operations());
    }
    /// Where the first of the upright lines stands, the first sheet's left edge; from the leading
    /// edge in mm.
    double LeftEdge() const { return MmOfUpright(0); }
    double MmOfUpright(std::size_t index) const {
        std::vector<double> places;
        for (const DrawnSegment &line : SegmentsOf(Sheets()->Operations())) {
            if (line.x1 == line.x2) {
                places.push_back(line.x1);
            }
        }
        const double scale = 56.7 * world.programme.rib.Zoom;
        const double origin = 283.5 + world.programme.rib.DecalX * world.programme.rib.corde *
                                          world.programme.rib.Zoom / 2.0;
        return (places.at(index) - origin) / scale;
    }
    void SetUp(const User &user) { Run("mnu_filepage", {user}); }
    void Zoom(int row) { Q_EMIT world.Find<QComboBox>("Combo1")->activated(row); }
};

TEST_F(SheetsOnScreen, AreShownAndTakenAwayByTheirEntry) {
    EXPECT_FALSE(world.Action("mnu_afffeuilles")->isChecked());
    EXPECT_EQ(Sheets(), nullptr);
    Toggle();
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
    EXPECT_NEAR(LeftEdge(), -10 + 10 / 56.7, 1E-3);
    Toggle();
    EXPECT_EQ(Sheets(), nullptr);
}

TEST_F(SheetsOnScreen, ArePaintedOverTheDrawing) {
    auto *pic = world.Find<PicView>("Pic");
    world.Resize({1000, 900});
    const QImage without = pic->grab().toImage();
    Toggle();
    const QImage with = pic->grab().toImage();
    EXPECT_NE(with, without);
    Toggle();
    EXPECT_EQ(pic->grab().toImage(), without);
}

TEST_F(SheetsOnScreen, StayWithTheDrawingAtEveryZoom) {
    Toggle();
    for (int row = 0; row < std::ssize(kZoomRows); ++row) {
        Zoom(row);
        EXPECT_NEAR(LeftEdge(), -10 + 10 / 56.7, 1E-3) << row;
        EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2")) << row;
    }
    Zoom(kZoomRow100);
    auto *across = world.Find<QScrollBar>("Hsbpic");
    across->setValue(across->minimum());
    EXPECT_GT(Rib().DecalX, 0);
    EXPECT_NEAR(LeftEdge(), -10 + 10 / 56.7, 1E-3);
}

TEST_F(SheetsOnScreen, FollowTheChord) {
    Toggle();
    SetChord(200);
    world.window->affiche();
    EXPECT_THAT(Shown(), ElementsAre("1/1"));
    EXPECT_EQ(Page().recouvrement, 20.0F); // nothing was printed
}

TEST_F(SheetsOnScreen, HaveTheSamePlaceUpsideDown) {
    Toggle();
    const auto upright = Sheets()->Operations();
    world.Action("mnu_affinver")->trigger();
    ASSERT_TRUE(Rib().AffHaut);
    EXPECT_EQ(Sheets()->Operations(), upright);
}

TEST_F(SheetsOnScreen, StandAroundAFoamTemplateAsItIsPrinted) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.BAbloc = 40;
    Rib().bloc.BFbloc = 250; // 590 in all: 2.3 steps of 252
    Rib().bloc.HTbloc = 60;
    Rib().bloc.HTbasbloc = 30;
    Toggle();
    world.window->affiche();
    EXPECT_THAT(Shown(), ElementsAre("1/3", "2/3", "3/3"));
    EXPECT_NEAR(LeftEdge(), -10 + 10 / 56.7, 1E-3); // before the ramp
}

TEST_F(SheetsOnScreen, HaveRowsWhereThePageHasThem) {
    Page().en_rangees = true;
    Page().NbPages = 2;   // set up
    Page().Ydprint = 190; // the rib ends 13 mm below it
    Toggle();
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.HTbloc = 60;
    Rib().bloc.HTbasbloc = 40;
    world.window->affiche();
    EXPECT_THAT(Shown(), ElementsAre("1/4", "2/4", "3/4", "4/4"));
}

TEST_F(SheetsOnScreen, AreNoneOfThePrintersOwnPaper) {
    Toggle();
    Page().NumIndex = kPapierImprimante;
    world.window->affiche();
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_TRUE(world.Action("mnu_afffeuilles")->isChecked());
}

TEST_F(SheetsOnScreen, AreThoseOfEveryViewThatIsPrinted) {
    Toggle();
    Compare(); // at 150 mm
    EXPECT_TRUE(Enabled("mnu_afffeuilles"));
    EXPECT_THAT(Shown(), ElementsAre("1/1"));
}

TEST_F(SheetsOnScreen, AreThoseOfTheSimplePlotToo) {
    Toggle();
    Run("mnu_Outilcoupl", {PickSample("naca2412.dat")});
    ASSERT_TRUE(Rib().ModeCouple);
    EXPECT_TRUE(Enabled("mnu_afffeuilles"));
    EXPECT_THAT(Shown(), ElementsAre("1/1")); // at 200 mm
    SetChord(320);
    world.window->afficheCouple();
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
}

TEST_F(SheetsOnScreen, GoWithTheDrawing) {
    Toggle();
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(Drawing(), nullptr);
    EXPECT_EQ(Sheets(), nullptr);
    EXPECT_FALSE(Enabled("mnu_afffeuilles"));
    // The page's tool button stays alive.
    InNextDialog([this](Seen &dialog) {
        dialog.Type("Text1(1)", "12");
        EXPECT_EQ(Sheets(), nullptr);
    });
    world.Action("Toolbar1(5)")->trigger();
    EXPECT_EQ(Sheets(), nullptr);
    OpenRib();
    EXPECT_THAT(Shown(), ElementsAre("1/1"));
}

TEST_F(SheetsOnScreen, ARefusedRedrawLeavesThemAtTheOldDrawing) {
    Toggle();
    Rib().EpBA = 400; // wider than the chord
    Rib().Zoom = 3;
    const auto before = Sheets()->Operations();
    world.platform.Expect(BoxAnswer::ok);
    world.window->affiche();
    EXPECT_EQ(Sheets()->Operations(), before);
}

// The page set-up.

TEST_F(SheetsOnScreen, FollowThePageThatIsBeingSetUp) {
    Toggle();
    SetUp([this](Seen &dialog) {
        EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
        dialog.Type("Text1(1)", "30");
        EXPECT_NEAR(LeftEdge(), -30 + 30 / 56.7, 1E-3);
        dialog.Find<QComboBox>("Combo1").setCurrentIndex(7); // A3
        EXPECT_THAT(Shown(), ElementsAre("1/1"));
        dialog.Find<QComboBox>("Combo1").setCurrentIndex(0);
        dialog.Type("Text1(3)", "170"); // steps of 297 - 30 - 15 - 170 = 82
        EXPECT_THAT(Shown(), ElementsAre("1/4", "2/4", "3/4", "4/4"));
        dialog.Click("cmdok");
    });
    EXPECT_THAT(Shown(), ElementsAre("1/4", "2/4", "3/4", "4/4"));
    EXPECT_NEAR(LeftEdge(), -30 + 30 / 56.7, 1E-3);
}

TEST_F(SheetsOnScreen, GoDownwardsAsSoonAsTheBoxIsTicked) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.HTbloc = 230;
    Rib().bloc.HTbasbloc = 200; // 50 + 200 is beyond 210
    world.window->affiche();
    Toggle();
    SetUp([this](Seen &dialog) {
        EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
        dialog.Click("chkrangees");
        EXPECT_THAT(Shown(), ElementsAre("1/4", "2/4", "3/4", "4/4"));
        dialog.Click("cmdannuler");
    });
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
}

TEST_F(SheetsOnScreen, GoBackWhenTheSetUpIsCancelled) {
    Toggle();
    const auto before = Sheets()->Operations();
    SetUp([&](Seen &dialog) {
        dialog.Type("Text1(1)", "30");
        dialog.Type("Text1(0)", "80");
        EXPECT_NE(Sheets()->Operations(), before);
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(Sheets()->Operations(), before);
}

TEST_F(SheetsOnScreen, AreThoseOfARefusedOkWhichIsKept) {
    Toggle();
    SetUp([&](Seen &dialog) {
        dialog.Type("Text1(0)", "80");
        dialog.Type("Text1(3)", "0");
        world.platform.Expect(BoxAnswer::ok); // several sheets without overlap
        dialog.Click("cmdok");
        dialog.Type("Text1(0)", "90");
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(Page().Ydprint, 80.0F);
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
}

TEST_F(SheetsOnScreen, VanishWhileTheEntriesGiveNone) {
    Toggle();
    SetUp([this](Seen &dialog) {
        dialog.Type("Text1(1)", "26");
        EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
        world.platform.Expect(BoxAnswer::ok,
                              {.meanwhile = [this] { EXPECT_THAT(Shown(), IsEmpty()); }});
        dialog.Keys("Text1(1)", "2"); // 297 - 262 - 15 - 20 = 0
        EXPECT_THAT(Shown(), IsEmpty());
        dialog.Type("Text1(1)", "10");
        EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
        dialog.Type("Text1(3)", "27");
        world.platform.Expect(BoxAnswer::ok);
        dialog.Keys("Text1(3)", "1"); // more than 255 sheets
        EXPECT_THAT(Shown(), IsEmpty());
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : -");
    });
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
}

TEST_F(SheetsOnScreen, VanishWhereTheDialogFindsNoneAtItsStart) {
    Toggle();
    Page().recouvrement = 271;
    Page().recouvrementAfich = "271"; // more than 255 sheets
    SetUp([this](Seen &dialog) {
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : -");
        EXPECT_THAT(Shown(), IsEmpty());
        dialog.Click("cmdannuler");
    });
    EXPECT_THAT(Shown(), IsEmpty());
}

TEST_F(SheetsOnScreen, KeepThePageInProgressThroughARedraw) {
    Toggle();
    SetUp([this](Seen &dialog) {
        dialog.Type("Text1(1)", "30");
        world.window->affiche();
        EXPECT_NEAR(LeftEdge(), -30 + 30 / 56.7, 1E-3);
        dialog.Click("cmdannuler");
    });
    EXPECT_NEAR(LeftEdge(), -10 + 10 / 56.7, 1E-3);
}

TEST_F(SheetsOnScreen, AreNotThereInTheSetUpUnlessTheyAreShown) {
    SetUp([this](Seen &dialog) {
        dialog.Type("Text1(1)", "30");
        EXPECT_EQ(Sheets(), nullptr);
    });
    EXPECT_EQ(Sheets(), nullptr);
}

TEST_F(SheetsOnScreen, ShowTheRowsThatAPrintWasGiven) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.HTbloc = 230;
    Rib().bloc.HTbasbloc = 200; // 50 + 200 is beyond 210
    world.window->affiche();
    Toggle();
    EXPECT_THAT(Shown(), ElementsAre("1/2", "2/2"));
    Page().NbPages = 2;                    // set up before
    world.platform.Expect(BoxAnswer::yes); // print it?
    world.platform.Expect(BoxAnswer::yes); // in rows?
    world.Action("mnu_fileprint")->trigger();
    EXPECT_TRUE(Page().en_rangees);
    EXPECT_THAT(Shown(), ElementsAre("1/4", "2/4", "3/4", "4/4"));
}

// What they leave alone.

TEST_F(SheetsOnScreen, AreInNothingThatLeavesTheProgram) {
    // A page that was set up, so that no run asks for it.
    Page().NbPages = 2;
    const auto exported = [this](const char *entry, const std::string &name, int form = 0) {
        const std::string path = world.folder.Path(name);
        world.platform.form_chosen = form;
        world.platform.files_expected = {path};
        world.Action(entry)->trigger();
        return ReadWholeFile(path);
    };
    const auto all = [&](const std::string &prefix) {
        return std::vector<std::string>{exported("mnu_filesvg", prefix + ".svg"),
                                        exported("mnu_filedxf", prefix + "0.dxf", 0),
                                        exported("mnu_filedxf", prefix + "1.dxf", 1)};
    };
    const auto printed = Printed("Print naca2412");
    const auto pdf = [&](const std::string &name) {
        exported("mnu_filepdf", name);
        const ReadPdf file(Q(world.folder.Path(name)));
        return std::pair(file.Lines(1), file.Lines(2));
    };
    const auto pages = pdf("without.pdf");
    ASSERT_FALSE(pages.second.empty());
    const std::vector<std::string> without = all("a");
    Toggle();
    ASSERT_EQ(Shown().size(), 2U);
    EXPECT_EQ(all("b"), without);
    EXPECT_EQ(Printed("Print naca2412"), printed);
    EXPECT_EQ(pdf("with.pdf"), pages);
}

TEST_F(SheetsOnScreen, LeavePlotZoomAndRibAlone) {
    Page().en_rangees = true; // for which the drawing is measured
    Rib().EpBF = 25;          // a plot that depends on the one before
    world.window->affiche();
    const PlotState before = world.programme.plot;
    const auto drawn = Drawing()->Operations();
    const int row = world.Find<QComboBox>("Combo1")->currentIndex();
    Toggle();
    const PlotState &after = world.programme.plot;
    EXPECT_EQ(after.CordeEchelle, before.CordeEchelle);
    EXPECT_EQ(after.OrigineX, before.OrigineX);
    EXPECT_EQ(after.OrigineY, before.OrigineY);
    EXPECT_EQ(after.extra.DecalX, before.extra.DecalX);
    EXPECT_EQ(after.intra.DecalY, before.intra.DecalY);
    EXPECT_EQ(world.Find<QComboBox>("Combo1")->currentIndex(), row);
    EXPECT_EQ(Drawing()->Operations(), drawn);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(Rib().Zoom, 1.0F);
}

// Scrolling.

TEST_F(SheetsOnScreen, AreReachedByTheScrollBars) {
    world.Resize({700, 300});
    auto *across = world.Find<QScrollBar>("Hsbpic");
    auto *down = world.Find<QScrollBar>("Vsbpic");
    EXPECT_EQ(across->minimum(), 0);
    EXPECT_EQ(down->maximum(), 0);
    Toggle();
    // Both begin left of and above the drawing.
    EXPECT_LT(across->minimum(), 0);
    EXPECT_GT(down->maximum(), 0);
    down->setValue(down->maximum());
    EXPECT_GE(Sheets()->Bounds().top, 0);
    across->setValue(across->maximum());
    EXPECT_LE(Sheets()->Bounds().right, world.Find<PicView>("Pic")->width() * 15.0);
    Toggle();
    EXPECT_EQ(down->maximum(), 0);
    EXPECT_LE(down->value(), 0);
    EXPECT_LE(Rib().DecalX, 0);
}

TEST_F(SheetsOnScreen, AreSeenWholeByFitToWindow) {
    world.Resize({1000, 600});
    Toggle();
    world.Action("mnu_affajuste")->trigger();
    const Extent sheets = Sheets()->Bounds();
    auto *pic = world.Find<PicView>("Pic");
    EXPECT_GE(sheets.left, 0);
    EXPECT_GE(sheets.top, 0);
    EXPECT_LE(sheets.right, pic->width() * 15.0);
    EXPECT_LE(sheets.bottom, pic->height() * 15.0);
}

} // namespace
} // namespace loftwing
