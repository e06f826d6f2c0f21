#include "output/surface.h"

#include "base/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace loftwing {
namespace {

Anneau Carre(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

Anneau SensInverse(Anneau ring) {
    std::reverse(ring.begin(), ring.end());
    return ring;
}

TEST(SurfaceAires, AreaIsPositiveForAnticlockwiseRingsAndHolesCountLess) {
    EXPECT_DOUBLE_EQ(Aire(Carre(3, 4, 10)), 100);
    EXPECT_DOUBLE_EQ(Aire(SensInverse(Carre(3, 4, 10))), -100);
    EXPECT_DOUBLE_EQ(Aire(Surface{Carre(0, 0, 10), SensInverse(Carre(2, 2, 3))}), 91);
    EXPECT_EQ(Aire(Anneau{}), 0);
}

TEST(SurfaceRings, OddRingsMakeHolesAndFilledOnesDoNot) {
    const std::vector<Anneau> rings = {Carre(0, 0, 10), Carre(2, 2, 3)};
    EXPECT_NEAR(Aire(Impair(rings)), 91, 1e-9);
    EXPECT_NEAR(Aire(Rempli(rings)), 100, 1e-9);
    // Two that cross share a square of 5 by 5.
    const std::vector<Anneau> crossing = {Carre(0, 0, 10), SensInverse(Carre(5, 5, 10))};
    EXPECT_NEAR(Aire(Impair(crossing)), 150, 1e-9);
    EXPECT_NEAR(Aire(Rempli(crossing)), 175, 1e-9);
}

TEST(SurfaceRings, ARingThatCrossesItselfFallsIntoItsLoops) {
    // Two triangles of 50 and 2 mm2 that meet at (10, 0).
    const Anneau eight = {{0, 5}, {12, -1}, {12, 1}, {0, -5}};
    const std::vector<Surface> parts = Morceaux(Impair({eight}));
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_NEAR(Aire(parts[0]), 50, 1e-5);
    EXPECT_NEAR(Aire(parts[1]), 2, 1e-5);
}

TEST(SurfaceRings, BooleanWorkAddsTakesAwayAndIntersects) {
    const Surface a = {Carre(0, 0, 10)};
    const Surface b = {Carre(5, 5, 10)};
    EXPECT_NEAR(Aire(Union(a, b)), 175, 1e-9);
    EXPECT_NEAR(Aire(Moins(a, b)), 75, 1e-9);
    EXPECT_NEAR(Aire(Commun(a, b)), 25, 1e-9);
    EXPECT_TRUE(Commun(a, {Carre(20, 0, 1)}).empty());
}

TEST(SurfaceRings, WhatIsTakenAwayMayOverlapItself) {
    EXPECT_NEAR(Aire(Moins({Carre(0, 0, 10)}, {Carre(1, 1, 4), Carre(3, 3, 4)})), 100 - 28, 1e-9);
}

TEST(SurfaceRings, OutlinesRunAnticlockwiseAndHolesClockwise) {
    const Surface frame = Moins({SensInverse(Carre(0, 0, 10))}, {Carre(2, 2, 3)});
    // Given clockwise, a ring covers its place all the same.
    ASSERT_EQ(frame.size(), 2U);
    EXPECT_GT(std::max(Aire(frame[0]), Aire(frame[1])), 0);
    EXPECT_LT(std::min(Aire(frame[0]), Aire(frame[1])), 0);
}

TEST(SurfaceRings, PartsComeFromFrontToRearEachWithItsHoles) {
    const Surface wood =
        Impair({Carre(20, 0, 10), Carre(0, 0, 10), Carre(2, 2, 5), Carre(3, 3, 1)});
    const std::vector<Surface> parts = Morceaux(wood);
    ASSERT_EQ(parts.size(), 3U);
    ASSERT_EQ(parts[0].size(), 2U); // the frame
    EXPECT_NEAR(Aire(parts[0][0]), 100, 1e-9);
    EXPECT_NEAR(Aire(parts[0][1]), -25, 1e-9);
    EXPECT_NEAR(Aire(parts[1]), 1, 1e-9); // the island in its hole
    EXPECT_NEAR(Aire(parts[2]), 100, 1e-9);
}

TEST(SurfaceMoves, GrownByMitresASquareStaysOne) {
    EXPECT_NEAR(Aire(Deplace({Carre(0, 0, 10)}, 1, Coins::vifs)), 144, 1e-4);
    EXPECT_NEAR(Aire(Deplace({Carre(0, 0, 10)}, -1, Coins::vifs)), 64, 1e-4);
    EXPECT_NEAR(Aire(Deplace({Carre(0, 0, 10)}, -1, Coins::ronds)), 64, 1e-4);
    EXPECT_TRUE(Deplace({Carre(0, 0, 10)}, -5.1, Coins::ronds).empty());
}

TEST(SurfaceMoves, GrownRoundASquareGetsQuarterCircles) {
    const double exact = 100 + 4 * 10 * 2 + std::numbers::pi * 4;
    EXPECT_NEAR(Aire(Deplace({Carre(0, 0, 10)}, 2, Coins::ronds)), exact, 0.0005 * 4 * 3.2);
}

TEST(SurfaceMoves, HolesShrinkAsTheWoodGrows) {
    const Surface frame = {Carre(0, 0, 10), SensInverse(Carre(3, 3, 4))};
    EXPECT_NEAR(Aire(Deplace(frame, 1, Coins::vifs)), 144 - 4, 1e-4);
}

TEST(SurfaceMoves, BeyondItsMiddleNothingIsLeft) {
    const Surface square = {Carre(0, 0, 10)};
    EXPECT_NEAR(Aire(Deplace(square, -4.9, Coins::vifs)), 0.04, 1e-6);
    EXPECT_TRUE(Deplace(square, -5.1, Coins::vifs).empty());
    EXPECT_TRUE(Deplace(square, -1000, Coins::ronds).empty());
}

// With a corner for each loop that the shift turns inside out the library would take minutes.
TEST(SurfaceMoves, FarBeyondItsMiddleAWavyRingTakesNoTime) {
    Anneau ring;
    constexpr int kPoints = 20'000;
    for (int i = 0; i < kPoints; ++i) {
        const double angle = 2 * std::numbers::pi * i / kPoints;
        const double radius = 100 + (i % 2 == 0 ? 0.5 : 0);
        ring.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    EXPECT_TRUE(Deplace({ring}, -5000, Coins::ronds).empty());
}

TEST(SurfaceMoves, AMitreBeyondItsLimitIsCutOff) {
    // A corner of 22.6 degrees: a full mitre would reach 5.1 mm beyond it, the limit is 2.
    const Surface needle = {{{0, -2}, {10, 0}, {0, 2}}};
    double farthest = 0;
    const Surface grown = Deplace(needle, 1, Coins::vifs);
    for (const PointMm &point : grown.at(0)) {
        farthest = std::max(farthest, point.x);
    }
    EXPECT_GE(farthest, 11 - 1e-6);
    EXPECT_LE(farthest, 12 + 1e-6);
}

TEST(SurfaceCrumbs, ALighterRingStaysWithinItsTolerance) {
    const Anneau ring = AnneauRond({3, -2}, 10);
    const Surface light = Allege({ring, Carre(0, 0, 1)}, 0.01);
    ASSERT_EQ(light.size(), 2U);
    EXPECT_LT(light[0].size() * 4, ring.size());
    EXPECT_GT(Aire(light[0]), Aire(ring) - 0.01 * 63);
    for (const PointMm &point : light[0]) {
        EXPECT_NE(std::find(ring.begin(), ring.end(), point), ring.end());
    }
    EXPECT_EQ(light[1], Carre(0, 0, 1));
    const Anneau sliver = {{0, 0}, {1, -1e-4}, {2, 0}, {1.5, 1e-4}, {1, 1e-4}};
    EXPECT_EQ(Allege({sliver}, 0.01).at(0), sliver);
}

TEST(SurfaceCrumbs, PartsAndHolesBelowTheSizeGo) {
    const Surface wood = {Carre(0, 0, 10), SensInverse(Carre(1, 1, 0.09)),
                          SensInverse(Carre(5, 5, 0.2)), Carre(20, 0, 0.05)};
    const Surface left = SansMiettes(wood, 0.01);
    ASSERT_EQ(left.size(), 2U);
    EXPECT_NEAR(Aire(left), 100 - 0.04, 1e-9);
}

TEST(SurfaceCircles, CornersLieOnTheCircleAndItsSidesNearIt) {
    for (const double radius : {0.05, 1.0, 7.5, 400.0}) {
        const Anneau ring = AnneauRond({3, -2}, radius);
        EXPECT_GT(Aire(ring), 0);
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const PointMm &a = ring[i];
            const PointMm &b = ring[(i + 1) % ring.size()];
            EXPECT_NEAR(std::hypot(a.x - 3, a.y + 2), radius, 1e-9);
            EXPECT_GE(std::hypot((a.x + b.x) / 2 - 3, (a.y + b.y) / 2 + 2), radius - 0.0005);
        }
    }
    EXPECT_TRUE(AnneauRond({0, 0}, 0).empty());
}

TEST(SurfaceLines, OnlyWhatLiesInsideIsLeftOfARun) {
    const Surface frame = {Carre(0, 0, 10), SensInverse(Carre(4, 4, 2))};
    const std::vector<Ligne> inside = Dedans({{-5, 5}, {15, 5}}, frame);
    ASSERT_EQ(inside.size(), 2U);
    double length = 0;
    for (const Ligne &line : inside) {
        length += std::abs(line.back().x - line.front().x);
    }
    EXPECT_NEAR(length, 8, 1e-5);
    EXPECT_TRUE(Dedans({{20, 0}, {30, 0}}, frame).empty());
}

TEST(SurfaceLines, AHoleIsNotInside) {
    const Surface frame = {Carre(0, 0, 10), SensInverse(Carre(4, 4, 2))};
    EXPECT_TRUE(Contient(frame, {1, 1}));
    EXPECT_FALSE(Contient(frame, {5, 5}));
    EXPECT_FALSE(Contient(frame, {11, 5}));
}

TEST(SurfaceBounds, RingsWithoutAreaCountAsNone) {
    const Surface wood = Union({Carre(0, 0, 10), {}, {{1, 1}}, {{1, 1}, {5, 5}}},
                               {{{2, 2}, {3, 3}, {4, 4}}, {{1, 1}, {1, 1}, {1, 1}}});
    EXPECT_EQ(wood.size(), 1U);
    EXPECT_NEAR(Aire(wood), 100, 1e-9);
    EXPECT_TRUE(Impair({}).empty());
    EXPECT_FALSE(Contient({Anneau{}}, {0, 0}));
}

TEST(SurfaceBounds, NumbersThatCannotBeCutAreAnOverflow) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {nan, std::numeric_limits<double>::infinity(), 2e9, -1e300}) {
        const Surface wood = {{{0, 0}, {bad, 0}, {0, 1}}};
        const auto number = [](auto work) {
            try {
                work();
            } catch (const Failure &failure) {
                return failure.number;
            }
            return 0;
        };
        EXPECT_EQ(number([&] { Impair(wood); }), kOverflow) << bad;
        EXPECT_EQ(number([&] { Moins({Carre(0, 0, 1)}, wood); }), kOverflow) << bad;
        EXPECT_EQ(number([&] { Deplace({Carre(0, 0, 1)}, bad, Coins::ronds); }), kOverflow) << bad;
        EXPECT_EQ(number([&] { Dedans({{0, 0}, {bad, 1}}, {Carre(0, 0, 1)}); }), kOverflow) << bad;
        if (!(bad < 0)) {
            EXPECT_EQ(number([&] { AnneauRond({0, 0}, bad); }), kOverflow) << bad;
        }
    }
}

TEST(SurfaceBounds, ARibOfKilometresIsStillRight) {
    const double km = 1e6;
    EXPECT_NEAR(Aire(Moins({Carre(0, 0, 100 * km)}, {Carre(0, 0, 50 * km)})) / (km * km), 7500,
                1e-6);
}

TEST(SurfaceConvexe, AnEnvelopeHasNoConcaveCornerAndNoPointTwice) {
    const Anneau ring =
        Enveloppe({{0, 0}, {10, 0}, {5, 3}, {10, 0}, {10, 10}, {5, 10}, {0, 10}, {2, 5}, {0, 4}});
    EXPECT_EQ(ring, (Anneau{{0, 0}, {10, 0}, {10, 10}, {0, 10}}));
    EXPECT_LT(Enveloppe({{0, 0}, {1, 1}, {2, 2}}).size(), 3U);
}

TEST(SurfaceConvexe, TheSumOfTwoRingsHasTheEdgesOfBoth) {
    EXPECT_EQ(SommeConvexe(Carre(1, 2, 3), Carre(10, 20, 5)),
              (Anneau{{11, 22}, {19, 22}, {19, 30}, {11, 30}}));
    // A square and a triangle: 9 + 8 and the square's width and height along the triangle's.
    const Anneau triangle = {{4, 4}, {0, 4}, {0, 0}};
    const Anneau sum = SommeConvexe(Carre(0, 0, 3), triangle);
    EXPECT_EQ(sum.size(), 5U);
    EXPECT_DOUBLE_EQ(Aire(sum), 9 + 8 + 3 * 4 + 3 * 4);
    EXPECT_EQ(Enveloppe(sum).size(), sum.size());
    EXPECT_TRUE(SommeConvexe({}, triangle).empty());
}

TEST(SurfaceAires, WhatIsLeftOfAnAreaMayBeTakenByRingsThatOverlap) {
    EXPECT_NEAR(Aire(Reste({Carre(0, 0, 10)}, {Carre(-1, -1, 6), Carre(2, 2, 5)})),
                100 - 25 - (25 - 9), 1e-6);
}

} // namespace
} // namespace loftwing
