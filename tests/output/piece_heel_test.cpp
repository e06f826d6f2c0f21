#include "output/piece_fixture.h"

#include <cmath>

namespace loftwing {
namespace {

/// The plank of 100 by 20 mm, its heel as long as the first margin, the second one behind it.
class PieceHeel : public PieceTest {
  protected:
    double Radians() const { return static_cast<double>(rib.vrillage) * std::acos(-1.0) / 180; }
    /// Lowest place of the wood at `x`, by steps.
    double Pied(const Piece &piece, double x) const {
        const Surface wood = {piece.parties.at(0).dehors};
        double y = -60;
        while (y < 60 && !Contient(wood, {x, y})) {
            y += 0.001;
        }
        return y;
    }
};

TEST_F(PieceHeel, ReachesFromItsFootToTheBody) {
    Heel(15, "20", "30");
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000 + 20 * 5, 0.01);
    ASSERT_EQ(piece.parties.size(), 1U);
    EXPECT_TRUE(piece.parties[0].dedans.empty());
    EXPECT_NEAR(BoiteDe(piece).bas_gauche.y, -15, 1e-6);
    const Surface wood = {piece.parties[0].dehors};
    EXPECT_TRUE(Contient(wood, {50.01, -14.99}));
    EXPECT_TRUE(Contient(wood, {69.99, -14.99}));
    EXPECT_FALSE(Contient(wood, {49.99, -10.01}));
    EXPECT_FALSE(Contient(wood, {70.01, -10.01}));
    EXPECT_TRUE(piece.avis.empty());
}

TEST_F(PieceHeel, FillsThePlaceOfTheSheeting) {
    rib.EpCoffrage = 2;
    Heel(15, "20", "30");
    EXPECT_NEAR(Mm2(), 96 * 16 + 20 * 7, 0.01);
}

TEST_F(PieceHeel, GoesUpToTheMiddleWhereThereIsNoBody) {
    Coin();
    rib.EpCoffrage = 2; // the body ends 10.2 mm before the trailing edge
    Heel(25, "20", "0");
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.size(), 1U);
    const Surface wood = {piece.parties[0].dehors};
    EXPECT_TRUE(Contient(wood, {95, -0.01}));
    EXPECT_FALSE(Contient(wood, {95, 0.01}));
}

TEST_F(PieceHeel, MarginsComeFromTheirTexts) {
    Heel(15, "20%", "30");
    rib.talon.TalonBA = 77;
    rib.talon.TalonBF = 7;
    rib.talon.TalonLong = 84;
    EXPECT_NEAR(Mm2(), 2000 + 20 * 5, 0.01);
    world.settings.Unite = " in";
    rib.talon.TalonBFAfich = "1";
    EXPECT_NEAR(Pied(Nervure(), 100 - 25.4 - 0.1), -15, 0.002);
    EXPECT_NEAR(Pied(Nervure(), 100 - 25.4 + 0.1), -10, 0.002);
}

TEST_F(PieceHeel, WashoutTurnsTheFoot) {
    Heel(20, "20", "30");
    for (const float washout : {5.0F, -5.0F}) {
        rib.vrillage = washout;
        const double t = std::tan(Radians());
        const double start = -20 / std::cos(Radians());
        const Piece piece = Nervure();
        EXPECT_NEAR(Pied(piece, 50.01), start + 50.01 * t, 0.002) << washout;
        EXPECT_NEAR(Pied(piece, 69.99), start + 69.99 * t, 0.002) << washout;
        EXPECT_NEAR(AirePiece(piece), 2000 + 20 * (-start - 60 * t - 10), 0.01) << washout;
    }
}

TEST_F(PieceHeel, TheUpperHeelStandsOnTop) {
    Heel(0, "20", "30");
    rib.talon.OptTalon = 1;
    rib.talon.TalonExtra = -15;
    EXPECT_NEAR(BoiteDe(Nervure()).haut_droite.y, 15, 1e-6);
    EXPECT_NEAR(Mm2(), 2000 + 20 * 5, 0.01);
    rib.vrillage = -3;
    const double t = std::tan(Radians());
    EXPECT_NEAR(Mm2(), 2000 + 20 * (15 / std::cos(Radians()) + 60 * t - 10), 0.01);
}

TEST_F(PieceHeel, BothEndsOfTheChordAreAllowed) {
    Heel(15, "100", "0");
    EXPECT_NEAR(Mm2(), 2000 + 100 * 5, 0.01);
}

TEST_F(PieceHeel, TheStocksPlaceStaysFree) {
    rib.EpCoffrage = 2;
    rib.EpBA = 10;
    rib.EpBF = 20;
    Heel(15, "100", "0");
    // Under the stocks it begins where the airfoil ends.
    EXPECT_NEAR(Mm2(), 70 * 16 + 70 * 7 + 30 * 5, 0.01);
    rib.TypeBA = 0; // no stock, no notch: the nose is the body's
    EXPECT_NEAR(Mm2(), 78 * 16 + 78 * 7 + 2 * 15 + 20 * 5, 0.01);
}

TEST_F(PieceHeel, NotchesRunOpenThroughIt) {
    Heel(15, "20", "30");
    Spar("60", 4, 5, 1).OptLongInt = 2;
    EXPECT_NEAR(Mm2(), 2000 + 20 * 5 - 4 * 10, 0.01);
    EXPECT_FALSE(Contient({Nervure().parties.at(0).dehors}, {60, -14.99}));
    Spar("52", 2, 5, 1).OptLongExt = 2; // from above: the heel keeps whole
    EXPECT_NEAR(Mm2(), 2000 + 20 * 5 - 4 * 10 - 10, 0.01);
}

TEST_F(PieceHeel, ARoundSparAcrossTheJointStaysACircle) {
    Heel(15, "20", "30");
    Spar("60", 6, 0, 2).OptLongInt = 2;
    const Piece piece = Nervure();
    ASSERT_EQ(piece.parties.at(0).cercles.size(), 1U);
    EXPECT_NEAR(AirePiece(piece), 2000 + 100 - 9 * std::acos(-1.0), 0.01);
}

TEST_F(PieceHeel, HolesAreTheBodysAndNotTheHeels) {
    Heel(15, "20", "30");
    Hole("60", 10, 6).DecalTrou = -10; // half of it outside the body
    const Piece piece = Nervure();
    EXPECT_NEAR(AirePiece(piece), 2000 + 100 - 30, 0.01);
    EXPECT_EQ(Numeros(piece, AvisPiece::trou_ouvert), std::vector<int>{1});
}

TEST_F(PieceHeel, AFootInsideTheAirfoilIsRefused) {
    Heel(9.9, "20", "30");
    EXPECT_EQ(Refusee(), (RefusPiece{RefusDePiece::talon_dans_profil, 0}));
    rib.talon.TalonIntra = 10;
    EXPECT_NEAR(Mm2(), 2000, 0.01);
    rib.talon.TalonIntra = 12;
    rib.vrillage = 5; // at its rear end it comes 6.1 mm up
    EXPECT_EQ(Refusee().cause, RefusDePiece::talon_dans_profil);
    rib.vrillage = 0;
    rib.talon.OptTalon = 1; // its height there is 0
    EXPECT_EQ(Refusee().cause, RefusDePiece::talon_dans_profil);
}

TEST_F(PieceHeel, OnlyItsOwnStretchOfTheFootCounts) {
    Coin();
    Heel(5, "10", "0"); // the wedge is 4 mm deep where the foot begins
    rib.talon.TalonBFAfich = "5";
    EXPECT_TRUE(std::holds_alternative<std::vector<Piece>>(Fait()));
    rib.talon.TalonBFAfich = "20"; // and 6 to 12 mm there
    EXPECT_EQ(Refusee().cause, RefusDePiece::talon_dans_profil);
}

TEST_F(PieceHeel, OneOfNoLengthIsTold) {
    Heel(5, "0", "30");
    const Piece piece = Nervure();
    EXPECT_EQ(Numeros(piece, AvisPiece::talon_vide).size(), 1U);
    EXPECT_NEAR(AirePiece(piece), 2000, 1e-4);
    rib.TypeGabarit = kSansGabarit;
    EXPECT_TRUE(Nervure().avis.empty());
}

TEST_F(PieceHeel, ItsJointIsAMark) {
    rib.EpCoffrage = 2;
    Heel(15, "20", "30");
    const auto marks = Traits(Nervure(), GenreMarque::talon);
    ASSERT_EQ(marks.size(), 1U);
    const BoitePiece box = Autour(marks[0].points);
    EXPECT_NEAR(box.bas_gauche.x, 50, 0.01);
    EXPECT_NEAR(box.haut_droite.x, 70, 0.01);
    EXPECT_NEAR(box.bas_gauche.y, -8, 1e-6);
    EXPECT_NEAR(box.haut_droite.y, -8, 1e-6);
    demande.talon = false;
    EXPECT_TRUE(Traits(Nervure(), GenreMarque::talon).empty());
}

TEST_F(PieceHeel, ItsJointIsInterruptedByANotch) {
    Heel(15, "20", "30");
    Spar("60", 4, 5, 1).OptLongInt = 2;
    const auto marks = Traits(Nervure(), GenreMarque::talon);
    ASSERT_EQ(marks.size(), 2U);
    for (const TraitMarque &mark : marks) {
        const BoitePiece box = Autour(mark.points);
        EXPECT_TRUE(box.haut_droite.x < 58.01 || box.bas_gauche.x > 61.99);
        EXPECT_NEAR(box.haut_droite.x - box.bas_gauche.x, 8, 0.01);
    }
}

TEST_F(PieceHeel, UpsideDownItStandsAbove) {
    Heel(15, "20", "30");
    rib.AffHaut = true;
    EXPECT_NEAR(BoiteDe(Nervure()).haut_droite.y, 15, 1e-6);
}

} // namespace
} // namespace loftwing
