#include "output/piece_fixture.h"

#include <cmath>
#include <numbers>

namespace loftwing {
namespace {

using PieceBody = PieceTest;

TEST_F(PieceBody, WithoutAnythingThePieceIsTheAirfoil) {
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000, 1e-4);
    EXPECT_NEAR(LongueurCoupe(piece), 240, 1e-5);
    const BoitePiece box = BoiteDe(piece);
    EXPECT_EQ(box.bas_gauche, (PointMm{0, -10}));
    EXPECT_EQ(box.haut_droite, (PointMm{100, 10}));
    ASSERT_EQ(piece.parties.size(), 1U);
    EXPECT_EQ(piece.parties[0].dehors.size(), 4U);
    EXPECT_GT(Aire(piece.parties[0].dehors), 0);
    EXPECT_TRUE(piece.avis.empty());
    EXPECT_EQ(piece.genre, GenrePiece::nervure);
}

TEST_F(PieceBody, SheetingMovesAllEdgesInward) {
    rib.EpCoffrage = 2;
    // Two millimetres off each side of the plank, the front and rear edges among them.
    EXPECT_NEAR(Mm2(), 96 * 16, 1e-3);
}

TEST_F(PieceBody, SheetingIsSquareToASlopingSurface) {
    Coin();
    rib.EpCoffrage = 2;
    rib.EpBA = 10;
    rib.EpBF = 40;
    // Square to a slope of 1 in 5, 2 mm are 2 * sqrt(1.04) in height. At 10 and 60 mm the wedge is
    // 36 and 16 high.
    const double less = 4 * std::sqrt(1.04);
    EXPECT_NEAR(Mm2(), 50 * (26 - less), 1e-3);
}

TEST_F(PieceBody, SheetingAroundACornerThatPointsInwardIsRound) {
    // A step up at 50 mm: around its corner the sheeting's inner face is a quarter of a circle.
    Contour({{1, 0.2}, {0.5, 0.2}, {0.5, 0.1}, {0, 0.1}, {0, -0.1}, {1, -0.1}});
    rib.EpCoffrage = 2;
    const double mitred = 96 * 16 + 46 * 10;
    EXPECT_NEAR(Mm2(), mitred + 4 - std::numbers::pi, 2e-3);
}

TEST_F(PieceBody, StocksCutThePieceOff) {
    rib.EpBA = 8;
    rib.EpBF = 20;
    const BoitePiece box = BoiteDe(Nervure());
    EXPECT_DOUBLE_EQ(box.bas_gauche.x, 8);
    EXPECT_DOUBLE_EQ(box.haut_droite.x, 80);
    EXPECT_NEAR(Mm2(), 72 * 20, 1e-4);
}

TEST_F(PieceBody, ASheetThickerThanTheStockCountsInFront) {
    rib.EpCoffrage = 3;
    rib.EpBA = 2;
    EXPECT_NEAR(BoiteDe(Nervure()).bas_gauche.x, 3, 1e-6);
}

TEST_F(PieceBody, AVNotchTakesItsDiamondAndAllInFront) {
    rib.TypeBA = 0;
    rib.EpBA = 30; // counts for nothing beside a V-notch
    rib.carre.CarreBA = 8;
    rib.carre.CarreBAX = 5;
    rib.carre.CarreBAY = 1;
    // Half the square behind x = 5.
    EXPECT_NEAR(Mm2(), 95 * 20 - 32, 1e-3);
    rib.carre.CarreBA = 0;
    EXPECT_NEAR(Mm2(), 2000, 1e-4);
}

TEST_F(PieceBody, AVNotchStandsOnItsCornerExactly) {
    rib.TypeBA = 0;
    rib.carre.CarreBA = 8;
    rib.carre.CarreBAX = 5;
    double deepest = 0;
    const Piece piece = Nervure();
    for (const PointMm &point : piece.parties.at(0).dehors) {
        if (std::abs(point.y) < 5) {
            deepest = std::max(deepest, point.x);
        }
    }
    EXPECT_NEAR(deepest, 5 + 8 / std::sqrt(2.0), 1e-5);
}

TEST_F(PieceBody, OfAContourThatCrossesItselfTheLargestPartCounts) {
    // The surfaces cross at x = 80; the loop behind is a triangle of 20 by 5 mm.
    Contour({{1, -0.025}, {0, 0.1}, {0, -0.1}, {1, 0.025}});
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 20 * 80 / 2.0, 1e-3);
    EXPECT_NEAR(BoiteDe(piece).haut_droite.x, 80, 1e-5);
    EXPECT_EQ(piece.parties.size(), 1U);
}

TEST_F(PieceBody, NothingLeftIsRefused) {
    rib.EpCoffrage = 11;
    EXPECT_EQ(Refusee(), (RefusPiece{RefusDePiece::sans_bois, 0}));
    rib.EpCoffrage = 0;
    rib.EpBA = 60;
    rib.EpBF = 40;
    EXPECT_EQ(Refusee().cause, RefusDePiece::sans_bois);
    Contour({});
    EXPECT_EQ(Refusee().cause, RefusDePiece::sans_bois);
}

TEST_F(PieceBody, AChordBeyondAllMeasuresIsAFailure) {
    rib.corde = 1e30F;
    EXPECT_THROW(Fait(), Failure);
}

TEST_F(PieceBody, KerfMovesOutlinesOutAndHolesIn) {
    Hole("30", 10, 6);
    Hole("70", 8);
    demande.saignee = 0.2;
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.size(), 1U);
    EXPECT_NEAR(Aire(piece.parties[0].dehors), 100.2 * 20.2, 1e-3);
    ASSERT_EQ(piece.parties[0].dedans.size(), 1U);
    EXPECT_NEAR(Aire(piece.parties[0].dedans[0]), -9.8 * 5.8, 1e-3);
    ASSERT_EQ(piece.parties[0].cercles.size(), 1U);
    EXPECT_DOUBLE_EQ(piece.parties[0].cercles[0].rayon, 3.9);
}

TEST_F(PieceBody, MarksStayWhereTheyAreWhateverTheKerf) {
    demande.saignee = 1;
    const auto marks = Traits(Nervure(), GenreMarque::reference);
    ASSERT_EQ(marks.size(), 1U);
    EXPECT_DOUBLE_EQ(marks[0].points.front().x, 0);
    EXPECT_DOUBLE_EQ(marks[0].points.back().x, 100);
}

TEST_F(PieceBody, AHoleNoWiderThanTheKerfIsNotCut) {
    Hole("70", 0.2F);
    demande.saignee = 0.25;
    EXPECT_TRUE(Nervure().parties.at(0).cercles.empty());
}

TEST_F(PieceBody, TheInvertedViewMirrorsAllAndKeepsDirections) {
    rib.EpBA = 10;
    Hole("40", 10).DecalTrou = 3;
    Hole("70", 10, 4).DecalTrou = 2;
    Spar("20", 4, 5, 1).OptLongExt = 2;
    rib.NbRep = 1;
    const Piece upright = Nervure();
    rib.AffHaut = true;
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), AirePiece(upright), 1e-9);
    const PartiePiece &part = piece.parties.at(0);
    EXPECT_GT(Aire(part.dehors), 0);
    EXPECT_LT(Aire(part.dedans.at(0)), 0);
    EXPECT_DOUBLE_EQ(part.cercles.at(0).centre.y, -3);
    for (const PointMm &point : part.dedans.at(0)) {
        EXPECT_NEAR(std::abs(point.y + 2), 2, 1e-9);
    }
    // The notch from above is open below.
    EXPECT_FALSE(Contient({part.dehors}, {20, -8}));
    EXPECT_TRUE(Contient({part.dehors}, {20, 8}));
    ASSERT_EQ(piece.traits.size(), upright.traits.size());
    for (std::size_t i = 0; i < piece.traits.size(); ++i) {
        EXPECT_DOUBLE_EQ(piece.traits[i].points[0].y, -upright.traits[i].points[0].y);
        EXPECT_DOUBLE_EQ(piece.traits[i].points[0].x, upright.traits[i].points[0].x);
    }
}

} // namespace
} // namespace loftwing
