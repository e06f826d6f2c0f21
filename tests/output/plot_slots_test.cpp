// Spars and holes of the rib plot, worked out by hand.

#include "output/plot_features_fixture.h"

namespace loftwing {
namespace {

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

} // namespace
} // namespace loftwing
