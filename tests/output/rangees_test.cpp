// Sheets under each other, pages as large as the drawing, papers of one's own.
#include "output/page_entry.h"
#include "output/print_run.h"

#include "support/failures.h"
#include "support/rib_world.h"
#include "support/test_printer.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

/// A4 with margins of 10 and 15, an overlap of 20, the reference line at 50 mm: rows advance by
/// 210 - 10 - 15 - 20 = 165 mm.
MiseEnPage PageInRows() {
    MiseEnPage page;
    page.en_rangees = true;
    page.NbPages = 1;
    return page;
}

TEST(Rows, NothingMovesWhereTheDrawingIsOnTheSheet) {
    MiseEnPage page = PageInRows();
    EXPECT_TRUE(CalculRangees(page, {0, 200, 50, 160}));
    EXPECT_EQ(page.rangees.nombre, 1);
    EXPECT_EQ(LigneReference(page), 50);
}

TEST(Rows, AreNotMadeUnasked) {
    MiseEnPage page = PageInRows();
    page.en_rangees = false;
    EXPECT_TRUE(CalculRangees(page, {0, 200, 90, 400}));
    EXPECT_EQ(page.rangees.nombre, 1);
    EXPECT_EQ(LigneReference(page), 50);
}

TEST(Rows, AreAsManyAsTheDrawingBelowTheLineWants) {
    MiseEnPage page = PageInRows();
    // The first row ends 15 mm above the edge, at 195; each further one 165 lower.
    EXPECT_TRUE(CalculRangees(page, {0, 200, 30, 161}));
    EXPECT_EQ(page.rangees.nombre, 2);
    EXPECT_TRUE(CalculRangees(page, {0, 200, 30, 310})); // 360 = 195 + 165
    EXPECT_EQ(page.rangees.nombre, 2);
    EXPECT_TRUE(CalculRangees(page, {0, 200, 30, 310.5}));
    EXPECT_EQ(page.rangees.nombre, 3);
    EXPECT_EQ(page.rangees.pas, 165);
    EXPECT_EQ(LigneReference(page), 50);
}

TEST(Rows, LowerTheLineWhereTheDrawingReachesAboveTheSheet) {
    MiseEnPage page = PageInRows();
    EXPECT_TRUE(CalculRangees(page, {0, 200, 60.2, 100}));
    EXPECT_EQ(LigneReference(page), 71); // 60.2 and the margin of 10, to a whole millimetre
    EXPECT_EQ(page.rangees.nombre, 1);   // 171 mm are above 195
}

TEST(Rows, TakeTheOverlapThatARibOfOneSheetHasSetToNothing) {
    MiseEnPage page = PageInRows();
    page.recouvrement = 30;
    CalculPages(page, {200, 0, false});
    EXPECT_EQ(page.recouvrement, 0.0F);
    EXPECT_TRUE(CalculRangees(page, {0, 200, 30, 300}));
    EXPECT_EQ(page.rangees.recouvrement, 30);
    EXPECT_EQ(page.rangees.pas, 155);
}

TEST(Rows, AreRefusedWhereMarginsAndOverlapLeaveNoRoom) {
    MiseEnPage page = PageInRows();
    page.recouvrement = 185;
    EXPECT_FALSE(CalculRangees(page, {0, 200, 30, 300}));
}

TEST(Rows, AreNoMoreThan255SheetsInAll) {
    MiseEnPage page = PageInRows();
    page.NbPages = 100;
    EXPECT_TRUE(CalculRangees(page, {0, 200, 30, 300})); // 2 rows
    EXPECT_EQ(FailureOf([&] { CalculRangees(page, {0, 200, 30, 400}); }), 6);
}

TEST(Rows, StandOnNoPaperOfUnknownSize) {
    MiseEnPage page = PageInRows();
    for (const std::uint8_t paper : {std::uint8_t{8}, std::uint8_t{9}}) {
        page.NumIndex = paper;
        EXPECT_TRUE(CalculRangees(page, {0, 200, 30, 900}));
        EXPECT_EQ(page.rangees.nombre, 1);
    }
}

TEST(WholePage, IsAsLargeAsTheDrawingAndItsMargins) {
    MiseEnPage page;
    page.NumIndex = 9;
    EXPECT_TRUE(CalculPageEntiere(page, {2.5, 200.2, 20.5, 13}, 0));
    EXPECT_EQ(page.entiere.avant, 12.5);
    EXPECT_EQ(page.entiere.longueur, 228); // 12.5 + 200.2 + 15 = 227.7
    EXPECT_EQ(page.entiere.largeur, 54);   // 10 + 20.5 + 13 + 10 = 53.5
    EXPECT_EQ(LigneReference(page), 30.5);
    EXPECT_EQ(PapierDe(page).tailleFeuille, 228);
    EXPECT_TRUE(TientSurUneFeuille(page, {4000, 0, false}));
    EXPECT_TRUE(CalculPageEntiere(page, {-3, 5055, 20, 13}, 0)); // 10 + 5055 + 15
    EXPECT_EQ(page.entiere.avant, 10);
    EXPECT_FALSE(CalculPageEntiere(page, {0, 5056, 20, 13}, 0));
    EXPECT_FALSE(CalculPageEntiere(page, {0, 200, 20, 13}, 5060));
}

TEST(OwnPapers, StandBehindTheTable) {
    const RibWorld world;
    MiseEnPage page;
    EXPECT_EQ(NombrePapiers(page), 10);
    EXPECT_EQ(NomFeuille(page, 9, world.language), " <FrmPrint 250>");
    page.papiers = {{"Roll", 2000, 610}, {"", 300, 420.5}};
    EXPECT_EQ(NombrePapiers(page), 12);
    EXPECT_EQ(NomFeuille(page, 10, world.language), " Roll 2000 x 610 mm");
    EXPECT_EQ(NomFeuille(page, 11, world.language), " 300 x 420.5 mm");
    EXPECT_EQ(FailureOf([&] { NomFeuille(page, 12, world.language); }), 9);
    page.NumIndex = 10;
    EXPECT_EQ(PapierDe(page).tailleFeuille, 2000);
    EXPECT_EQ(PapierDe(page).largeur, 610);
    page.NumIndex = 12;
    EXPECT_EQ(FailureOf([&] { PapierDe(page); }), 9);
}

TEST(OwnPapers, AreKeptAsText) {
    const std::vector<PapierPropre> papers = {{"Roll 24 in", 2000, 609.6}, {"", 1189, 841}};
    const std::string text = TextePapiersPropres(papers);
    EXPECT_EQ(text, "2000 x 609.6 Roll 24 in | 1189 x 841 ");
    EXPECT_EQ(LitPapiersPropres(text), papers);
    EXPECT_TRUE(LitPapiersPropres("").empty());
}

TEST(OwnPapers, LeaveOutWhatIsNone) {
    EXPECT_EQ(LitPapiersPropres("garbage | 2000 x | 20 x 500 thin | -5 x 100 | 6000 x 500 | "
                                "nan x 400 | 300 x 400 good"),
              (std::vector<PapierPropre>{{"good", 300, 400}}));
    std::string many;
    for (int i = 0; i < 30; ++i) {
        many += "300 x 400 | ";
    }
    EXPECT_EQ(LitPapiersPropres(many).size(), 20U);
}

TEST(OwnPapers, AreTypedInTheUnitInForce) {
    RibWorld world;
    EXPECT_EQ(PapierSaisi(" Roll | wide ", {"24", "36"}, {" in", world.messages}, "T"),
              (PapierPropre{"Roll / wide", 609.6, 914.4}));
    for (const auto &sides :
         {std::array<std::string, 2>{"", "100"}, {"100", "49"}, {"5081", "100"}}) {
        world.platform.Expect(BoxAnswer::ok, {.text = "<FrmPrint 264> 50 <FrmPrint 237> 5080 mm",
                                              .title = "T",
                                              .icon = BoxIcon::stop});
        EXPECT_FALSE(PapierSaisi("Roll", sides, {" mm", world.messages}, "T"));
    }
}

/// A drawing of lines given in mm from the leading edge end of the reference line, y downwards.
class RowsPrinted : public testing::Test {
  protected:
    RowsPrinted() {
        TakeAirfoil(world, Naca(2412, 30));
        world.settings.page.en_rangees = true;
    }

    MiseEnPage &Page() { return world.settings.page; }
    Impression Run() {
        Impression run = world.Run();
        run.plot_routine = [this](PlotDevice &device) {
            ++drawn;
            const auto x = static_cast<double>(world.plot.OrigineX);
            const auto y = static_cast<double>(world.plot.OrigineY);
            world.plot.CoupeDev += 1; // as a plot leaves its traces
            device.Line(x, y - above * kUnitsPerMm, x + 200 * kUnitsPerMm, y + below * kUnitsPerMm,
                        0);
            return !fails;
        };
        return run;
    }
    FinImpression Print(const Impression &run) {
        EXPECT_TRUE(PrepareFeuilles(run, [] { return true; }));
        const auto end = PrepareDessin(run);
        return end ? *end : Imprime(run, printer);
    }
    static const DrawnSegment &Line(const std::vector<Operation> &sheet) {
        return std::get<DrawnSegment>(sheet.front());
    }

    RibWorld world;
    TestPrinter printer;
    double above = 20;
    double below = 300;
    bool fails = false;
    int drawn = 0;
};

TEST_F(RowsPrinted, ShowTheSameDrawingShiftedUpByTheStep) {
    EXPECT_EQ(Print(Run()), FinImpression::imprime);
    ASSERT_EQ(printer.sheets.size(), 2U); // 50 + 300 = 350 is below 195, above 360
    const DrawnSegment &upper = Line(printer.sheets[0]);
    const DrawnSegment &lower = Line(printer.sheets[1]);
    EXPECT_NEAR(upper.y1, (50 - 20) * 56.7, 0.01);
    EXPECT_NEAR(upper.y1 - lower.y1, 165 * 56.7, 0.01);
    EXPECT_EQ(upper.x1, lower.x1);
    EXPECT_NEAR(upper.x1, 567 - 10, 1e-6); // the margin is taken off in units
}

TEST_F(RowsPrinted, LowerCrossesOfASheetAreTheUpperOnesOfTheOneBelow) {
    EXPECT_EQ(Print(Run()), FinImpression::imprime);
    ASSERT_EQ(printer.sheets.size(), 2U);
    // In mm: 5 inside the margins of 10 and 15, 15 to 277; in the middle of the overlap, 10, and
    // 165 lower.
    const std::array<std::array<double, 2>, 4> centres = {
        {{277, 10}, {277, 175}, {15, 10}, {15, 175}}};
    for (const auto &sheet : printer.sheets) {
        ASSERT_EQ(sheet.size(), 1U + 8U);
        for (std::size_t i = 0; i < 4; ++i) {
            SCOPED_TRACE(i);
            const auto &upright = std::get<DrawnSegment>(sheet[1 + 2 * i]);
            const auto &level = std::get<DrawnSegment>(sheet[2 + 2 * i]);
            EXPECT_NEAR(upright.x1, centres.at(i)[0] * 56.7, 1e-6);
            EXPECT_NEAR(upright.y1, (centres.at(i)[1] - 5) * 56.7, 1e-6);
            EXPECT_NEAR(upright.y2, (centres.at(i)[1] + 5) * 56.7, 1e-6);
            EXPECT_NEAR(level.y1, centres.at(i)[1] * 56.7, 1e-6);
            EXPECT_NEAR(level.x1, (centres.at(i)[0] - 5) * 56.7, 1e-6);
        }
    }
}

TEST_F(RowsPrinted, GoRowByRowWhereTheRibIsLongToo) {
    world.rib.corde = 600; // 3 steps of 252
    EXPECT_EQ(Print([this] {
                  CalculPasPage(Page(), LongueurDe(world.rib));
                  return Run();
              }()),
              FinImpression::imprime);
    ASSERT_EQ(printer.sheets.size(), 6U);
    for (std::size_t i = 0; i < 6; ++i) {
        const DrawnSegment &line = Line(printer.sheets[i]);
        const auto column = static_cast<double>(i % 3);
        const auto row = static_cast<double>(i / 3);
        EXPECT_NEAR(line.x1, 557 - column * 252 * 56.7, 0.01) << i;
        EXPECT_NEAR(line.y1, (30 - row * 165) * 56.7, 0.01) << i;
    }
    // The crosses of sheets side by side: half the overlap from the edge, and a step farther.
    const auto &cross = std::get<DrawnSegment>(printer.sheets[0][1]);
    EXPECT_NEAR(cross.x1, 262 * 56.7, 1e-6);
}

TEST_F(RowsPrinted, TheMeasuringLeavesNoTrace) {
    below = 100;
    const Impression run = Run();
    EXPECT_TRUE(PrepareFeuilles(run, [] { return true; }));
    const float before = world.plot.CoupeDev;
    EXPECT_EQ(PrepareDessin(run), std::nullopt);
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(world.plot.CoupeDev, before);
}

TEST_F(RowsPrinted, ADrawingThatFitsIsPrintedAsWithoutRows) {
    below = 100;
    EXPECT_EQ(Print(Run()), FinImpression::imprime);
    TestPrinter plain;
    Page().en_rangees = false;
    EXPECT_EQ(Imprime(Run(), plain), FinImpression::imprime);
    EXPECT_EQ(printer.sheets, plain.sheets);
}

TEST_F(RowsPrinted, AFailedPlotEndsTheRunBeforeItBegins) {
    fails = true;
    EXPECT_EQ(Print(Run()), FinImpression::trace_echec);
    EXPECT_TRUE(printer.calls.empty());
}

TEST_F(RowsPrinted, NoRoomBetweenMarginsAndOverlapIsTold) {
    Page().MargeHaut = 100;
    Page().MargeBas = 90;
    world.rib.corde = 90;
    world.platform.Expect(BoxAnswer::ok,
                          {.text = "<FrmPrint 22>", .title = "<Erreur 1>", .icon = BoxIcon::stop});
    EXPECT_EQ(Print(Run()), FinImpression::annule);
    EXPECT_TRUE(printer.calls.empty());
}

TEST_F(RowsPrinted, APageOfTheDrawingsOwnSizeHoldsAllOfIt) {
    Page().NumIndex = kPapierEntier;
    above = 20.3;
    EXPECT_EQ(Print(Run()), FinImpression::imprime);
    // 10 + 200 + 15 long; 10 + 20.3 + 300 + 10 high, so the long side stands upright.
    EXPECT_EQ(printer.calls,
              (std::vector<std::string>{"portrait", "paper 341 225", "draw", "end"}));
    EXPECT_NEAR(Line(printer.sheets[0]).x1, 567, 0.01);
    EXPECT_NEAR(Line(printer.sheets[0]).y1, 567, 0.01);
}

TEST_F(RowsPrinted, ATooLargePageIsRefusedWithItsMeasures) {
    Page().NumIndex = kPapierEntier;
    below = 5100;
    world.platform.Expect(BoxAnswer::ok,
                          {.text = "<FrmPrint 252> : 225 x 5140 mm\n<FrmPrint 253> 5080 mm.",
                           .title = "<Erreur 1>",
                           .icon = BoxIcon::stop});
    EXPECT_EQ(Print(Run()), FinImpression::annule);
}

TEST_F(RowsPrinted, ThePlatformIsAskedForPaperOfOnesOwn) {
    Page().papiers = {{"Cut of a roll", 300, 610}};
    Page().NumIndex = kPapierPropre;
    const PrintQuestion question = DemandeImprimante(Run());
    EXPECT_FALSE(question.landscape);
    EXPECT_EQ(question.long_side_mm, 610);
    EXPECT_EQ(question.short_side_mm, 300);
}

TEST_F(RowsPrinted, TheSummaryCountsAllSheets) {
    EXPECT_EQ(Print(Run()), FinImpression::imprime);
    EXPECT_EQ(ResumeFeuilles(Run()), "<FrmPrint 10> : 2 (2 x 1)\nA4 210 x 297 mm");
}

} // namespace
} // namespace loftwing
