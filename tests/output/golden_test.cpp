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

Longeron Spar(const char *place, float width, float depth, std::uint8_t kind) {
    Longeron spar;
    spar.PosLongAfich = place;
    spar.LargLong = width;
    spar.HautLong = depth;
    spar.TypeLong = kind;
    spar.OptLongExt = 1;
    spar.OptLongInt = 2;
    return spar;
}

Trou Hole(const char *place, float width, float height, std::uint8_t kind) {
    Trou hole;
    hole.PosTrouAfich = place;
    hole.DiaTrou = width;
    hole.HautTrou = height;
    hole.TypeTrou = kind;
    hole.ChkCentre = 1;
    return hole;
}

/// Three spars of different kinds, three holes, a line of text.
void Load(RibModel &rib) {
    rib.NbLongeron = 3;
    rib.longeron[0] = Spar("12%", 5, 3, 0);
    rib.longeron[1] = Spar("30%", 8, 4, 1);
    rib.longeron[2] = Spar("60%", 5, 0, 2);
    rib.longeron[2].DistLong = 4;
    rib.NbTrou = 2;
    rib.trou[0] = Hole("21%", 12, 0, 0);
    rib.trou[1] = Hole("45%", 24, 10, 1);
    rib.trou[2] = Hole("70%", 6, 0, 0);
    rib.texte.InsTexte = "naca4415 Chord : 200";
    rib.texte.InsTextX = 40;
    rib.texte.InsTextY = 40;
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

TEST(Golden, RibWithFeaturesOnALevellingHeel) {
    RibWorld world;
    TakeAirfoil(world, Naca(4415, 25, true));
    Load(world.rib);
    world.rib.EpBF = 20;
    world.rib.TypeBA = 0;
    world.rib.carre.CarreBA = 8;
    world.rib.carre.CarreBAX = 4;
    world.rib.vrillage = -3;
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.talon.TalonIntra = 12;
    world.rib.talon.TalonBF = 30;
    world.rib.talon.TalonLong = 150;
    world.rib.AffTrac = true;
    ExpectGolden(world, "heel");
}

TEST(Golden, RibWithFeaturesInAFoamTemplate) {
    RibWorld world;
    TakeAirfoil(world, Naca(4415, 25, true));
    Load(world.rib);
    world.rib.NbRep = 3;
    world.rib.vrillage = -3;
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.HTbasbloc = 20;
    world.rib.bloc.HTbloc = 60;
    world.rib.bloc.BAbloc = 15;
    world.rib.bloc.BFbloc = 25;
    world.rib.bloc.CoupeBF = 2;
    ExpectGolden(world, "template");
}

TEST(Golden, RibWithFeaturesInAFoamTemplateUpsideDown) {
    RibWorld world;
    TakeAirfoil(world, Naca(4415, 25, true));
    Load(world.rib);
    world.rib.AffHaut = true;
    world.rib.NbRep = 3;
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.HTbasbloc = 20;
    world.rib.bloc.HTbloc = 60;
    world.rib.bloc.BAbloc = 15;
    world.rib.bloc.BFbloc = 25;
    ExpectGolden(world, "template-inverted");
}

} // namespace
} // namespace loftwing
