#include "output/hors_feuille.h"

#include "support/rib_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace loftwing {
namespace {

/// Drawings on A4 (297 x 210 mm) with margins 10 and 15, overlap 20 and the line at 50 mm. The
/// leading edge lies 10 units, 0.18 mm, before the margin, as on every sheet.
class HorsFeuilleTest : public testing::Test {
  protected:
    HorsFeuilleTest() { Page().NbPages = 1; }

    MiseEnPage &Page() { return world.settings.page; }

    /// Draws lines in mm from leading edge and reference line, y downwards.
    void Line(double x1, double y1, double x2, double y2) {
        steps.emplace_back([=, this](PlotDevice &device) {
            const double x = static_cast<double>(world.plot.OrigineX);
            const double y = static_cast<double>(world.plot.OrigineY);
            device.Line(x + x1 * 56.7, y + y1 * 56.7, x + x2 * 56.7, y + y2 * 56.7, 0);
        });
    }
    void Text(double x, double y, const std::string &text) {
        steps.emplace_back([=, this](PlotDevice &device) {
            device.CurrentX = static_cast<double>(world.plot.OrigineX) + x * 56.7;
            device.CurrentY = static_cast<double>(world.plot.OrigineY) + y * 56.7;
            device.Print(text);
        });
    }
    HorsFeuille Measure(int propre = kPapierImprimante) {
        Impression run = world.Run();
        run.plot_routine = [this](PlotDevice &device) {
            for (const auto &step : steps) {
                step(device);
            }
            return true;
        };
        const auto found = MesureHorsFeuille(run, Papiers().at(static_cast<std::size_t>(propre)));
        EXPECT_TRUE(found);
        return found.value_or(HorsFeuille{});
    }
    std::string Told(const HorsFeuille &hors, const std::string &Unite = " mm") {
        return TexteHorsFeuille(hors, {"LINE :", "BEFORE :", "AFTER :", "PAPER", "ROWS"},
                                {Unite, world.messages});
    }
    static constexpr const char *kHead = "<FrmPrint 230>\n";
    static constexpr const char *kHelp = "\n<FrmPrint 235>\n";

    RibWorld world;
    std::vector<std::function<void(PlotDevice &)>> steps;
};

TEST_F(HorsFeuilleTest, WhatStaysOnTheSheetIsNotTold) {
    // From edge to edge, a tenth of a millimetre beyond each.
    Line(-10 + 0.18 - 0.09, -50.09, 287.18 + 0.09, 160.09);
    EXPECT_TRUE(Measure().tout.Aucun());
    steps.clear();
    EXPECT_TRUE(Measure().tout.Aucun()); // nothing drawn at all
}

TEST_F(HorsFeuilleTest, EachEdgeIsMeasured) {
    Line(-12.18, -51, 289.18, 163);
    const HorsFeuille hors = Measure();
    EXPECT_NEAR(hors.tout.haut, 1, 0.001);
    EXPECT_NEAR(hors.tout.bas, 3, 0.001);
    EXPECT_NEAR(hors.tout.gauche, 2.36, 0.01); // 10 - 0.18 of margin
    EXPECT_NEAR(hors.tout.droite, 2, 0.01);
}

TEST_F(HorsFeuilleTest, ALineThatStandsTooHighIsToldWhereItMayStand) {
    Line(0, -62.35, 200, 20);
    // 12.35 mm too high; from 62.35 to 210 - 20 all is on the sheet.
    EXPECT_EQ(Told(Measure()), std::string(kHead) + "<FrmPrint 231> : 12.4 mm\n" + kHelp +
                                   "LINE : 63 mm <FrmPrint 237> 190 mm\n");
}

TEST_F(HorsFeuilleTest, ALineThatStandsTooLowIsToldLikewise) {
    Page().Ydprint = 190;
    Line(0, -30, 200, 25);
    EXPECT_EQ(Told(Measure()), std::string(kHead) + "<FrmPrint 232> : 5 mm\n" + kHelp +
                                   "LINE : 30 mm <FrmPrint 237> 185 mm\n");
}

TEST_F(HorsFeuilleTest, ARibHigherThanTheSheetWantsOtherPaper) {
    Line(0, -100, 200, 130.4);
    EXPECT_EQ(Told(Measure()), std::string(kHead) + "<FrmPrint 231> : 50 mm\n" + kHelp +
                                   "PAPER : <FrmPrint 238> 231 mm\n");
}

TEST_F(HorsFeuilleTest, OfThePrintersOwnPaperOnlyTheUpperAndLeftEdgeAreKnown) {
    Page().NumIndex = kPapierImprimante;
    Line(-14, -55, 900, 900);
    const HorsFeuille hors = Measure();
    EXPECT_NEAR(hors.tout.gauche, 4, 0.001); // this run takes the margin as it is
    EXPECT_EQ(hors.tout.droite, 0);
    EXPECT_EQ(hors.tout.bas, 0);
    EXPECT_THAT(Told(hors), testing::HasSubstr("LINE : 55 mm <FrmPrint 236>\n"
                                               "BEFORE : 14 mm <FrmPrint 236>\n"));
    // Where it stands for a paper that is known, that counts.
    EXPECT_NEAR(Measure(0).tout.droite, 900 + 10 - 297, 0.001);
}

TEST_F(HorsFeuilleTest, MarginsAreToldAsTheDrawingWantsThem) {
    Line(-25, 0, 300, 0); // 100 mm behind the chord of 200
    EXPECT_EQ(Told(Measure()), std::string(kHead) + "<FrmPrint 233> : 15.2 mm\n" +
                                   "<FrmPrint 234> : 12.9 mm\n" + kHelp +
                                   "BEFORE : 26 mm <FrmPrint 236>\n"
                                   "AFTER : 100 mm <FrmPrint 236>\n");
}

TEST_F(HorsFeuilleTest, TiledSheetsEndWhereTheLastOneEnds) {
    world.rib.corde = 500;
    Page().PasPage = 252;
    Page().NbPages = 2;
    Line(0, 0, 539, 0); // 10 - 0.18 + 539 < 252 + 297
    EXPECT_TRUE(Measure().tout.Aucun());
    Line(0, 0, 545, 0);
    EXPECT_NEAR(Measure().tout.droite, 545 + 9.82 - 549, 0.01);
}

TEST_F(HorsFeuilleTest, OfATextThatLeavesTheSheetAloneItIsSaid) {
    world.rib.texte.InsTexte = "Left wing";
    Line(0, -20, 200, 20);
    Text(-20, 0, "Left wing");
    EXPECT_EQ(Told(Measure()),
              std::string(kHead) + "<FrmPrint 233> : 10.2 mm\n" + kHelp + "<FrmPrint 239>\n");
    // Another text is part of the drawing, whose margin helps.
    steps.clear();
    Text(-20, 0, "12");
    EXPECT_THAT(Told(Measure()), testing::HasSubstr("BEFORE : 21 mm"));
}

TEST_F(HorsFeuilleTest, InInchesItIsToldInSixteenths) {
    Line(0, -2.3 * 25.4, 200, 20);
    // 2.3 in is between 2 4/16 and 2 5/16; 210 - 20 = 190 mm, 7.48 in, is above 7 7/16.
    EXPECT_EQ(Told(Measure(), " in"), std::string(kHead) + "<FrmPrint 231> : 0.331 in\n" + kHelp +
                                          "LINE : 2.5/16 in <FrmPrint 237> 7.7/16 in\n");
}

TEST_F(HorsFeuilleTest, APlotThatFailsHasReportedIt) {
    Impression run = world.Run();
    run.plot_routine = [](PlotDevice &) { return false; };
    EXPECT_FALSE(MesureHorsFeuille(run, Papiers().front()));
}

TEST_F(HorsFeuilleTest, ATallRibIsMeasuredAsItIsDrawn) {
    TakeAirfoil(world, Naca(2412, 30));
    world.rib.corde = 270;
    Page().Ydprint = 5;
    // The top of a 2412 is at 7.9 % of the chord, 21 mm above the line.
    const double top = 270 * world.rib.ExtradosMaxi;
    ASSERT_GT(top, 20);
    const auto hors = MesureHorsFeuille(world.Run(), Papiers().front());
    ASSERT_TRUE(hors);
    EXPECT_NEAR(hors->tout.haut, top - 5, 0.1);
    EXPECT_EQ(hors->tout.bas, 0);
    EXPECT_EQ(hors->tout.gauche, 0);
}

} // namespace
} // namespace loftwing
