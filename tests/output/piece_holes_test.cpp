#include "output/piece_fixture.h"

#include <cmath>
#include <numbers>

namespace loftwing {
namespace {

using PieceHoles = PieceTest;

/// A plank of 100 by 20 mm that stands 3 mm above the reference line.
const Points kPlusHaut = {{1, 0.13}, {0, 0.13}, {0, -0.07}, {1, -0.07}};

TEST_F(PieceHoles, ACircleStandsOnTheReferenceLineOrHalfWay) {
    Contour(kPlusHaut);
    Hole("40", 10).DecalTrou = 1;
    Trou &centred = Hole("70", 8);
    centred.ChkCentre = 1;
    centred.DecalTrou = 2;
    const Piece piece = Nervure();
    const auto &circles = piece.parties.at(0).cercles;
    ASSERT_EQ(circles.size(), 2U);
    EXPECT_NEAR(circles[0].centre.y, 1, 1e-6);
    EXPECT_NEAR(circles[1].centre.y, 3 + 2, 1e-6);
    EXPECT_NEAR(AirePiece(piece), 2000 - std::numbers::pi * (25 + 16), 1e-4);
    EXPECT_TRUE(piece.avis.empty());
}

TEST_F(PieceHoles, ARectangleStandsTheSame) {
    Contour(kPlusHaut);
    Hole("40", 10, 4).DecalTrou = 1;
    Hole("70", 8, 6).ChkCentre = 1;
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000 - 40 - 48, 1e-4);
    const Surface wood = {piece.parties.at(0).dehors, piece.parties[0].dedans.at(0),
                          piece.parties[0].dedans.at(1)};
    EXPECT_FALSE(Contient(wood, {35.01, 2.99}));
    EXPECT_FALSE(Contient(wood, {44.99, -0.99}));
    EXPECT_TRUE(Contient(wood, {40, 3.01}));
    EXPECT_FALSE(Contient(wood, {66.01, 5.99}));
    EXPECT_FALSE(Contient(wood, {73.99, 0.01}));
    EXPECT_TRUE(Contient(wood, {70, -0.01}));
}

TEST_F(PieceHoles, HalfWayIsBetweenTheAirfoilsSurfacesNotTheBodys) {
    // Above, the surface falls from 20 to 0 mm; below it is level at -10.
    Contour({{1, 0}, {0, 0.2}, {0, -0.1}, {1, -0.1}});
    rib.EpCoffrage = 1;
    Hole("50", 2).ChkCentre = 1;
    EXPECT_NEAR(Nervure().parties.at(0).cercles.at(0).centre.y, 0, 1e-6);
}

TEST_F(PieceHoles, WithoutASizeThereIsNone) {
    Hole("40", 0);
    rib.trou[0].HautTrou = 4;
    Trou &flat = Hole("60", 5);
    flat.TypeTrou = 1;
    Trou &other = Hole("70", 5);
    other.TypeTrou = 2;
    EXPECT_NEAR(Mm2(), 2000, 1e-4);
}

TEST_F(PieceHoles, PlaceZeroDoesNotEndTheList) {
    Hole("0", 0);
    Hole("50%", 10);
    EXPECT_EQ(Nervure().parties.at(0).cercles.size(), 1U);
    rib.NbTrou = 1; // the hole in the work slot counts
    EXPECT_EQ(Nervure().parties.at(0).cercles.size(), 1U);
}

TEST_F(PieceHoles, PlacesCountFromTheTrailingEdgeToo) {
    Hole("20", 10).RefTrou = 1;
    EXPECT_NEAR(Nervure().parties.at(0).cercles.at(0).centre.x, 80, 1e-5);
}

TEST_F(PieceHoles, AHoleThatLeavesTheBodyOpensItAndIsTold) {
    Hole("30", 6);
    Hole("50", 10, 8).DecalTrou = 8; // from 4 to 12
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000 - 9 * std::numbers::pi - 60, 1e-3);
    EXPECT_TRUE(piece.parties.at(0).dedans.empty());
    EXPECT_EQ(Numeros(piece, AvisPiece::trou_ouvert), std::vector<int>{2});
}

TEST_F(PieceHoles, ACircleThatTheEdgeCutsIsAnArc) {
    Hole("50", 10).DecalTrou = 10; // half of it outside
    const Piece piece = Nervure();
    EXPECT_TRUE(piece.parties.at(0).cercles.empty());
    EXPECT_NEAR(AirePiece(piece), 2000 - 12.5 * std::numbers::pi, 5e-3);
    EXPECT_EQ(Numeros(piece, AvisPiece::trou_ouvert), std::vector<int>{1});
    for (const PointMm &point : piece.parties[0].dehors) {
        if (point.y < 9.9 && point.y > -9.9) {
            EXPECT_NEAR(std::hypot(point.x - 50, point.y - 10), 5, 1e-5);
        }
    }
}

TEST_F(PieceHoles, AHoleOverANotchThatIsOpenLeavesTheBodyToo) {
    Spar("50", 6, 8, 1).OptLongExt = 2;
    Hole("50", 4, 10); // from -5 to 5, the notch from 2 up
    const Piece piece = Nervure();
    EXPECT_EQ(Numeros(piece, AvisPiece::trou_ouvert), std::vector<int>{1});
    EXPECT_NEAR(AirePiece(piece), 2000 - 48 - 28, 1e-4);
}

TEST_F(PieceHoles, CirclesThatMeetAreCutAsOne) {
    Hole("50", 10);
    Hole("56", 10);
    Hole("80", 6);
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.at(0).cercles.size(), 1U);
    EXPECT_NEAR(piece.parties[0].cercles[0].centre.x, 80, 1e-5);
    EXPECT_EQ(piece.parties[0].dedans.size(), 1U);
    // Two circles of radius 5, 6 apart, share 2 * (25 * acos(0.6) - 3 * 4).
    const double both = 50 * std::numbers::pi - 2 * (25 * std::acos(0.6) - 12);
    EXPECT_NEAR(AirePiece(piece), 2000 - both - 9 * std::numbers::pi, 0.01);
}

TEST_F(PieceHoles, ACircleInAnotherIsSwallowed) {
    Hole("50", 10);
    Hole("51", 4);
    Hole("50", 10);
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.at(0).cercles.size(), 1U);
    EXPECT_DOUBLE_EQ(piece.parties[0].cercles[0].rayon, 5);
    EXPECT_TRUE(piece.parties[0].dedans.empty());
}

TEST_F(PieceHoles, AHoleRightThroughLetsTheRibFallApart) {
    Hole("50", 4, 30);
    const Piece piece = Nervure();
    EXPECT_EQ(Numeros(piece, AvisPiece::en_morceaux), std::vector<int>{2});
    ASSERT_EQ(piece.parties.size(), 2U);
    EXPECT_NEAR(Aire(piece.parties[0].dehors), 48 * 20, 1e-4);
    EXPECT_NEAR(Aire(piece.parties[1].dehors), 48 * 20, 1e-4);
}

TEST_F(PieceHoles, WoodBetweenAHoleAndTheEdgeIsToldWhereItIsThin) {
    Hole("50", 19.2F);
    EXPECT_EQ(Numeros(Nervure(), AvisPiece::bois_mince).size(), 1U); // 0.4 mm
    rib.trou[0].DiaTrou = 17.8F;
    EXPECT_TRUE(Nervure().avis.empty()); // 1.1 mm
}

TEST_F(PieceHoles, CrumbsAreNoParts) {
    // Two holes leave a corner of 0.05 by 0.05 mm between them and the rear edge.
    Hole("90", 20, 19.9F).DecalTrou = -0.05F;
    Hole("99.95", 0.1F, 30);
    EXPECT_EQ(Nervure().parties.size(), 1U);
}

} // namespace
} // namespace loftwing
