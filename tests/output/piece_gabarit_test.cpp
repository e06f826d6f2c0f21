#include "output/piece_fixture.h"

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

class PieceGabarit : public PieceTest {
  protected:
    PieceGabarit() { Template(30, 20, 25); }

    void Template(float below, float front, float rear) {
        rib.TypeGabarit = kGabaritMousse;
        rib.bloc.HTbasbloc = below;
        rib.bloc.BAbloc = front;
        rib.bloc.BFbloc = rear;
        rib.bloc.CoupeBF = 0;
        rib.bloc.Optquebf = 0;
    }
    std::vector<Piece> Both() {
        const auto made = Fait();
        const auto *pieces = std::get_if<std::vector<Piece>>(&made);
        if (pieces == nullptr || pieces->size() != 2) {
            ADD_FAILURE() << "not two templates";
            return std::vector<Piece>(2);
        }
        return *pieces;
    }
    void ExpectAreas(double upper, double lower) {
        const auto pieces = Both();
        EXPECT_NEAR(AirePiece(pieces[0]), upper, 1e-3);
        EXPECT_NEAR(AirePiece(pieces[1]), lower, 1e-3);
    }
    static const Anneau &Ring(const Piece &piece) { return piece.parties.at(0).dehors; }
    static bool HasPoint(const Piece &piece, const PointMm &wanted, double near = 1e-4) {
        return std::any_of(Ring(piece).begin(), Ring(piece).end(), [&](const PointMm &point) {
            return std::hypot(point.x - wanted.x, point.y - wanted.y) < near;
        });
    }
};

// Ramp of 20, plank of 100, ramp of 25 mm, 30 mm over the foot. The tail goes down to -10.
TEST_F(PieceGabarit, UpperAndLowerTemplateAreTheBlockBelowTheWire) {
    const auto pieces = Both();
    EXPECT_EQ(pieces[0].genre, GenrePiece::gabarit_extrados);
    EXPECT_EQ(pieces[1].genre, GenrePiece::gabarit_intrados);
    ExpectAreas(20 * 30 + 100 * 40 + 25 * (40 + 20) / 2.0, 20 * 30 + 100 * 20 + 25 * 20);
    const BoitePiece box = BoiteDe(pieces[0]);
    EXPECT_NEAR(box.bas_gauche.x, -20, 1e-6);
    EXPECT_NEAR(box.bas_gauche.y, -30, 1e-6);
    EXPECT_NEAR(box.haut_droite.x, 125, 1e-6);
    EXPECT_NEAR(box.haut_droite.y, 10, 1e-6);
}

TEST_F(PieceGabarit, TheTailGoesOnFromTheChosenSurface) {
    EXPECT_TRUE(HasPoint(Both()[0], {125, -10}));
    rib.bloc.Optquebf = 1;
    EXPECT_TRUE(HasPoint(Both()[0], {125, 10}));
    EXPECT_TRUE(HasPoint(Both()[1], {125, 10}));
    ExpectAreas(20 * 30 + 100 * 40 + 25 * 40, 20 * 30 + 100 * 20 + 25 * (20 + 40) / 2.0);
}

TEST_F(PieceGabarit, TheTailsHeightIsNotRoundedToStations) {
    Coin();
    rib.bloc.BFbloc = 24.9F; // 100.4 mm behind a station's place is none of the 401
    EXPECT_TRUE(HasPoint(Both()[0], {124.9, -4.98}));
}

TEST_F(PieceGabarit, ThePathFollowsTheInnerFaceOfTheSheeting) {
    rib.EpCoffrage = 2;
    rib.bloc.CoupeBF = 3;
    // The inner faces begin 2 mm behind the nose, at 8 and at -8 - 3 mm.
    ExpectAreas(20 * 30 + 2 * (30 + 38) / 2.0 + 98 * 38 + 25 * (38 + 20) / 2.0,
                20 * 30 + 2 * (30 + 19) / 2.0 + 98 * 19 + 25 * (19 + 20) / 2.0);
}

TEST_F(PieceGabarit, AnInnerFaceRunsOnToTheTrailingEdge) {
    Coin();
    rib.EpCoffrage = 2;
    const double across = 2 * std::sqrt(1.04); // upright, of 2 mm square to a slope of 1 in 5
    const auto pieces = Both();
    EXPECT_TRUE(HasPoint(pieces[0], {100, -across}));
    EXPECT_TRUE(HasPoint(pieces[1], {100, across}));
}

TEST_F(PieceGabarit, WhatThePathsLeaveIsTheBodyOfTheRib) {
    Coin();
    rib.EpCoffrage = 2;
    const auto pieces = Both();
    const double left = Aire(Moins({Ring(pieces[0])}, {Ring(pieces[1])}));
    const double across = 2 * std::sqrt(1.04);
    const double front =
        20 - 2 * 0.2 - across; // half of the body's front face, 2 mm behind the nose
    const double meet = (20 - across) / 0.2;
    // The ramp ends at the nose, from where both paths go to the front face: a triangle more.
    EXPECT_NEAR(left, front * (meet - 2) + front * 2, 1e-3);
    rib.TypeGabarit = 0;
    EXPECT_NEAR(left, Mm2() + front * 2, 1e-3);
}

TEST_F(PieceGabarit, WhatIsLeftAtTheTrailingEdgeLowersTheLowerPath) {
    Coin();
    rib.bloc.CoupeBF = 1;
    rib.bloc.Optquebf = 1;
    const auto pieces = Both();
    EXPECT_TRUE(HasPoint(pieces[0], {100, 0}));
    EXPECT_TRUE(HasPoint(pieces[1], {100, -1}));
    EXPECT_TRUE(HasPoint(pieces[1], {0, -21}));
    EXPECT_TRUE(HasPoint(pieces[1], {125, 5})); // the ramps end together
}

TEST_F(PieceGabarit, TheWireLowersThePathAndNotTheFoot) {
    demande.fil = 1;
    ExpectAreas(5350 - 145 * 0.5, 3100 - 145 * 0.5);
    EXPECT_NEAR(BoiteDe(Both()[0]).bas_gauche.y, -30, 1e-6);
}

TEST_F(PieceGabarit, TheWashoutTurnsTheFoot) {
    for (const double degrees : {7.0, -7.0}) {
        rib.vrillage = static_cast<float>(degrees);
        const double s = std::sin(degrees * std::acos(-1.0) / 180);
        const double c = std::cos(degrees * std::acos(-1.0) / 180);
        const PointMm front{-20 + 30 * s, -30 * c};
        const PointMm rear{front.x + 145 * c * c, front.y + 145 * c * s};
        const Anneau upper = {front, rear, {125, -10}, {100, 10}, {0, 10}, {0, 0}, {-20, 0}};
        const Piece piece = Both()[0];
        EXPECT_NEAR(AirePiece(piece), Aire(upper), 1e-3) << degrees;
        EXPECT_TRUE(HasPoint(piece, front)) << degrees;
        EXPECT_TRUE(HasPoint(piece, rear)) << degrees;
    }
}

TEST_F(PieceGabarit, AFootAboveThePathIsRefused) {
    rib.bloc.HTbasbloc = 5; // the lower surface lies 10 mm deep
    EXPECT_EQ(Refusee(), (RefusPiece{RefusDePiece::hors_bloc, 0}));
    rib.bloc.HTbasbloc = 10;
    EXPECT_EQ(Refusee().cause, RefusDePiece::hors_bloc);
    rib.bloc.HTbasbloc = 10.1F;
    EXPECT_NEAR(AirePiece(Both()[1]), 20 * 10.1 + 125 * 0.1, 1e-3);
}

TEST_F(PieceGabarit, AnEndThatLeansOverThePathIsRefused) {
    Template(60, 0, 25);
    rib.vrillage = 20; // the front end passes 3.6 mm behind the lower corner of the nose
    EXPECT_EQ(Refusee(), (RefusPiece{RefusDePiece::hors_bloc, 0}));
}

TEST_F(PieceGabarit, NoRampsMakeATemplateAsLongAsTheChord) {
    Template(30, 0, 0);
    ExpectAreas(100 * 40, 100 * 20);
}

TEST_F(PieceGabarit, SheetingThickerThanTheChordLeavesRampsOnly) {
    rib.EpCoffrage = 150;
    EXPECT_EQ(Ring(Both()[0]).size(), 5U); // foot, tail and the two ends of the ramp
}

TEST_F(PieceGabarit, StationsRunToTheFootAndAreNumberedThere) {
    rib.NbRep = 3;
    rib.texte.TailleFont = 9;
    const Piece lower = Both()[1];
    const auto lines = Traits(lower, GenreMarque::station);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_NEAR(Autour(lines[1].points).bas_gauche.y, -30, 1e-3);
    EXPECT_NEAR(Autour(lines[1].points).haut_droite.y, -10, 1e-3);
    ASSERT_EQ(lower.textes.size(), 5U);
    for (int i = 0; i < 5; ++i) {
        const TexteMarque &number = lower.textes[static_cast<std::size_t>(i)];
        EXPECT_EQ(number.texte, std::to_string(i));
        EXPECT_GT(number.place.x, 25 * i);
        EXPECT_LT(number.place.x, 25 * i + 2);
        EXPECT_LT(number.place.y, -30 + 6);
    }
    demande.stations = false;
    EXPECT_TRUE(Both()[1].textes.empty());
    EXPECT_TRUE(Traits(Both()[1], GenreMarque::station).empty());
}

TEST_F(PieceGabarit, EachTemplateSaysWhichItIs) {
    demande.etiquette = true;
    demande.texte = "root";
    demande.nom_extrados = "upper";
    demande.nom_intrados = "lower";
    rib.texte.TailleFont = 9;
    const auto pieces = Both();
    ASSERT_EQ(pieces[0].textes.size(), 1U);
    EXPECT_EQ(pieces[0].textes[0].texte, "root, upper");
    ASSERT_EQ(pieces[1].textes.size(), 1U);
    EXPECT_EQ(pieces[1].textes[0].texte, "root, lower");
}

TEST_F(PieceGabarit, UpsideDownIsAMirror) {
    rib.AffHaut = true;
    ExpectAreas(5350, 3100);
    const BoitePiece box = BoiteDe(Both()[0]);
    EXPECT_NEAR(box.bas_gauche.y, -10, 1e-6);
    EXPECT_NEAR(box.haut_droite.y, 30, 1e-6);
    EXPECT_GT(Aire(Ring(Both()[0])), 0);
}

TEST_F(PieceGabarit, TheKerfGoesAroundATemplateToo) {
    demande.saignee = 0.4;
    const BoitePiece box = BoiteDe(Both()[0]);
    EXPECT_NEAR(box.bas_gauche.x, -20.2, 1e-3);
    EXPECT_NEAR(box.bas_gauche.y, -30.2, 1e-3);
    EXPECT_NEAR(box.haut_droite.y, 10.2, 1e-3);
}

} // namespace
} // namespace loftwing
