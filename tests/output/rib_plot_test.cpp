#include "output/rib_plot.h"

#include "output/rib_plot_fixture.h"

namespace loftwing {
namespace {

TEST_F(RibPlot, EdgeLinesStandAtTheStocks) {
    world.rib.EpBA = 10; // station 360, 567 units behind the leading edge
    world.rib.EpBF = 20; // station 80, 1134 units in front of the trailing edge
    EXPECT_TRUE(Plot());
    ExpectDrawn(Drawn(device), {LineOf(850.5, 716.5, 850.5, 1283.5, kBrightBlue),
                                LineOf(4819.5, 716.5, 4819.5, 1283.5, kBrightBlue)});
    EXPECT_EQ(world.plot.StationBA, 360.0F);
    EXPECT_EQ(world.plot.StationBF, 80.0F);
}

TEST_F(RibPlot, EdgeLinesWithoutStocksCloseTheRib) {
    EXPECT_TRUE(Plot());
    // Station 0 has no height, so the trailing edge line has no length there.
    ExpectDrawn(Drawn(device), {LineOf(283.5, 716.5, 283.5, 1283.5, kBrightBlue),
                                LineOf(5953.5, 1000, 5953.5, 1000, kBrightBlue)});
}

TEST_F(RibPlot, EdgeLineTakesItsPlaceUnroundedAndItsHeightsRounded) {
    world.rib.EpBA = 10.15F; // station 359.4, drawn there, as high as station 359
    world.rib.TabExtrados[359] = 0.02;
    world.rib.TabExtrados[360] = 0.03;
    EXPECT_TRUE(Plot());
    const naive::Drawn line = Drawn(device).front();
    EXPECT_NEAR(line.x1, 859.005, 1e-3); // 283.5 + 10.15 * 56.7
    EXPECT_NEAR(line.y1, 1000 - 5670 * 0.02, 1e-9);
}

TEST_F(RibPlot, HalvesRoundToTheEvenStation) {
    world.rib.EpBA = 10.125F; // station 359.5
    world.rib.TabExtrados[359] = 0.02;
    world.rib.TabExtrados[360] = 0.03;
    world.rib.EpBF = 20.125F; // station 80.5
    world.rib.TabIntrados[80] = -0.02;
    world.rib.TabIntrados[81] = -0.03;
    EXPECT_TRUE(Plot());
    const std::vector<naive::Drawn> drawn = Drawn(device);
    EXPECT_NEAR(drawn[0].y1, 1000 - 5670 * 0.03, 1e-9);
    EXPECT_NEAR(drawn[1].y2, 1000 + 5670 * 0.02, 1e-9);
}

TEST_F(RibPlot, InvertedViewMirrorsTheEdges) {
    world.rib.AffHaut = true;
    world.rib.TabIntrados.fill(-0.01);
    EXPECT_TRUE(Plot());
    ExpectDrawn({Drawn(device).front()}, {LineOf(283.5, 1283.5, 283.5, 943.3, kBrightBlue)});
    EXPECT_EQ(world.plot.EchelleY, -56.7F);
    EXPECT_EQ(world.plot.CordeEchelleY, -5670.0F);
}

TEST_F(RibPlot, ContourRunsThroughThePointsInOrder) {
    world.rib.AffTrac = true;
    ExpectDrawn(PlotBehindEdges(), {LineOf(5953.5, 943.3, 3118.5, 716.5, kBlack),
                                    LineOf(3118.5, 716.5, 283.5, 1000, kBlack),
                                    LineOf(283.5, 1000, 3118.5, 1283.5, kBlack),
                                    LineOf(3118.5, 1283.5, 5953.5, 1170.1, kBlack)});
}

TEST_F(RibPlot, ReferenceLineOverhangsByOneUnit) {
    world.rib.AffLignRef = true;
    ExpectDrawn(PlotBehindEdges(), {LineOf(282.5, 1000, 5954.5, 1000, kBrightRed, 3)});
}

TEST_F(RibPlot, StationLinesIncludeBothEndsAndOvershootBelow) {
    world.rib.NbRep = 1;
    // 0.065 chords below the line are 368.55 units; station 0 has no height of its own.
    ExpectDrawn(PlotBehindEdges(), {LineOf(283.5, 716.5, 283.5, 1368.55, kBrightRed),
                                    TextOf(283.5, 1368.55, "0", 7.2, kBrightRed),
                                    LineOf(3118.5, 716.5, 3118.5, 1368.55, kBrightRed),
                                    TextOf(3118.5, 1368.55, "1", 7.2, kBrightRed),
                                    LineOf(5953.5, 1000, 5953.5, 1085.05, kBrightRed),
                                    TextOf(5953.5, 1085.05, "2", 7.2, kBrightRed)});
}

TEST_F(RibPlot, StationLinesOfTheInvertedViewOvershootALittleMore) {
    world.rib.NbRep = 1;
    world.rib.AffHaut = true;
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    // 0.075 chords are 425.25 units.
    ExpectDrawn({drawn.at(2), drawn.at(3)}, {LineOf(3118.5, 1283.5, 3118.5, 574.75, kBrightRed),
                                             TextOf(3118.5, 574.75, "1", 7.2, kBrightRed)});
}

TEST_F(RibPlot, NumbersOfStationsGrowWithTheZoom) {
    world.rib.NbRep = 255;
    world.rib.Zoom = 2;
    world.Place();
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    ASSERT_EQ(drawn.size(), 2U * 257U);
    EXPECT_EQ(drawn.back().words, "256");
    EXPECT_NEAR(drawn.back().size, 14.4, 1e-6);
    EXPECT_NEAR(drawn.back().x1, 283.5 + 2 * 5670, 0.01);
}

TEST_F(RibPlot, ThicknessTextStandsAboveTheFirstThird) {
    world.rib.AffEpr = true;
    world.rib.EpMaxi = 0.1234;
    world.rib.PosEpMaxi = 279;       // 121/400 of the chord: 30.25 mm
    world.rib.ExtradosMaxi = 0.06;   // 340.2 units
    world.rib.texte.TailleFont = 11; // points
    world.rib.Zoom = 1;
    EXPECT_TRUE(Plot());
    // 283.5 + 1890; 1000 - 340.2 - 453.6
    ExpectDrawn({Drawn(device).front()},
                {TextOf(2173.5, 206.2,
                        "<FrmMainMessage 15> :  12.34 mm <FrmMainMessage 16>  30.25 mm (30.25 %) "
                        "<FrmMainMessage 17>",
                        11)});
    EXPECT_DOUBLE_EQ(world.plot.PosEpDev, 30.25);
}

TEST_F(RibPlot, ThicknessTextInInchesHasWordsOfItsOwn) {
    world.rib.AffEpr = true;
    world.settings.Unite = " in";
    world.rib.corde = 254; // 10 in
    world.rib.EpMaxi = 0.125;
    world.rib.PosEpMaxi = 280; // 3 in
    world.Place();
    EXPECT_TRUE(Plot());
    EXPECT_EQ(Drawn(device).front().words, "Chord thickness :1.1/4 in at 3 in (30 %) from L.E. ");
}

TEST_F(RibPlot, LargeThicknessHasABlankBetweenThousands) {
    world.rib.AffEpr = true;
    world.rib.corde = 5000;
    world.rib.EpMaxi = 0.2469;
    world.rib.PosEpMaxi = -1; // never a maximum: the whole chord and a little more
    world.Place();
    EXPECT_TRUE(Plot());
    EXPECT_EQ(Drawn(device).front().words,
              "<FrmMainMessage 15> : 1 234.50 mm <FrmMainMessage 16> 5 012.50 mm (100.25 %) "
              "<FrmMainMessage 17>");
}

TEST_F(RibPlot, UntickedThicknessTextIsNotPrintedButItsPlaceIsKnown) {
    world.rib.PosEpMaxi = 200;
    EXPECT_TRUE(Plot());
    for (const naive::Drawn &drawn : Drawn(device)) {
        EXPECT_FALSE(drawn.text);
    }
    EXPECT_DOUBLE_EQ(world.plot.PosEpDev, 50);
}

TEST_F(RibPlot, TextsKeepTheirDistanceAtAnyZoom) {
    world.rib.AffEpr = world.rib.AffHautBA = world.rib.AffHautBF = true;
    world.rib.EpBA = 10;
    world.rib.EpBF = 20;
    world.rib.Zoom = 3;
    world.Place();
    EXPECT_TRUE(Plot());
    std::vector<naive::Drawn> texts;
    for (const naive::Drawn &drawn : Drawn(device)) {
        if (drawn.text) {
            texts.push_back(drawn);
        }
    }
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_NEAR(texts[0].x1, 283.5 + 5670, 1e-3);
    EXPECT_NEAR(texts[0].y1, 1000 - 453.6, 1e-9);
    EXPECT_NEAR(texts[1].x1, 283.5, 1e-9);
    EXPECT_NEAR(texts[1].y1, 1000 - 283.5, 1e-9);
    EXPECT_NEAR(texts[2].x1, 283.5 + 3 * 5670 - 850.5, 1e-3);
    EXPECT_NEAR(texts[2].y1, 1000 - 283.5, 1e-9);
    EXPECT_NEAR(texts[2].size, 27, 1e-9);
    EXPECT_EQ(texts[1].words, "<MainTolbar 15> =  10.00");
    EXPECT_EQ(texts[2].words, "<MainTolbar 21> =  10.00");
}

TEST_F(RibPlot, EdgeHeightsInInchesAreFractions) {
    world.settings.Unite = " in";
    world.rib.AffHautBA = world.rib.AffHautBF = true;
    world.rib.corde = 254;
    world.rib.EpBA = 10;
    world.rib.EpBF = 20;
    world.rib.TabExtrados[80] = 0.01;
    FlatSurfaces(world.rib, 0.0375, -0.0125); // 0.05 chords are half an inch
    world.Place();
    EXPECT_TRUE(Plot());
    EXPECT_EQ(Drawn(device).at(1).words, "<MainTolbar 15> = 1/2");
    EXPECT_EQ(Drawn(device).at(3).words, "<MainTolbar 21> = 1/2");
}

TEST_F(RibPlot, EdgeHeightsNeedAStock) {
    world.rib.AffHautBA = world.rib.AffHautBF = true;
    EXPECT_TRUE(Plot());
    EXPECT_EQ(Drawn(device).size(), 2U);
}

TEST_F(RibPlot, SheetingBetweenStocksTakesItsStartFromAnEarlierPlot) {
    world.rib.EpCoffrage = 1; // 0.01 chords, 56.7 units
    world.rib.EpBF = 50;      // station 200
    world.rib.EpBA = 49.5F;   // station 202
    const std::vector<naive::Drawn> fresh = PlotBehindEdges();
    // Nothing has been computed for station 200: the first lines start on the surfaces themselves.
    ExpectDrawn(fresh, {LineOf(3118.5, 716.5, 3104.325, 773.2, kBrightBlue),
                        LineOf(3118.5, 1283.5, 3104.325, 1226.8, kBrightBlue),
                        LineOf(3104.325, 773.2, 3090.15, 773.2, kBrightBlue),
                        LineOf(3104.325, 1226.8, 3090.15, 1226.8, kBrightBlue)});

    world.rib.EpBF = 50.25F; // station 201, whose offsets the first plot has computed
    world.Place();
    device.Clear();
    ExpectDrawn(PlotBehindEdges(), {LineOf(3104.325, 773.2, 3090.15, 773.2, kBrightBlue),
                                    LineOf(3104.325, 1226.8, 3090.15, 1226.8, kBrightBlue)});
}

TEST_F(RibPlot, SheetingLeansByTheAngleInDegreesTakenAsRadians) {
    world.rib.EpCoffrage = 1;
    world.rib.EpBF = 50;
    world.rib.EpBA = 49.75F;            // only station 201
    world.rib.TabExtrados[201] = 0.051; // 0.001 above its neighbour
    world.rib.TabIntrados[201] = -0.052;
    EXPECT_TRUE(Plot());
    // atan(0.001) is 0.0572957604 degrees; the sine of that many radians is 0.0572644189, the
    // cosine 0.9983590.
    EXPECT_NEAR(world.plot.extra.Angle[201], -0.0572957604, 1e-9);
    EXPECT_NEAR(world.plot.extra.DecalX[201], 0.000572644189, 1e-10);
    EXPECT_NEAR(world.plot.extra.DecalY[201], 0.00998359045, 1e-9);
    // 0.002 down the lower surface: atan is 0.1145914062 degrees, its sine as radians 0.1143408.
    EXPECT_NEAR(world.plot.intra.Angle[201], 0.1145914062, 1e-9);
    EXPECT_NEAR(world.plot.intra.DecalX[201], 0.0011434080, 1e-9);
    // The lower line takes its height from the upper offsets, 0.0099836 and not 0.0099344.
    const naive::Drawn lower = Drawn(device).back();
    EXPECT_NEAR(lower.y2, 1000 + 5670 * (0.052 - 0.00998359045), 1e-4);
    EXPECT_NEAR(lower.x2, 3104.325 + 5670 * 0.0011434080, 1e-4);
}

TEST_F(RibPlot, SheetingOfAFallingSurfaceLeansToTheOtherSide) {
    world.rib.EpCoffrage = 1;
    world.rib.EpBF = 50;
    world.rib.EpBA = 49.75F;
    world.rib.TabExtrados[201] = 0.049;
    EXPECT_TRUE(Plot());
    EXPECT_NEAR(world.plot.extra.Angle[201], 0.0572957604, 1e-9);
    EXPECT_NEAR(world.plot.extra.DecalX[201], 0.000572644189, 1e-10);
}

TEST_F(RibPlot, SheetingRunsOutWhereItsInnerFacesCross) {
    RibModel &rib = world.rib;
    rib.EpCoffrage = 1; // 0.01 chords
    rib.EpBA = 99;      // stations 0 to 3
    const double heights[5] = {0, 0.001, 0.004, 0.02, 0.02};
    for (std::size_t k = 0; k < 5; ++k) {
        rib.TabExtrados[k] = heights[k];
        rib.TabIntrados[k] = -heights[k];
    }
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    // Faces have crossed at 0 (both on the line), 1 and 2; from 3 to 4 there is room.
    EXPECT_EQ(world.plot.IdxFinCoffr, 3);
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_NEAR(drawn[0].x2, 5953.5 - 4 * 14.175, 1e-6); // level from 3 to 4: no lean at 4
    EXPECT_NEAR(drawn[0].y2, 1000 - 5670 * 0.01, 1e-4);
    EXPECT_NEAR(drawn[1].y2, 1000 + 5670 * 0.01, 1e-4);
    // Closed from the inner face at station 3 to the middle of the trailing edge, (0.01 - 0.03)/2.
    ExpectDrawn({drawn[2]}, {LineOf(5910.975, 943.3, 5953.5, 1056.7, kBrightBlue)});
}

TEST_F(RibPlot, StockOfTheWholeChordLeavesTheClosingLineOfTheSheeting) {
    world.rib.EpCoffrage = 1;
    world.rib.EpBA = 100;
    ExpectDrawn(PlotBehindEdges(), {LineOf(5953.5, 1056.7, 5953.5, 1056.7, kBrightBlue)});
    EXPECT_EQ(world.plot.IdxFinCoffr, 0);
}

TEST_F(RibPlot, WithoutSheetingTheOffsetsStayAsTheyWere) {
    world.plot.extra.DecalX[7] = 0.25;
    world.plot.intra.DecalY[7] = 0.125;
    EXPECT_TRUE(Plot());
    EXPECT_EQ(Drawn(device).size(), 2U);
    EXPECT_EQ(world.plot.extra.DecalX[7], 0.25);
    EXPECT_EQ(world.plot.intra.DecalY[7], 0.125);
    EXPECT_EQ(world.plot.EpRel, 0.0F);
}

TEST_F(RibPlot, MiddleOfTheTrailingEdgeFollowsItsTwoEnds) {
    struct Case {
        double first, last, middle;
    };
    // The last three tell nothing, so the value of the plot before stands.
    for (const Case &c :
         {Case{0.01, -0.03, -0.01}, Case{0.02, 0.01, 0.015}, Case{-0.02, -0.01, -0.015},
          Case{0, -0.01, 0.75}, Case{0.01, 0, 0.75}, Case{-0.01, 0.02, 0.75}}) {
        world.rib.ContourY(1) = c.first;
        world.rib.ContourY(5) = c.last;
        world.plot.DemiBF = 0.75;
        world.Place();
        EXPECT_TRUE(Plot());
        EXPECT_DOUBLE_EQ(world.plot.DemiBF, c.middle) << c.first << " " << c.last;
    }
}

TEST_F(RibPlot, ElementsWearTheirOwnColourStyleAndWidth) {
    world.rib.AffTrac = world.rib.AffLignRef = true;
    world.rib.EpCoffrage = 1;
    world.rib.EpBA = 100;
    world.rib.NbRep = 1;
    std::int16_t number = 1;
    for (Trait &trait : world.settings.traits) {
        trait = {number, static_cast<std::int16_t>(number % 4 + 1), 1};
        ++number;
    }
    world.settings.TraitDe(Element::rep).epaisseur = 3; // wide lines are solid
    world.settings.TraitDe(Element::axe).epaisseur = 2; // axes have no width of their own
    EXPECT_TRUE(Plot());
    std::string worn;
    for (const naive::Drawn &drawn : Drawn(device)) {
        worn += drawn.text ? 't' : static_cast<char>('0' + drawn.style);
        worn += static_cast<char>('0' + drawn.width);
        worn += ' ';
    }
    // Leading edge 5, trailing edge 6, contour 1 four times, sheeting 2, stations 8, axis 3.
    EXPECT_EQ(worn, "21 31 21 21 21 21 31 03 t1 03 t1 03 t1 41 ");
    const std::vector<naive::Drawn> drawn = Drawn(device);
    EXPECT_EQ(drawn[0].colour, 0x800080U);  // 5
    EXPECT_EQ(drawn[1].colour, 0x808000U);  // 6
    EXPECT_EQ(drawn[2].colour, 0x000080U);  // 1
    EXPECT_EQ(drawn[6].colour, 0x008000U);  // 2
    EXPECT_EQ(drawn[7].colour, 0x808080U);  // 8
    EXPECT_EQ(drawn[8].colour, 0x808080U);  // its number
    EXPECT_EQ(drawn[13].colour, 0x008080U); // 3
}

TEST_F(RibPlot, DeviceIsLeftThinSolidAndBlack) {
    world.rib.AffLignRef = true;
    world.rib.NbRep = 2;
    for (Trait &trait : world.settings.traits) {
        trait = {4, 2, 3};
    }
    device.ForeColor = 0x123456;
    EXPECT_TRUE(Plot());
    EXPECT_EQ(device.DrawStyle, 0);
    EXPECT_EQ(device.DrawWidth, 1);
    EXPECT_EQ(device.ForeColor, 0U);
    EXPECT_NEAR(device.Font.size, 7.2, 1e-6); // until the next plot
    EXPECT_EQ(device.Font.name, "Arial");
}

TEST_F(RibPlot, FactorIsNotRead) {
    world.rib.NbRep = 1;
    EXPECT_TRUE(Plot());
    Recording other;
    world.Place();
    EXPECT_TRUE(PrintSubroutine(world.On(other), 17.0));
    EXPECT_EQ(device.Operations(), other.Operations());
}

TEST_F(RibPlot, ColourBeyondThePaletteBreaksThePlotOff) {
    world.rib.AffTrac = true;
    world.settings.TraitDe(Element::profil).couleur = 16;
    ExpectFailure(5, "Invalid procedure call or argument: <FrmLines 5>");
    EXPECT_EQ(Drawn(device).size(), 2U); // what was drawn stays
}

TEST_F(RibPlot, NegativeLeadingEdgeStockLiesBeyondTheTables) {
    world.rib.EpBA = -1; // station 404
    ExpectFailure(9, "Subscript out of range: <FrmLines 9>");
    EXPECT_TRUE(Drawn(device).empty());
}

TEST_F(RibPlot, TrailingEdgeStockBeyondTheChordLiesBeyondTheTables) {
    world.rib.EpBF = 101; // station 404
    ExpectFailure(9, "Subscript out of range: <FrmLines 10>");
    EXPECT_EQ(Drawn(device).size(), 1U);
}

TEST_F(RibPlot, ChordOfNothingIsADivisionByZero) {
    world.rib.corde = 0;
    ExpectFailure(11, "Division by zero");
}

TEST_F(RibPlot, HeightBeyondAllNumbersIsAnOverflow) {
    world.rib.TabExtrados[400] = 1e308;
    ExpectFailure(6, "Overflow: <FrmLines 9>");
}

TEST_F(RibPlot, EmptyContourHasNoEnds) {
    world.rib.NbContour = 0;
    ExpectFailure(9, "Subscript out of range");
}

} // namespace
} // namespace loftwing
