// Spars, holes, heel, template, V-notch and text of the rib plot, worked out by hand.

#include "output/rib_plot_fixture.h"

#include <algorithm>

namespace loftwing {
namespace {

constexpr unsigned kPink = 0xFF00FF;   // spars
constexpr unsigned kPurple = 0x800080; // holes
constexpr unsigned kNavy = 0x000080;   // template and heel
constexpr int kDashDot = 3;            // axes

/// 1 mm is 56.7 units; place 0 lies at x 283.5; surfaces at y 716.5 and 1283.5.
class PlotFeatures : public RibPlot {
  protected:
    static Longeron Spar(const char *place, float width, float depth, int kind) {
        Longeron spar;
        spar.PosLongAfich = place;
        spar.LargLong = width;
        spar.HautLong = depth;
        spar.TypeLong = static_cast<std::uint8_t>(kind);
        return spar;
    }
    static Longeron Above(Longeron spar, int option = 2) {
        spar.OptLongExt = static_cast<std::uint8_t>(option);
        return spar;
    }
    static Longeron Below(Longeron spar, int option = 2) {
        spar.OptLongInt = static_cast<std::uint8_t>(option);
        return spar;
    }
    static Trou Hole(const char *place, float width, float height, int kind) {
        Trou hole;
        hole.PosTrouAfich = place;
        hole.DiaTrou = width;
        hole.HautTrou = height;
        hole.TypeTrou = static_cast<std::uint8_t>(kind);
        return hole;
    }
    /// The rib's surfaces at the stations of 45 and 55 mm.
    void Slope() {
        world.rib.TabExtrados[220] = 0.06;
        world.rib.TabExtrados[180] = 0.05;
        world.rib.TabIntrados[220] = -0.06;
        world.rib.TabIntrados[180] = -0.05;
    }
    /// The last `count` things drawn.
    std::vector<naive::Drawn> PlotLast(std::size_t count) {
        EXPECT_TRUE(Plot());
        std::vector<naive::Drawn> drawn = Drawn(device);
        EXPECT_GE(drawn.size(), count);
        drawn.erase(drawn.begin(),
                    drawn.end() - static_cast<std::ptrdiff_t>(std::min(count, drawn.size())));
        return drawn;
    }
    /// What a spar in the middle of the flat rib draws before its shapes.
    static naive::Drawn Axis(double from = 716.5, double to = 1283.5) {
        return LineOf(3118.5, from, 3118.5, to, kBrightRed, kDashDot);
    }
};

TEST_F(PlotFeatures, SquareSparStandsOnTheContour) {
    world.rib.longeron[0] = Above(Spar("50", 10, 5, 1));
    ExpectDrawn(PlotBehindEdges(),
                {Axis(), LineOf(2835, 716.5, 3402, 716.5, kPink),
                 LineOf(3402, 716.5, 3402, 1000, kPink), LineOf(3402, 1000, 2835, 1000, kPink),
                 LineOf(2835, 1000, 2835, 716.5, kPink)});
}

TEST_F(PlotFeatures, SquareSparBelowReachesUp) {
    world.rib.longeron[0] = Below(Spar("50", 10, 5, 1));
    ExpectDrawn(PlotBehindEdges(),
                {Axis(), LineOf(2835, 1283.5, 3402, 1283.5, kPink),
                 LineOf(3402, 1283.5, 3402, 1000, kPink), LineOf(3402, 1000, 2835, 1000, kPink),
                 LineOf(2835, 1000, 2835, 1283.5, kPink)});
}

TEST_F(PlotFeatures, SparUpsideDownReachesUpFromTheUpperSurface) {
    world.rib.AffHaut = true;
    world.rib.longeron[0] = Above(Spar("50", 10, 5, 1));
    ExpectDrawn(PlotBehindEdges(),
                {Axis(1283.5, 716.5), LineOf(2835, 1283.5, 3402, 1283.5, kPink),
                 LineOf(3402, 1283.5, 3402, 1000, kPink), LineOf(3402, 1000, 2835, 1000, kPink),
                 LineOf(2835, 1000, 2835, 1283.5, kPink)});
}

TEST_F(PlotFeatures, NotchFromTheSheetingStartsAtItsInnerFace) {
    world.rib.EpCoffrage = 2; // 113.4 units
    world.rib.longeron[0] = Below(Above(Spar("50", 10, 3, 1), 1), 1);
    const std::vector<naive::Drawn> drawn = PlotLast(8);
    ExpectDrawn({drawn[0]}, {LineOf(2835, 829.9, 3402, 829.9, kPink)});
    ExpectDrawn({drawn[4]}, {LineOf(2835, 1170.1, 3402, 1170.1, kPink)});
    EXPECT_EQ(world.plot.DecalCoffr, 0.02F);
}

TEST_F(PlotFeatures, DistanceCountsFromTheSurfaceInward) {
    for (const int kind : {1, 3}) {
        world.rib.longeron[0] = Below(Above(Spar("50", 10, 3, kind)));
        world.rib.longeron[0].DistLong = 1;
        device.Clear();
        world.Place();
        const std::vector<naive::Drawn> drawn = PlotLast(8);
        ExpectDrawn({drawn[0], drawn[1]}, {LineOf(2835, 773.2, 3402, 773.2, kPink),
                                           LineOf(3402, 773.2, 3402, 943.3, kPink)});
        ExpectDrawn({drawn[4], drawn[5]}, {LineOf(2835, 1226.8, 3402, 1226.8, kPink),
                                           LineOf(3402, 1226.8, 3402, 1056.7, kPink)});
    }
}

TEST_F(PlotFeatures, RoundSparLiesItsDistanceUnderTheSurface) {
    world.rib.longeron[0] = Below(Above(Spar("50", 4, 0, 2)));
    world.rib.longeron[0].DistLong = 3;
    // The axis of the circle wears the style of the spars.
    ExpectDrawn(PlotBehindEdges(), {Axis(), LineOf(3005.1, 886.6, 3231.9, 886.6, kBrightRed),
                                    CircleOf(3118.5, 886.6, 113.4, kPink),
                                    LineOf(3005.1, 1113.4, 3231.9, 1113.4, kBrightRed),
                                    CircleOf(3118.5, 1113.4, 113.4, kPink)});
}

TEST_F(PlotFeatures, AxisOfARoundSparBelowMissesTheCentreWhenItHasADepth) {
    world.rib.longeron[0] = Below(Spar("50", 4, 2, 2));
    world.rib.longeron[0].DistLong = 3;
    std::vector<naive::Drawn> drawn = PlotBehindEdges();
    ExpectDrawn({drawn[1], drawn[2]}, {LineOf(3005.1, 1226.8, 3231.9, 1226.8, kBrightRed),
                                       CircleOf(3118.5, 1000, 113.4, kPink)});
    device.Clear();
    world.Place();
    world.rib.AffHaut = true;
    drawn = PlotBehindEdges();
    ExpectDrawn({drawn[1], drawn[2]}, {LineOf(3005.1, 1000, 3231.9, 773.2, kBrightRed),
                                       CircleOf(3118.5, 1000, 113.4, kPink)});
}

TEST_F(PlotFeatures, SparAlongTheSurfaceTiltsItsSides) {
    Slope();
    world.rib.longeron[0] = Below(Above(Spar("50", 10, 5, 0)));
    ExpectDrawn(
        PlotBehindEdges(),
        {Axis(), LineOf(2835, 659.8, 3402, 716.5, kPink), LineOf(3402, 716.5, 3373.65, 1000, kPink),
         LineOf(3373.65, 1000, 2806.65, 943.3, kPink), LineOf(2806.65, 943.3, 2835, 659.8, kPink),
         LineOf(2835, 1340.2, 3402, 1283.5, kPink), LineOf(3402, 1283.5, 3373.65, 1000, kPink),
         LineOf(3373.65, 1000, 2806.65, 1056.7, kPink),
         LineOf(2806.65, 1056.7, 2835, 1340.2, kPink)});
}

TEST_F(PlotFeatures, SparWithBothOptionsOffDrawsOnlyItsAxis) {
    world.rib.longeron[0] = Spar("50", 10, 5, 1);
    ExpectDrawn(PlotBehindEdges(), {Axis()});
}

TEST_F(PlotFeatures, SparKindsAndOptionsOutOfRangeDrawNoShape) {
    world.rib.NbLongeron = 2;
    world.rib.longeron[0] = Below(Above(Spar("50", 10, 5, 4)));
    world.rib.longeron[1] = Below(Above(Spar("50", 10, 5, 1), 3), 255);
    ExpectDrawn(PlotBehindEdges(), {Axis(), Axis()});
}

TEST_F(PlotFeatures, SparAtPlaceZeroEndsTheDrawingOfAllLaterOnes) {
    world.rib.NbLongeron = 3;
    world.rib.longeron[0] = Spar("50", 10, 5, 1);
    world.rib.longeron[1] = Above(Spar("0", 10, 5, 1));
    world.rib.longeron[2] = Above(Spar("60", 10, 5, 1));
    ExpectDrawn(PlotBehindEdges(), {Axis()});
}

TEST_F(PlotFeatures, SlotBeingEditedIsDrawnToo) {
    world.rib.NbLongeron = 1;
    world.rib.longeron[0] = Spar("50", 10, 5, 1);
    world.rib.longeron[1] = Spar("50", 10, 5, 1);
    world.rib.longeron[2] = Spar("50", 10, 5, 1); // behind it
    ExpectDrawn(PlotBehindEdges(), {Axis(), Axis()});
}

TEST_F(PlotFeatures, PlaceInPercentFollowsTheChord) {
    world.rib.longeron[0] = Spar("50%", 0, 5, 1);
    EXPECT_TRUE(Plot());
    EXPECT_EQ(world.rib.longeron[0].PosLong, 50.0F);
    world.rib.corde = 300;
    world.Place();
    device.Clear();
    ExpectDrawn(PlotBehindEdges(), {LineOf(8788.5, 149.5, 8788.5, 1850.5, kBrightRed, kDashDot)});
    EXPECT_EQ(world.rib.longeron[0].PosLong, 150.0F);
    EXPECT_EQ(world.plot.longerons[0].kc, 200.0F);
}

TEST_F(PlotFeatures, PlaceFromTheTrailingEdgeIsTakenFromTheChord) {
    world.rib.longeron[0] = Spar("20", 10, 5, 1);
    world.rib.longeron[0].RefLong = 1;
    EXPECT_TRUE(Plot());
    EXPECT_EQ(world.rib.longeron[0].PosLong, 80.0F);
    EXPECT_EQ(world.plot.longerons[0].kf, 100.0F); // 75 mm
    EXPECT_EQ(world.plot.longerons[0].kr, 60.0F);  // 85 mm
    EXPECT_EQ(world.plot.longerons[0].kc, 80.0F);
}

TEST_F(PlotFeatures, HeightsOfASparAreLeftForOthers) {
    Slope();
    world.rib.longeron[0] = Spar("50", 10, 5, 1);
    EXPECT_TRUE(Plot());
    const PlaceTracee &place = world.plot.longerons[0];
    EXPECT_EQ(place.Uf, 0.06);
    EXPECT_EQ(place.Ur, 0.05);
    EXPECT_EQ(place.Uc, 0.05);
    EXPECT_EQ(place.Lf, -0.06);
    EXPECT_EQ(place.Lr, -0.05);
    EXPECT_EQ(place.Lc, -0.05);
}

TEST_F(PlotFeatures, SparBeyondTheChordIsAFailureThatNamesIt) {
    world.rib.NbLongeron = 2;
    world.rib.longeron[0] = Spar("50", 10, 5, 1);
    world.rib.longeron[1] = Spar("3", 10, 5, 1); // its front edge lies before the leading edge
    ExpectFailure(9, "Subscript out of range: <FrmLines 8> 2");
    EXPECT_EQ(Drawn(device).size(), 3U);
}

TEST_F(PlotFeatures, PlaceBehindTheTrailingEdgeIsAFailureThatNamesIt) {
    world.rib.longeron[0] = Spar("101", 1, 5, 1); // its station would be 4, as that of 99 mm
    ExpectFailure(9, "Subscript out of range: <FrmLines 8> 1");
}

TEST_F(PlotFeatures, HoleBehindTheTrailingEdgeIsAFailureThatNamesIt) {
    world.rib.NbTrou = 1;
    world.rib.trou[0] = Hole("100", 8, 0, 0);
    world.rib.trou[1] = Hole("101%", 8, 0, 0);
    ExpectFailure(9, "Subscript out of range: <FrmLines 11> 2");
}

TEST_F(PlotFeatures, SparAlongTheSurfaceWithoutWidthIsADivisionByZero) {
    world.rib.longeron[0] = Above(Spar("50", 0, 5, 0));
    ExpectFailure(11, "Division by zero: <FrmLines 8> 1");
}

TEST_F(PlotFeatures, MoreSparsThanSlotsAreAFailure) {
    world.rib.longeron.fill(Spar("50", 1, 1, 1));
    world.rib.NbLongeron = 13;
    ExpectFailure(9, "Subscript out of range: <FrmLines 8> 14");
    EXPECT_EQ(Drawn(device).size(), 2U + 13U);
}

TEST_F(PlotFeatures, RoundHoleLiesOnTheReferenceLineShiftedByItsDistance) {
    world.rib.trou[0] = Hole("30", 8, 0, 0);
    world.rib.trou[0].DecalTrou = 2;
    ExpectDrawn(PlotBehindEdges(), {CircleOf(1984.5, 886.6, 226.8, kPurple),
                                    LineOf(1757.7, 886.6, 2211.3, 886.6, kBrightRed, kDashDot),
                                    LineOf(1984.5, 659.8, 1984.5, 1113.4, kBrightRed, kDashDot)});
}

TEST_F(PlotFeatures, NegativeDistanceOfAHoleGoesBelowTheReferenceLine) {
    world.rib.trou[0] = Hole("30", 8, 0, 0);
    world.rib.trou[0].DecalTrou = -2;
    EXPECT_NEAR(PlotBehindEdges()[0].y1, 1113.4, 1e-4);
    device.Clear();
    world.Place();
    world.rib.AffHaut = true;
    EXPECT_NEAR(PlotBehindEdges()[0].y1, 886.6, 1e-4);
}

TEST_F(PlotFeatures, TickedHoleLiesMidwayBetweenTheSurfaces) {
    world.rib.TabExtrados[280] = 0.06; // 30 mm
    world.rib.TabIntrados[280] = -0.02;
    world.rib.trou[0] = Hole("30", 8, 0, 0);
    world.rib.trou[0].ChkCentre = 1;
    EXPECT_NEAR(PlotBehindEdges()[0].y1, 886.6, 1e-4); // 0.02 of the chord up
    device.Clear();
    world.Place();
    world.rib.trou[0].ChkCentre = 0.5F; // only exactly 1 is ticked
    EXPECT_NEAR(PlotBehindEdges()[0].y1, 1000, 1e-4);
}

TEST_F(PlotFeatures, RectangularHoleStartsAndEndsAtTheMiddleOfItsFront) {
    world.rib.trou[0] = Hole("30", 8, 3, 1);
    ExpectDrawn(PlotBehindEdges(), {LineOf(1757.7, 1000, 1757.7, 914.95, kPurple),
                                    LineOf(1757.7, 914.95, 2211.3, 914.95, kPurple),
                                    LineOf(2211.3, 914.95, 2211.3, 1085.05, kPurple),
                                    LineOf(2211.3, 1085.05, 1757.7, 1085.05, kPurple),
                                    LineOf(1757.7, 1085.05, 1757.7, 1000, kPurple),
                                    LineOf(1757.7, 1000, 2211.3, 1000, kBrightRed, kDashDot),
                                    LineOf(1984.5, 886.6, 1984.5, 1113.4, kBrightRed, kDashDot)});
}

TEST_F(PlotFeatures, RectangularHoleUpsideDownRunsTheOtherWayRound) {
    world.rib.AffHaut = true;
    world.rib.trou[0] = Hole("30", 8, 3, 1);
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    ExpectDrawn({drawn[0], drawn[6]},
                {LineOf(1757.7, 1000, 1757.7, 1085.05, kPurple),
                 LineOf(1984.5, 886.6, 1984.5, 1113.4, kBrightRed, kDashDot)});
}

TEST_F(PlotFeatures, AxesOfAHoleAreThinWhateverItsOwnWidth) {
    world.settings.TraitDe(Element::trou).epaisseur = 3;
    world.rib.trou[0] = Hole("30", 8, 0, 0);
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    EXPECT_EQ(drawn[0].width, 3);
    EXPECT_EQ(drawn[1].width, 1);
}

TEST_F(PlotFeatures, HoleAtPlaceZeroDoesNotEndTheDrawingOfLaterOnes) {
    world.rib.NbTrou = 2;
    world.rib.trou[0] = Hole("0", 2, 0, 0);
    world.rib.trou[1] = Hole("30", 8, 0, 0);
    world.rib.trou[2] = Hole("", 0, 0, 0); // being edited: drawn with its zero sizes
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    ASSERT_EQ(drawn.size(), 9U);
    ExpectDrawn({drawn[0], drawn[3], drawn[6], drawn[7]},
                {CircleOf(283.5, 1000, 56.7, kPurple), CircleOf(1984.5, 1000, 226.8, kPurple),
                 CircleOf(283.5, 1000, 0, kPurple),
                 LineOf(283.5, 1000, 283.5, 1000, kBrightRed, kDashDot)});
}

TEST_F(PlotFeatures, HoleThatPokesOutOfTheRibIsDrawn) {
    world.rib.NbTrou = 2;
    world.rib.trou[0] = Hole("1", 8, 0, 0);  // 3 mm before the leading edge, station 412
    world.rib.trou[1] = Hole("99", 8, 0, 0); // and behind the trailing edge
    world.rib.trou[2] = Hole("30", 0, 0, 2);
    const std::vector<naive::Drawn> drawn = PlotBehindEdges();
    ASSERT_EQ(drawn.size(), 6U);
    ExpectDrawn({drawn[0], drawn[1]}, {CircleOf(340.2, 1000, 226.8, kPurple),
                                       LineOf(113.4, 1000, 567, 1000, kBrightRed, kDashDot)});
    // Stations have no sign, so the rear edge falls back into the rib: 3 mm before its end.
    ExpectDrawn({drawn[3], drawn[4]}, {CircleOf(5896.8, 1000, 226.8, kPurple),
                                       LineOf(5670, 1000, 5783.4, 1000, kBrightRed, kDashDot)});
}

TEST_F(PlotFeatures, HoleWhoseCentreIsOutsideIsAFailureThatNamesIt) {
    world.rib.NbTrou = 1;
    world.rib.trou[0] = Hole("30", 8, 0, 0);
    world.rib.trou[1] = Hole("101", 8, 0, 0);
    world.rib.trou[1].RefTrou = 1; // 1 mm before the leading edge
    ExpectFailure(9, "Subscript out of range: <FrmLines 11> 2");
}

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
