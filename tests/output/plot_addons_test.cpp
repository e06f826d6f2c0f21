// Heel, template, V-notch, station lines and text of the rib plot, worked out by hand.

#include "output/plot_features_fixture.h"

namespace loftwing {
namespace {

TEST_F(PlotFeatures, HeelStandsOnALevelLine) {
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.talon.TalonIntra = 10;
    world.rib.talon.TalonBF = 20;
    world.rib.talon.TalonLong = 30;
    EXPECT_TRUE(Plot());
    std::vector<naive::Drawn> drawn = Drawn(device);
    drawn.resize(3);
    ExpectDrawn(drawn, {LineOf(283.5, 1567, 5953.5, 1567, kBrightRed),
                        LineOf(4819.5, 1567, 4819.5, 1283.5, kNavy),
                        LineOf(4252.5, 1567, 4252.5, 1283.5, kNavy)});
}

TEST_F(PlotFeatures, HeelAboveStandsOnTheUpperSurface) {
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.EpCoffrage = 2; // its lines reach to the inner face
    world.rib.talon.OptTalon = 1;
    world.rib.talon.TalonExtra = -12;
    world.rib.talon.TalonBF = 20;
    world.rib.talon.TalonLong = 30;
    EXPECT_TRUE(Plot());
    std::vector<naive::Drawn> drawn = Drawn(device);
    drawn.resize(3);
    ExpectDrawn(drawn, {LineOf(283.5, 319.6, 5953.5, 319.6, kBrightRed),
                        LineOf(4819.5, 319.6, 4819.5, 829.9, kNavy),
                        LineOf(4252.5, 319.6, 4252.5, 829.9, kNavy)});
}

TEST_F(PlotFeatures, WashoutTurnsTheHeel) {
    // Sine 0.5, cosine 0.8660254, its square 0.75, both 0.4330127, tangent 0.5773503.
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.vrillage = 30;
    world.rib.talon.TalonIntra = 10;
    world.rib.talon.TalonBF = 20;
    world.rib.talon.TalonLong = 30;
    EXPECT_TRUE(Plot());
    std::vector<naive::Drawn> drawn = Drawn(device);
    drawn.resize(3);
    const auto near = [](const naive::Drawn &line, double x1, double y1, double x2, double y2) {
        EXPECT_NEAR(line.x1, x1, 2e-3);
        EXPECT_NEAR(line.y1, y1, 2e-3);
        EXPECT_NEAR(line.x2, x2, 2e-3);
        EXPECT_NEAR(line.y2, y2, 2e-3);
    };
    near(drawn[0], 567, 1491.0364, 4819.5, -964.1456);
    near(drawn[1], 3969, -473.1092, 4819.5, 1283.5);
    // 74.910364 mm: 70 and 0.05 times 170.1 times the tangent.
    near(drawn[2], 3543.75, -227.5910, 4530.9176, 1283.5);
}

TEST_F(PlotFeatures, HeelWithAMarginBeyondTheChordIsAFailureThatNamesIt) {
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.talon.TalonLong = 101;
    ExpectFailure(9, "Subscript out of range: <FrmLines 24>");
}

/// A template of 150 mm around the rib, whose tail comes from station 120.
class PlotTemplate : public PlotFeatures {
  protected:
    PlotTemplate() {
        world.rib.TypeGabarit = kGabaritMousse;
        world.rib.bloc.BAbloc = 20;
        world.rib.bloc.BFbloc = 30;
        world.rib.bloc.HTbasbloc = 15;
        world.rib.bloc.HTbloc = 40;
        world.rib.TabExtrados[120] = 0.02; // 113.4 units
    }
    std::vector<naive::Drawn> PlotFirst(std::size_t count) {
        EXPECT_TRUE(Plot());
        std::vector<naive::Drawn> drawn = Drawn(device);
        EXPECT_GE(drawn.size(), count);
        drawn.resize(count);
        return drawn;
    }
};

TEST_F(PlotTemplate, SurroundsTheRib) {
    ExpectDrawn(PlotFirst(10), {LineOf(283.5, 1000, 1417.5, 1000, kNavy),
                                LineOf(283.5, 1000, 283.5, 1850.5, kNavy),
                                LineOf(283.5, 1000, 283.5, -417.5, kNavy),
                                LineOf(283.5, -417.5, 8788.5, -417.5, kNavy),
                                LineOf(8788.5, -417.5, 8788.5, 1113.4, kNavy),
                                LineOf(283.5, 1850.5, 8788.5, 1850.5, kNavy),
                                LineOf(8788.5, 1850.5, 8788.5, 1113.4, kNavy),
                                // The middle of the trailing edge lies 0.01 of the chord down.
                                LineOf(8788.5, 1113.4, 7087.5, 1056.7, kNavy),
                                // The rib itself stands behind the ramp.
                                LineOf(1417.5, 716.5, 1417.5, 1283.5, kBrightBlue),
                                LineOf(7087.5, 1000, 7087.5, 1000, kBrightBlue)});
    EXPECT_EQ(world.plot.OrigineX, 1417.5F);
    EXPECT_EQ(world.plot.BlocHaut, 25.0);
    EXPECT_EQ(world.plot.BlocLong, 150.0);
}

TEST_F(PlotTemplate, UpsideDownItsClosingLinesDoNotMeet) {
    world.rib.AffHaut = true;
    const std::vector<naive::Drawn> drawn = PlotFirst(8);
    ExpectDrawn({drawn[1], drawn[2], drawn[4], drawn[6], drawn[7]},
                {LineOf(283.5, 1000, 283.5, 149.5, kNavy),
                 LineOf(283.5, 1000, 283.5, 2417.5, kNavy),
                 LineOf(8788.5, 2417.5, 8788.5, 1113.4, kNavy),
                 LineOf(8788.5, 149.5, 8788.5, 1113.4, kNavy),
                 LineOf(8788.5, 886.6, 7087.5, 943.3, kNavy)});
}

TEST_F(PlotTemplate, TailMayComeFromTheLowerSurface) {
    world.rib.bloc.Optquebf = 1;
    EXPECT_NEAR(PlotFirst(5)[4].y2, 716.5, 1e-3);
    // Any other choice keeps the tail of the plot before.
    world.rib.bloc.Optquebf = 7;
    device.Clear();
    world.Place();
    EXPECT_NEAR(PlotFirst(5)[4].y2, 716.5, 1e-3);
}

TEST_F(PlotTemplate, CuttingAllowanceMovesTheTrailingEdgeByWhatExceedsTheSheeting) {
    world.rib.bloc.CoupeBF = 3;
    EXPECT_NEAR(PlotFirst(8)[7].y2, 1226.8, 1e-3); // 170.1 down
    world.rib.EpCoffrage = 1;
    device.Clear();
    world.Place();
    EXPECT_NEAR(PlotFirst(8)[7].y2, 1170.1, 1e-3);
    world.rib.EpCoffrage = 3;
    device.Clear();
    world.Place();
    EXPECT_NEAR(PlotFirst(8)[7].y2, 1056.7, 1e-3);
    EXPECT_EQ(world.plot.CoupeRel, 0.03F);
}

TEST_F(PlotTemplate, NegativeWashoutMovesTheDrawingToTheRight) {
    world.rib.vrillage = -30; // leans out by half of 15 mm: 425.25 units
    const naive::Drawn ramp = PlotFirst(1)[0];
    EXPECT_NEAR(ramp.x1, 708.75, 1e-3);
    world.rib.vrillage = 30;
    device.Clear();
    world.Place();
    EXPECT_NEAR(PlotFirst(1)[0].x1, 283.5, 1e-3);
}

TEST_F(PlotTemplate, WashoutTurnsTheOutline) {
    world.rib.vrillage = 30;
    const std::vector<naive::Drawn> drawn = PlotFirst(8);
    // A = (7.5, 12.990381) mm, B = (-12.5, -21.650635) mm, D = (112.5, -64.951905) mm.
    EXPECT_NEAR(drawn[1].x2, 708.75, 2e-3);
    EXPECT_NEAR(drawn[1].y2, 1736.5546, 2e-3);
    EXPECT_NEAR(drawn[2].x2, -425.25, 2e-3);
    EXPECT_NEAR(drawn[2].y2, -227.5910, 2e-3);
    EXPECT_NEAR(drawn[3].x2, 5953.5, 2e-3);
    EXPECT_NEAR(drawn[3].y2, -3910.3640, 2e-3);
    EXPECT_NEAR(drawn[5].x2, 7087.5, 2e-3);
    EXPECT_NEAR(drawn[5].y2, -1946.2184, 2e-3);
}

TEST_F(PlotTemplate, StationLinesRunToItsBottom) {
    world.rib.NbRep = 1;
    // The numbers stand 20 units beside the foot, 3.5 mm above the bottom.
    ExpectDrawn(PlotLast(6), {LineOf(1417.5, 716.5, 1417.5, 1850.5, kBrightRed),
                              TextOf(1437.5, 1652.05, "0", 7.2, kBrightRed),
                              LineOf(4252.5, 716.5, 4252.5, 1850.5, kBrightRed),
                              TextOf(4272.5, 1652.05, "1", 7.2, kBrightRed),
                              LineOf(7087.5, 1000, 7087.5, 1850.5, kBrightRed),
                              TextOf(7107.5, 1652.05, "2", 7.2, kBrightRed)});
}

TEST_F(PlotTemplate, StationLinesUpsideDownRunToItsTop) {
    world.rib.NbRep = 1;
    world.rib.AffHaut = true;
    const std::vector<naive::Drawn> drawn = PlotLast(6);
    ExpectDrawn({drawn[0], drawn[1]}, {LineOf(1417.5, 1283.5, 1417.5, 149.5, kBrightRed),
                                       TextOf(1437.5, 206.2, "0", 7.2, kBrightRed)});
}

TEST_F(PlotTemplate, RampBeyondTheChordIsAFailureThatNamesIt) {
    world.rib.bloc.BFbloc = 101;
    ExpectFailure(9, "Subscript out of range: <FrmLines 13>");
}

TEST_F(PlotFeatures, ThreeStationsAreFiveLinesFromTheLeadingToTheTrailingEdge) {
    EXPECT_TRUE(PlotBehindEdges().empty()); // none without stations
    world.rib.NbRep = 3;
    device.Clear();
    world.Place();
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    ASSERT_EQ(drawn.size(), 10U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_NEAR(drawn[2 * i].x1, 283.5 + 1417.5 * static_cast<double>(i), 1e-3);
        EXPECT_EQ(drawn[2 * i + 1].words, std::to_string(i));
    }
}

TEST_F(PlotFeatures, SquareInAVNotchIsADiamondAroundItsAxis) {
    world.rib.TypeBA = 0;
    world.rib.carre.CarreBA = 14.14F;
    world.rib.carre.CarreBAX = 6;
    world.rib.carre.CarreBAY = 2;
    EXPECT_TRUE(Plot());
    std::vector<naive::Drawn> drawn = Drawn(device);
    drawn.resize(4);
    ExpectDrawn(drawn, {LineOf(623.7, 319.6, 1190.7, 886.6, kBrightBlue),
                        LineOf(1190.7, 886.6, 623.7, 1453.6, kBrightBlue),
                        LineOf(623.7, 1453.6, 56.7, 886.6, kBrightBlue),
                        LineOf(56.7, 886.6, 623.7, 319.6, kBrightBlue)});
    EXPECT_EQ(world.plot.StationBA, 400.0F);
}

TEST_F(PlotFeatures, DiamondDoesNotCloseUpsideDown) {
    world.rib.AffHaut = true;
    world.rib.TypeBA = 0;
    world.rib.carre.CarreBA = 14.14F;
    world.rib.carre.CarreBAX = 6;
    world.rib.carre.CarreBAY = 2;
    EXPECT_TRUE(Plot());
    std::vector<naive::Drawn> drawn = Drawn(device);
    drawn.resize(4);
    ExpectDrawn(drawn, {LineOf(623.7, 1680.4, 1190.7, 1113.4, kBrightBlue),
                        LineOf(1190.7, 1113.4, 623.7, 546.4, kBrightBlue),
                        LineOf(623.7, 546.4, 56.7, 1113.4, kBrightBlue),
                        LineOf(56.7, 1113.4, 623.7, 546.4, kBrightBlue)});
}

TEST_F(PlotFeatures, InsertedTextIsDrawnOnceWhateverTheRibCarries) {
    world.rib.texte.InsTexte = "e205 Chord : 100";
    world.rib.texte.InsTextX = 10;
    world.rib.texte.InsTextY = 5;
    for (const std::uint8_t kind : {kSansGabarit, kGabaritMousse, kGabaritTalon}) {
        for (const bool inverted : {false, true}) {
            world.rib.TypeGabarit = kind;
            world.rib.AffHaut = inverted;
            world.rib.bloc.BAbloc = 20;
            device.Clear();
            world.Place();
            EXPECT_TRUE(Plot());
            std::vector<naive::Drawn> texts = Drawn(device);
            std::erase_if(texts, [](const naive::Drawn &drawn) { return !drawn.text; });
            // 3 mm above its point, which lies behind the template's ramp.
            const double x = kind == kGabaritMousse ? 1984.5 : 850.5;
            ExpectDrawn(texts, {TextOf(x, 546.4, "e205 Chord : 100", 9)});
        }
    }
}

TEST_F(PlotFeatures, InsertedTextNeedsAPlaceAndWords) {
    world.rib.texte.InsTexte = "e205";
    EXPECT_TRUE(PlotBehindEdges().empty());
    world.rib.texte.InsTextY = -1; // one of both is enough
    device.Clear();
    world.Place();
    ExpectDrawn(PlotLast(1), {TextOf(283.5, 886.6, "e205", 9)});
    world.rib.texte.InsTexte.clear();
    device.Clear();
    world.Place();
    EXPECT_TRUE(PlotBehindEdges().empty());
}

} // namespace
} // namespace loftwing
