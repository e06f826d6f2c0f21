#include "output/nesting.h"

#include "output/piece_place.h"
#include "support/hand_pieces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace loftwing {
namespace {

constexpr double kClose = 1e-4; // what the exact fits below may miss

Piece Board(double length, double height) {
    Piece piece;
    piece.parties = {{{{0, 0}, {length, 0}, {length, height}, {0, height}}, {}, {}}};
    return piece;
}

std::vector<PieceNommee> Boards(std::size_t count, double length, double height) {
    return {count, PieceNommee{"board", Board(length, height)}};
}

ReglageImbrication On(const std::vector<FormatPlanche> &formats) {
    ReglageImbrication wanted;
    wanted.formats = formats;
    return wanted;
}

Imbrication Nested(const std::vector<PieceNommee> &pieces, const ReglageImbrication &wanted) {
    const auto made = Imbrique(pieces, wanted);
    const auto *sheets = std::get_if<Imbrication>(&made);
    EXPECT_NE(sheets, nullptr);
    return sheets == nullptr ? Imbrication() : *sheets;
}

RefusPlanche NotNested(const std::vector<PieceNommee> &pieces, const ReglageImbrication &wanted) {
    const auto made = Imbrique(pieces, wanted);
    const auto *refusal = std::get_if<RefusPlanche>(&made);
    EXPECT_NE(refusal, nullptr);
    return refusal == nullptr ? RefusPlanche{} : *refusal;
}

void ExpectBox(const Piece &piece, double left, double low, double right, double high) {
    const BoitePiece box = BoiteDe(piece);
    EXPECT_NEAR(box.bas_gauche.x, left, kClose);
    EXPECT_NEAR(box.bas_gauche.y, low, kClose);
    EXPECT_NEAR(box.haut_droite.x, right, kClose);
    EXPECT_NEAR(box.haut_droite.y, high, kClose);
}

TEST(Nesting, SquaresStandOverEachOtherThenBesideEachOther) {
    const Imbrication sheets = Nested(Boards(5, 46, 46), On({{100, 100}}));
    ASSERT_EQ(sheets.size(), 2U);
    ASSERT_EQ(sheets[0].pieces.size(), 4U);
    ExpectBox(sheets[0].pieces[0].piece, 3, 3, 49, 49);
    ExpectBox(sheets[0].pieces[1].piece, 3, 51, 49, 97);
    ExpectBox(sheets[0].pieces[2].piece, 51, 3, 97, 49);
    ExpectBox(sheets[0].pieces[3].piece, 51, 51, 97, 97);
    ASSERT_EQ(sheets[1].pieces.size(), 1U);
    EXPECT_EQ(sheets[1].pieces[0].rang, 4U);
    // A tenth more and no two of them have room over or beside each other.
    EXPECT_EQ(Nested(Boards(5, 46.1, 46.1), On({{100, 100}})).size(), 5U);
}

TEST(Nesting, GapAndMarginAreThoseThatAreAskedFor) {
    ReglageImbrication wanted = On({{100, 100}});
    wanted.ecart = 5;
    wanted.marge = 4;
    const Imbrication sheets = Nested(Boards(2, 90, 20), wanted);
    ASSERT_EQ(sheets.size(), 1U);
    ExpectBox(sheets[0].pieces[0].piece, 4, 4, 94, 24);
    ExpectBox(sheets[0].pieces[1].piece, 4, 29, 94, 49);
    wanted.ecart = 0;
    wanted.marge = 0;
    const Imbrication close = Nested(Boards(4, 50, 50), wanted);
    ASSERT_EQ(close.size(), 1U);
    ExpectBox(close[0].pieces[3].piece, 50, 50, 100, 100);
}

TEST(Nesting, TheLargestPieceIsLaidFirst) {
    std::vector<PieceNommee> pieces = Boards(1, 20, 10);
    pieces.push_back({"long", Board(80, 10)});
    const Imbrication sheets = Nested(pieces, On({{100, 100}}));
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_EQ(sheets[0].pieces[0].rang, 0U); // told in the order that was given
    ExpectBox(sheets[0].pieces[0].piece, 3, 15, 23, 25);
    ExpectBox(sheets[0].pieces[1].piece, 3, 3, 83, 13);
}

TEST(Nesting, TheGrainRunsAlongTheLongerSideHoweverTheSheetIsNamed) {
    for (const FormatPlanche &format : {FormatPlanche{50, 200}, FormatPlanche{200, 50}}) {
        const Imbrication sheets = Nested(Boards(1, 190, 40), On({format}));
        ASSERT_EQ(sheets.size(), 1U);
        EXPECT_EQ(sheets[0].format, format);
        ExpectBox(sheets[0].pieces[0].piece, 3, 3, 193, 43);
        EXPECT_EQ(NotNested(Boards(1, 40, 190), On({format})).cause, RefusDePlanche::trop_grande);
    }
}

/// Two right triangles of 80 by 36 mm whose long sides face each other, 2 mm apart, are
/// 80 + 2 / sin(atan(36 / 80)) = 84.87 mm long together.
TEST(Nesting, TwoTrianglesShareASheetWhereOneMayBeTurned) {
    Piece triangle;
    triangle.parties = {{{{0, 0}, {80, 0}, {0, 36}}, {}, {}}};
    const std::vector<PieceNommee> pieces(2, {"triangle", triangle});
    ReglageImbrication wanted = On({{100, 42}});
    EXPECT_EQ(Nested(pieces, wanted).size(), 2U);
    wanted.demi_tour = true;
    const Imbrication sheets = Nested(pieces, wanted);
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_NE(sheets[0].pieces[0].tournee, sheets[0].pieces[1].tournee);
    EXPECT_NEAR(sheets[0].longueur, 80 + 2 / std::sin(std::atan2(36, 80)) + 6, 0.001);
}

TEST(Nesting, AWidePocketIsRoom) {
    Piece yoke;
    yoke.parties = {
        {{{0, 0}, {60, 0}, {60, 40}, {45, 40}, {45, 10}, {15, 10}, {15, 40}, {0, 40}}, {}, {}}};
    const std::vector<PieceNommee> pieces = {{"yoke", yoke}, {"board", Board(20, 20)}};
    const Imbrication sheets = Nested(pieces, On({{66, 46}}));
    ASSERT_EQ(sheets.size(), 1U);
    ExpectBox(sheets[0].pieces[1].piece, 20, 15, 40, 35); // 2 mm from the yoke's left leg and foot
}

TEST(Nesting, PartsOfAPieceStayTogetherAndNothingLiesInItsHoles) {
    Piece split = Board(30, 40);
    split.parties[0].dedans = {{{5, 5}, {5, 35}, {25, 35}, {25, 5}}};
    split.parties.push_back({{{50, 0}, {80, 0}, {80, 40}, {50, 40}}, {}, {}});
    const Imbrication sheets =
        Nested({{"split", split}, {"small", Board(10, 10)}}, On({{200, 46}}));
    ASSERT_EQ(sheets.size(), 1U);
    const Piece &laid = sheets[0].pieces[0].piece;
    ASSERT_EQ(laid.parties.size(), 2U);
    EXPECT_NEAR(laid.parties[1].dehors[0].x - laid.parties[0].dehors[0].x, 50, 1e-9);
    ExpectBox(sheets[0].pieces[1].piece, 35, 3, 45, 13); // between the two
}

TEST(Nesting, APieceTooLargeForEverySheetIsRefusedByName) {
    std::vector<PieceNommee> pieces = Boards(1, 94, 40);
    EXPECT_EQ(Nested(pieces, On({{100, 50}})).size(), 1U); // to the last tenth
    pieces.push_back({"long one", Board(94.1, 40)});
    const RefusPlanche refusal = NotNested(pieces, On({{100, 50}, {80, 80}}));
    EXPECT_EQ(refusal.cause, RefusDePlanche::trop_grande);
    EXPECT_EQ(refusal.nom, "long one");
    EXPECT_DOUBLE_EQ(refusal.longueur, 94.1);
    EXPECT_DOUBLE_EQ(refusal.hauteur, 40);
    EXPECT_EQ(NotNested({{"high one", Board(94, 44.1)}}, On({{100, 50}})).nom, "high one");
}

TEST(Nesting, SheetsThatCannotBeAreRefused) {
    EXPECT_EQ(NotNested(Boards(1, 1, 1), On({})).cause, RefusDePlanche::sans_format);
    EXPECT_EQ(NotNested(Boards(1, 1, 1), On({{100, 0}})).cause, RefusDePlanche::sans_format);
    EXPECT_EQ(NotNested(Boards(1, 1, 1), On({{kPlancheMaxi + 1, 100}})).cause,
              RefusDePlanche::sans_format);
    EXPECT_EQ(NotNested(Boards(kPiecesMaxi + 1, 1, 1), On({{100, 100}})).cause,
              RefusDePlanche::trop_de_pieces);
    EXPECT_TRUE(Nested({}, On({{100, 100}})).empty());
}

/// 194 by 94 mm hold two boards of 90 by 40 mm beside and over each other.
TEST(Nesting, ThePieceGoesToTheFirstSizeAndTheLastSheetIsTheSmallest) {
    const FormatPlanche large{100, 200};
    const FormatPlanche small{100, 50};
    const Imbrication five = Nested(Boards(5, 90, 40), On({large, small}));
    ASSERT_EQ(five.size(), 2U);
    EXPECT_EQ(five[0].format, large);
    EXPECT_EQ(five[0].pieces.size(), 4U);
    EXPECT_EQ(five[1].format, small);
    EXPECT_EQ(five[1].pieces.size(), 1U);
    const Imbrication six = Nested(Boards(6, 90, 40), On({large, small}));
    ASSERT_EQ(six.size(), 2U);
    EXPECT_EQ(six[1].format, large); // two don't fit on the small one
    const Imbrication other = Nested({{"long", Board(150, 40)}}, On({small, large}));
    ASSERT_EQ(other.size(), 1U);
    EXPECT_EQ(other[0].format, large);
}

TEST(Nesting, UseCountsTheLastSheetAsFarAsItIsUsed) {
    const Imbrication sheets = Nested(Boards(2, 90, 40), On({{100, 50}}));
    ASSERT_EQ(sheets.size(), 2U);
    EXPECT_DOUBLE_EQ(sheets[0].longueur, 100);
    EXPECT_NEAR(sheets[0].Taux(), 100 * 3600.0 / 5000, 1e-3);
    EXPECT_NEAR(sheets[1].longueur, 96, kClose);
    EXPECT_NEAR(sheets[1].Taux(), 100 * 3600.0 / (96 * 50), 1e-3);
    // A hole of 20 by 30 mm is no wood.
    Piece frame = Board(90, 40);
    frame.parties[0].dedans = {{{5, 5}, {5, 35}, {25, 35}, {25, 5}}};
    EXPECT_NEAR(Nested({{"frame", frame}}, On({{100, 50}}))[0].aire, 3000, 1e-6);
}

TEST(Nesting, EverySecondCopyIsThatOfTheOtherWing) {
    const std::vector<PieceNommee> pieces = {{"a", Planchette()}, {"b", Board(20, 10)}};
    const auto plain = EnCopies(pieces, 2, false);
    ASSERT_EQ(plain.size(), 4U);
    EXPECT_EQ(plain[2].nom, "a");
    EXPECT_EQ(plain[2].piece.parties[0].dehors, pieces[0].piece.parties[0].dehors);
    const auto wings = EnCopies(pieces, 3, true);
    ASSERT_EQ(wings.size(), 6U);
    EXPECT_EQ(wings[4].piece.textes[0].place, pieces[0].piece.textes[0].place);
    const BoitePiece below = BoiteDe(wings[3].piece);
    EXPECT_EQ(below.bas_gauche.y, -10);
    EXPECT_EQ(below.haut_droite.y, 0);
    EXPECT_GT(Aire(wings[3].piece.parties[0].dehors), 0);
}

TEST(Nesting, WorkCanBeFollowedAndCalledOff) {
    ReglageImbrication wanted = On({{100, 100}});
    std::vector<double> parts;
    wanted.avance = [&](double part) {
        parts.push_back(part);
        return true;
    };
    Nested(Boards(4, 46, 46), wanted);
    EXPECT_EQ(parts, (std::vector<double>{0, 0.25, 0.5, 0.75})); // all measures order them alike
    wanted.avance = [](double part) { return part < 0.5; };
    EXPECT_EQ(NotNested(Boards(4, 46, 46), wanted).cause, RefusDePlanche::abandonnee);
}

/// The words of the board are five letters 2.864 mm high on the line from 12,-5 and take that much
/// along it each; below it they reach by three tenths of their height.
TEST(PiecePlace, ATurnedPieceKeepsItsWordsReadableOnTheSameWood) {
    const double high = 2.864;
    const Piece turned = DemiTour(Planchette());
    const TexteMarque &words = turned.textes[0];
    EXPECT_NEAR(words.place.x, -12 - 5 * high, 1e-9);
    EXPECT_NEAR(words.place.y - 0.3 * high, 5 - high, 1e-9);
    EXPECT_EQ(words.hauteur, high);
    EXPECT_GT(Aire(turned.parties[0].dehors), 0);
    EXPECT_LT(Aire(turned.parties[0].dedans[0]), 0);
    EXPECT_EQ(turned.parties[0].cercles[0].centre.x, -25);
    EXPECT_EQ(turned.traits[0].points[1].x, -40);
    EXPECT_NEAR(AirePiece(turned), AirePiece(Planchette()), 1e-9);
    const Piece twice = DemiTour(turned);
    EXPECT_NEAR(twice.textes[0].place.x, 12, 1e-9);
    EXPECT_NEAR(twice.textes[0].place.y, -5, 1e-9);
}

TEST(PiecePlace, TheOtherWingsPieceIsMirroredAndItsWordsAreNot) {
    const Piece other = Opposee(Planchette());
    EXPECT_EQ(other.textes[0].place.x, 12);
    EXPECT_NEAR(other.textes[0].place.y - 0.3 * 2.864, 5 - 2.864, 1e-9);
    EXPECT_GT(Aire(other.parties[0].dehors), 0);
}

TEST(PiecePlace, EverythingOfAPieceMoves) {
    const Piece moved = Deplacee(Planchette(), {100, 50});
    EXPECT_EQ(moved.parties[0].dehors[0], (PointMm{100, 40}));
    EXPECT_EQ(moved.parties[0].dedans[0][0], (PointMm{105, 48}));
    EXPECT_EQ(moved.parties[0].cercles[0].centre, (PointMm{125, 50}));
    EXPECT_EQ(moved.traits[0].points[0], (PointMm{100, 50}));
    EXPECT_EQ(moved.textes[0].place, (PointMm{112, 45}));
}

} // namespace
} // namespace loftwing
