// The offsets of the sheeting's inner lines, and the plot state from which they are known.

#include "output/sheeting.h"

#include "output/rib_plot_fixture.h"

namespace loftwing {
namespace {

/// Heights that rise by 0.01 from station 0 to 1 and fall by as much to station 2.
TableStation Roof() {
    TableStation heights{};
    heights[1] = 0.01;
    return heights;
}

// atan(0.01) is 0.572938697683486 degrees; its sine and cosine are taken as if it were radians.
constexpr double kAngle = 0.5729386976834859;
constexpr double kSine = 0.5421038075039639;
constexpr double kCosine = 0.8403115266909679;

TEST(Sheeting, OffsetsTakeDegreesForRadiansAndLeanAwayFromTheSlope) {
    const DecalageStation rising = Decale(Roof(), 1, 0.5F);
    EXPECT_NEAR(rising.Angle, -kAngle, 1e-15);
    EXPECT_NEAR(rising.DecalX, kSine / 2, 1e-15);
    EXPECT_NEAR(rising.DecalY, kCosine / 2, 1e-15);
    const DecalageStation falling = Decale(Roof(), 2, 0.5F);
    EXPECT_NEAR(falling.Angle, kAngle, 1e-15);
    EXPECT_NEAR(falling.DecalX, kSine / 2, 1e-15);
    EXPECT_NEAR(falling.DecalY, kCosine / 2, 1e-15);
    const DecalageStation level = Decale(Roof(), 3, 0.5F);
    EXPECT_EQ(level.DecalX, 0.0);
    EXPECT_EQ(level.DecalY, 0.5);
}

TEST(Sheeting, OffsetsNeedAStationBehindTheirOwn) {
    EXPECT_THROW(Decale(Roof(), 0, 0.5F), Failure);
    EXPECT_THROW(Decale(Roof(), kLastStation + 1, 0.5F), Failure);
}

class Primed : public RibPlot {
  protected:
    Primed() {
        world.rib.EpCoffrage = 2; // 0.02 of the chord
        world.rib.TabExtrados = Roof();
        world.rib.TabIntrados = Roof();
    }
};

TEST_F(Primed, AStateKnowsTheOffsetsOfAllStationsButTheTrailingEdge) {
    const PlotState primed = EtatAmorce(world.rib);
    for (const DecalageCoffrage *surface : {&primed.extra, &primed.intra}) {
        EXPECT_EQ(surface->DecalX[0], 0.0);
        EXPECT_EQ(surface->DecalY[0], 0.0);
        EXPECT_NEAR(surface->DecalX[1], 0.02 * kSine, 1e-9);
        EXPECT_NEAR(surface->DecalY[2], 0.02 * kCosine, 1e-9);
        EXPECT_NEAR(surface->DecalY[kLastStation], 0.02, 1e-9);
    }
}

TEST_F(Primed, AStateIsFreshApartFromTheOffsets) {
    const PlotState primed = EtatAmorce(world.rib);
    EXPECT_EQ(primed.DemiBF, 0.0);
    EXPECT_EQ(primed.CordeEchelle, 0.0F);
    EXPECT_EQ(primed.StationBA, 0.0F);
    EXPECT_EQ(primed.IdxFinCoffr, 0);
    EXPECT_EQ(primed.BlocEp, 0.0);
}

TEST_F(Primed, TheOffsetsAreThoseThatAPlotWithoutStockLeaves) {
    world.rib.EpBA = 0;
    world.rib.EpBF = 0;
    ASSERT_TRUE(Plot());
    const PlotState primed = EtatAmorce(world.rib);
    EXPECT_EQ(primed.extra.DecalX, world.plot.extra.DecalX);
    EXPECT_EQ(primed.extra.DecalY, world.plot.extra.DecalY);
    EXPECT_EQ(primed.intra.DecalX, world.plot.intra.DecalX);
    EXPECT_EQ(primed.intra.DecalY, world.plot.intra.DecalY);
}

/// With flat surfaces 5 mm above the reference line and 2 mm of sheeting the inner face lies at
/// 3 mm; a fresh state begins the line on the contour.
TEST_F(Primed, TheFirstSegmentBetweenStocksBeginsOnTheInnerFace) {
    FlatSurfaces(world.rib, 0.05, -0.05);
    world.rib.EpBF = 25; // station 100
    const auto first_height = [this](const PlotState &before) {
        world.plot = before;
        world.Place();
        Recording fresh;
        EXPECT_TRUE(PrintSubroutine(world.On(fresh), 1.0));
        const naive::Drawn first = Drawn(fresh).at(2); // behind the two edge lines
        return (1000.0 - first.y1) / kUnitsPerMm;
    };
    EXPECT_NEAR(first_height(PlotState{}), 5.0, 1e-4);
    EXPECT_NEAR(first_height(EtatAmorce(world.rib)), 3.0, 1e-4);
}

TEST_F(Primed, ARibWithoutAChordLeavesTheStateFresh) {
    world.rib.corde = 0;
    EXPECT_EQ(EtatAmorce(world.rib).extra.DecalY[1], 0.0);
}

} // namespace
} // namespace loftwing
