#include "output/piece_fixture.h"

#include <cmath>
#include <numbers>

namespace loftwing {
namespace {

using PieceSpars = PieceTest;

TEST_F(PieceSpars, ASquareNotchCutsFromTheSurfaceInward) {
    Spar("30", 4, 5, 1).OptLongExt = 2;
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000 - 20, 1e-4);
    const Surface wood = {piece.parties.at(0).dehors};
    EXPECT_FALSE(Contient(wood, {28.01, 5.01}));
    EXPECT_FALSE(Contient(wood, {31.99, 9.99}));
    EXPECT_TRUE(Contient(wood, {27.99, 9}));
    EXPECT_TRUE(Contient(wood, {32.01, 9}));
    EXPECT_TRUE(Contient(wood, {30, 4.99}));
}

TEST_F(PieceSpars, TheLowerSurfaceIsCutUpward) {
    Spar("30", 4, 5, 1).OptLongInt = 2;
    const Surface wood = {Nervure().parties.at(0).dehors};
    EXPECT_NEAR(Aire(wood), 2000 - 20, 1e-4);
    EXPECT_FALSE(Contient(wood, {30, -5.01}));
    EXPECT_TRUE(Contient(wood, {30, -4.99}));
}

TEST_F(PieceSpars, BothSurfacesAreCutIndependently) {
    Longeron &spar = Spar("30", 4, 5, 1);
    spar.OptLongExt = 2;
    spar.OptLongInt = 2;
    EXPECT_NEAR(Mm2(), 2000 - 40, 1e-4);
}

TEST_F(PieceSpars, WithoutAnOptionNothingIsCut) {
    Spar("30", 4, 5, 1);
    Spar("50", 4, 5, 1).OptLongExt = 3; // no notch of the plot's either
    EXPECT_NEAR(Mm2(), 2000, 1e-4);
}

TEST_F(PieceSpars, OptionOneCountsFromTheBodyAndTwoFromTheContour) {
    rib.EpCoffrage = 2;
    Longeron &spar = Spar("30", 4, 5, 1);
    spar.OptLongExt = 1;
    EXPECT_NEAR(Mm2(), 96 * 16 - 20, 1e-3);
    spar.OptLongExt = 2; // 2 mm of its depth are sheeting
    EXPECT_NEAR(Mm2(), 96 * 16 - 12, 1e-3);
    spar.OptLongExt = 0;
    spar.OptLongInt = 1;
    EXPECT_NEAR(Mm2(), 96 * 16 - 20, 1e-3);
    spar.OptLongInt = 2;
    EXPECT_NEAR(Mm2(), 96 * 16 - 12, 1e-3);
}

TEST_F(PieceSpars, ASquareNotchIsLevelOnASlope) {
    Coin();
    Spar("50", 10, 4, 1).OptLongExt = 2;
    // The surface is at 11, 10 and 9 mm; the bottom at 6: (5 + 3) / 2 * 10.
    EXPECT_NEAR(Mm2(), 2000 - 40, 1e-3);
}

TEST_F(PieceSpars, AtADistanceTheNotchIsAHole) {
    Longeron &spar = Spar("30", 4, 5, 3);
    spar.OptLongExt = 2;
    spar.DistLong = 3;
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000 - 20, 1e-4);
    ASSERT_EQ(piece.parties.at(0).dedans.size(), 1U);
    const BoitePiece box = Autour(piece.parties[0].dedans[0]);
    EXPECT_EQ(box.bas_gauche, (PointMm{28, 2}));
    EXPECT_EQ(box.haut_droite, (PointMm{32, 7}));
}

TEST_F(PieceSpars, AtADistanceFromBelowItLiesAbove) {
    Longeron &spar = Spar("30", 4, 5, 3);
    spar.OptLongInt = 2;
    spar.DistLong = 3;
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.at(0).dedans.size(), 1U);
    const BoitePiece box = Autour(piece.parties[0].dedans[0]);
    EXPECT_EQ(box.bas_gauche, (PointMm{28, -7}));
    EXPECT_EQ(box.haut_droite, (PointMm{32, -2}));
}

TEST_F(PieceSpars, ADistanceCountsForTheFirstSquareKindToo) {
    Longeron &spar = Spar("30", 4, 5, 1);
    spar.OptLongExt = 2;
    spar.DistLong = 3;
    EXPECT_EQ(Nervure().parties.at(0).dedans.size(), 1U);
}

TEST_F(PieceSpars, ARoundSparStaysACircle) {
    Longeron &spar = Spar("30", 6, 1, 2);
    spar.OptLongExt = 2;
    spar.DistLong = 5;
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.at(0).cercles.size(), 1U);
    EXPECT_EQ(piece.parties[0].cercles[0].centre, (PointMm{30, 4})); // 5 + 1 under 10
    EXPECT_DOUBLE_EQ(piece.parties[0].cercles[0].rayon, 3);
    EXPECT_NEAR(AirePiece(piece), 2000 - 9 * std::numbers::pi, 1e-4);
    EXPECT_NEAR(LongueurCoupe(piece), 240 + 6 * std::numbers::pi, 1e-5);
    EXPECT_TRUE(piece.parties[0].dedans.empty());
}

TEST_F(PieceSpars, ARoundSparAtTheSurfaceIsCutOpen) {
    Spar("30", 6, 0, 2).OptLongExt = 2;
    const Piece piece = Nervure();
    EXPECT_TRUE(piece.parties.at(0).cercles.empty());
    EXPECT_NEAR(AirePiece(piece), 2000 - 4.5 * std::numbers::pi, 5e-3);
}

TEST_F(PieceSpars, AlongTheSurfaceTheNotchIsATrueRectangle) {
    Coin();
    Spar("50", 10, 4, 0).OptLongExt = 2;
    // 10 mm along the slope and 4 mm square to it, all of it in the wood.
    EXPECT_NEAR(Mm2(), 2000 - 40, 1e-3);
    const Surface wood = {Nervure().parties.at(0).dehors};
    const double c = 1 / std::sqrt(1.04);
    const double s = 0.2 / std::sqrt(1.04);
    const auto at = [&](double along, double deep) {
        return PointMm{50 + along * c - deep * s, 10 - along * s - deep * c};
    };
    EXPECT_FALSE(Contient(wood, at(4.99, 3.99)));
    EXPECT_FALSE(Contient(wood, at(-4.99, 3.99)));
    EXPECT_TRUE(Contient(wood, at(5.01, 2)));
    EXPECT_TRUE(Contient(wood, at(-5.01, 2)));
    EXPECT_TRUE(Contient(wood, at(0, 4.01)));
}

TEST_F(PieceSpars, AlongTheLowerSurfaceItLiesInTheMirror) {
    Coin();
    Spar("50", 10, 4, 0).OptLongInt = 2;
    const Surface wood = {Nervure().parties.at(0).dehors};
    EXPECT_NEAR(Aire(wood), 2000 - 40, 1e-3);
    EXPECT_FALSE(Contient(wood, {50, -8}));
    EXPECT_TRUE(Contient(wood, {50, 8}));
}

TEST_F(PieceSpars, AlongTheSurfaceADistanceCountsForNothing) {
    Longeron &spar = Spar("30", 4, 5, 0);
    spar.OptLongExt = 2;
    spar.DistLong = 3;
    EXPECT_NEAR(Mm2(), 2000 - 20, 1e-4);
}

TEST_F(PieceSpars, NoDepthCutsNothing) {
    Spar("30", 4, 0, 0).OptLongExt = 2;
    Spar("60", 0, 4, 1).OptLongExt = 2;
    EXPECT_NEAR(Mm2(), 2000, 1e-4);
}

TEST_F(PieceSpars, BehindTheFirstPlaceZeroNothingIsCut) {
    Spar("0", 4, 5, 1).OptLongExt = 2;
    Spar("50", 4, 5, 1).OptLongExt = 2;
    EXPECT_NEAR(Mm2(), 2000, 1e-4);
}

TEST_F(PieceSpars, TheWorkSlotIsCutToo) {
    Spar("30", 4, 5, 1).OptLongExt = 2;
    rib.NbLongeron = 0;
    EXPECT_NEAR(Mm2(), 2000 - 20, 1e-4);
}

TEST_F(PieceSpars, PlacesComeFromTheirTexts) {
    Longeron &spar = Spar("25%", 4, 5, 1);
    spar.OptLongExt = 2;
    spar.RefLong = 1;
    spar.PosLong = 3;
    EXPECT_FALSE(Contient({Nervure().parties.at(0).dehors}, {75, 9}));
    world.settings.Unite = " in";
    spar.PosLongAfich = "2";
    EXPECT_FALSE(Contient({Nervure().parties.at(0).dehors}, {100 - 50.8, 9}));
}

TEST_F(PieceSpars, ATextThatIsNoLengthEndsTheListWithoutABox) {
    world.settings.Unite = " in";
    Spar("2./8", 4, 5, 1).OptLongExt = 2;
    EXPECT_NEAR(Mm2(), 2000, 1e-4);
    EXPECT_TRUE(world.platform.boxes.empty());
}

TEST_F(PieceSpars, WhereTheInnerFacesHaveMetTheSparIsRefused) {
    Coin();
    rib.EpCoffrage = 2;
    Spar("30", 4, 3, 1).OptLongExt = 1;
    // Inside the sheeting the wedge ends 2 * sqrt(1.04) / 0.2 = 10.2 mm before its edge.
    Longeron &spar = Spar("91", 2, 1, 1);
    spar.OptLongInt = 1;
    EXPECT_EQ(Refusee(), (RefusPiece{RefusDePiece::longeron_sans_surface, 2}));
    spar.PosLongAfich = "89";
    EXPECT_TRUE(std::holds_alternative<std::vector<Piece>>(Fait()));
    spar.PosLongAfich = "91";
    spar.OptLongInt = 2; // the airfoil itself has a surface there
    EXPECT_TRUE(std::holds_alternative<std::vector<Piece>>(Fait()));
}

TEST_F(PieceSpars, AlongTheSurfaceBothItsEdgesMustHaveOne) {
    Coin();
    rib.EpCoffrage = 2;
    Longeron &spar = Spar("88", 6, 1, 0);
    spar.OptLongExt = 1;
    EXPECT_EQ(Refusee(), (RefusPiece{RefusDePiece::longeron_sans_surface, 1}));
    spar.TypeLong = 1; // only its middle counts
    EXPECT_TRUE(std::holds_alternative<std::vector<Piece>>(Fait()));
}

TEST_F(PieceSpars, NotchesThatMeetAreTold) {
    Spar("30", 6, 5, 1).OptLongExt = 2;
    Spar("36", 6, 5, 1).OptLongExt = 2; // touches
    Spar("70", 6, 5, 1).OptLongExt = 2;
    EXPECT_TRUE(Numeros(Nervure(), AvisPiece::encoches).empty());
    Spar("75", 6, 5, 1).OptLongInt = 2; // shares x with the one before, but no wood
    EXPECT_TRUE(Numeros(Nervure(), AvisPiece::encoches).empty());
    Spar("33", 6, 5, 1).OptLongExt = 2;
    EXPECT_EQ(Numeros(Nervure(), AvisPiece::encoches), std::vector<int>{5});
}

TEST_F(PieceSpars, NotchesFromAboveAndBelowThatMeetAreTold) {
    Longeron &spar = Spar("30", 6, 11, 1);
    spar.OptLongExt = 2;
    spar.OptLongInt = 2;
    const Piece piece = Nervure();
    EXPECT_EQ(Numeros(piece, AvisPiece::encoches), std::vector<int>{1});
    EXPECT_EQ(Numeros(piece, AvisPiece::en_morceaux), std::vector<int>{2});
    EXPECT_EQ(piece.parties.size(), 2U);
    EXPECT_LT(Autour(piece.parties[0].dehors).haut_droite.x, 28);
}

TEST_F(PieceSpars, ThinWoodIsTold) {
    Longeron &spar = Spar("30", 6, 19.2F, 1);
    spar.OptLongExt = 2;
    EXPECT_EQ(Numeros(Nervure(), AvisPiece::bois_mince).size(), 1U); // a bridge of 0.8 mm
    spar.HautLong = 18.8F;
    EXPECT_TRUE(Nervure().avis.empty()); // and of 1.2 mm
}

} // namespace
} // namespace loftwing
