// How a page comes out for the view that is up. The platform fails the test at every box.

#include "programme/page_decidee.h"

#include "core/contour.h"
#include "output/page_setup.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

class DecidedPage : public StepsWorld {
  protected:
    DecidedPage() {
        EXPECT_TRUE(Read(Sample("naca2412.dat")));
        EXPECT_EQ(PrepareContour(Rib(), programme.messages), Preparation::complete);
    }
    MiseEnPage &Page() { return programme.settings.page; }
    std::optional<MiseEnPage> Decided() { return PageDecidee(programme, Page()); }
    /// The rib stands on a foam template of that height below and above the line.
    void Template(float below, float above) {
        Rib().TypeGabarit = kGabaritMousse;
        Rib().bloc.HTbloc = below + above;
        Rib().bloc.HTbasbloc = below;
    }
};

TEST_F(DecidedPage, CountsTheSheetsOfAPageThatWasNeverSetUp) {
    Rib().corde = 300;
    ASSERT_EQ(Page().NbPages, 0);
    const auto page = Decided();
    ASSERT_TRUE(page);
    EXPECT_EQ(page->NbPages, 2);
    EXPECT_EQ(page->PasPage, 252.0F);
}

TEST_F(DecidedPage, HasOneSheetForARibThatFits) {
    const auto page = Decided();
    ASSERT_TRUE(page);
    EXPECT_EQ(page->NbPages, 1);
}

TEST_F(DecidedPage, TakesTheOverlapThatTheDialogWouldShow) {
    Rib().corde = 300;
    Page().recouvrement = 0; // as a print on one sheet leaves it
    Page().recouvrementAfich = "30";
    const auto page = Decided();
    ASSERT_TRUE(page);
    EXPECT_EQ(page->recouvrement, 30.0F);
    EXPECT_EQ(page->PasPage, 242.0F);
}

TEST_F(DecidedPage, CountsTheTemplateAndNotTheChord) {
    Template(40, 40);
    Rib().bloc.BAbloc = 50;
    Rib().bloc.BFbloc = 60; // 200 + 110 = 310
    const auto page = Decided();
    ASSERT_TRUE(page);
    EXPECT_EQ(page->NbPages, 2);
}

TEST_F(DecidedPage, HasRowsForATallDrawing) {
    Page().en_rangees = true;
    EXPECT_EQ(Decided()->rangees.nombre, 1);
    Template(200, 30); // 50 + 200 is beyond 210
    EXPECT_EQ(Decided()->rangees.nombre, 2);
    Page().en_rangees = false;
    EXPECT_EQ(Decided()->rangees.nombre, 1);
}

TEST_F(DecidedPage, MeasuresForAPageOfTheDrawingsOwnSize) {
    Page().NumIndex = kPapierEntier;
    const auto page = Decided();
    ASSERT_TRUE(page);
    EXPECT_GE(page->entiere.longueur, 225); // 10 + 200 + 15
    EXPECT_LT(page->entiere.longueur, 235);
}

TEST_F(DecidedPage, GivesNoSheetsWithoutAWord) {
    Rib().corde = 300;
    Page().NbPages = 2;     // set up: what the fields would show doesn't matter
    Page().MargeHaut = 270; // 297 - 270 - 15 - 20 is below 0
    EXPECT_FALSE(Decided());
    Page().MargeHaut = 10;
    Page().recouvrement = 271; // steps of 1 mm: more than 255 sheets
    EXPECT_FALSE(Decided());
    Page().recouvrement = 20;
    Page().NumIndex = 99; // no paper has it
    EXPECT_FALSE(Decided());
    Page().NumIndex = kPapierEntier;
    Rib().corde = 5200; // beyond what a page may have
    EXPECT_FALSE(Decided());
}

TEST_F(DecidedPage, GivesNoSheetsWhereTheMeasuringPlotFails) {
    Page().en_rangees = true;
    Rib().longeron[0].PosLongAfich = "300"; // off the chord
    Rib().NbLongeron = 1;
    EXPECT_FALSE(Decided());
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(DecidedPage, LeavesEverythingAsItWas) {
    Page().en_rangees = true;
    Page().recouvrement = 35;
    Template(200, 30);
    Rib().bloc.LongBloc = 7;
    Rib().Zoom = 0.5F;
    Rib().DecalX = -3;
    programme.plot.OrigineX = 123;
    programme.plot.BlocBA = 4;
    programme.plot.extra.DecalX[10] = 5;
    Page().NbPages = 9;
    ASSERT_TRUE(Decided());
    EXPECT_EQ(Page().NbPages, 9);
    EXPECT_EQ(Page().recouvrement, 35.0F); // of which one sheet has none
    EXPECT_EQ(Page().rangees.nombre, 1);
    EXPECT_EQ(Rib().bloc.LongBloc, 7.0F);
    EXPECT_EQ(Rib().Zoom, 0.5F);
    EXPECT_EQ(Rib().DecalX, -3);
    EXPECT_EQ(programme.plot.OrigineX, 123.0F);
    EXPECT_EQ(programme.plot.BlocBA, 4.0);
    EXPECT_EQ(programme.plot.extra.DecalX[10], 5.0);
    EXPECT_EQ(programme.plot.CordeEchelle, 0.0F);
    EXPECT_TRUE(platform.boxes.empty());
}

} // namespace
} // namespace loftwing
