// A few whole drawings that somebody has looked at, against drift.

#include "output/screen_plot.h"
#include "output/svg_writer.h"
#include "support/drawing_text.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace loftwing {
namespace {

/// Compares the rib's drawing on the screen with its golden. Where goldens are written, an SVG for
/// the eye is written too, under the build tree.
void ExpectGolden(RibWorld &world, const std::string &name) {
    Recording device;
    ASSERT_EQ(afficheRib(world.On(device)), Affichage::dessine);
    constexpr int kDecimals = 3; // a thousandth of a unit is less than any printer's dot
    EXPECT_TRUE(SameAsGolden(name + ".trace", DrawingText(Drawn(device), kDecimals)));
    if (std::getenv("LOFTWING_WRITE_GOLDENS") != nullptr) {
        std::ofstream(std::string(LOFTWING_BINARY_DIR) + "/" + name + ".svg")
            << WriteSvg(device, name);
    }
}

TEST(Golden, PlainRibWithSheetingToTheTrailingEdge) {
    RibWorld world;
    TakeAirfoil(world, Naca(2412, 25, true));
    world.rib.AffEpr = true;
    ExpectGolden(world, "plain");
}

TEST(Golden, RibWithStocksAndStations) {
    RibWorld world;
    TakeAirfoil(world, Naca(4415, 25, true));
    world.rib.corde = 180;
    world.rib.EpCoffrage = 2;
    world.rib.EpBA = 12;
    world.rib.EpBF = 25;
    world.rib.NbRep = 3;
    world.rib.AffEpr = world.rib.AffHautBA = world.rib.AffHautBF = true;
    ExpectGolden(world, "stocks");
}

TEST(Golden, InvertedRibInInchesAtHalfSize) {
    RibWorld world;
    TakeAirfoil(world, Naca(2410, 25));
    world.settings.Unite = " in";
    world.rib.corde = 254;
    world.rib.EpCoffrage = 1.5875F;
    world.rib.EpBA = 12.7F;
    world.rib.NbRep = 1;
    world.rib.Zoom = 0.5F;
    world.rib.AffHaut = true;
    world.rib.AffEpr = world.rib.AffHautBA = true;
    ExpectGolden(world, "inverted");
}

} // namespace
} // namespace loftwing
