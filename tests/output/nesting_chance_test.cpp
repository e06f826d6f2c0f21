// Pieces of odd shapes by chance on sheets by chance.

#include "support/naive_sheets.h"
#include "support/one_locale.h"
#include "support/panel_by_chance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace loftwing {
namespace {

/// What a piece of few corners, which is laid without a trifle more than the gap, may miss of it.
constexpr double kOddDigits = 2e-5; // mm
constexpr unsigned kOddSheets = 60; // their numbers are the seeds

/// Shapes that no rib has: stars, slivers, combs, rings and single millimetres.
class OddPieces {
  public:
    explicit OddPieces(unsigned seed) : dice_(seed) {}

    std::vector<PieceNommee> Some(int count) {
        std::vector<PieceNommee> pieces;
        for (int i = 0; i < count; ++i) {
            Piece piece;
            piece.parties = {{Shape(), {}, {}}};
            if (dice_.OneIn(6)) { // a second part beside the first
                Anneau other = Star(8);
                for (PointMm &point : other) {
                    point.x += 75;
                }
                piece.parties.push_back({other, {}, {}});
            }
            pieces.push_back({"odd", piece});
        }
        return pieces;
    }

    ReglageImbrication Sheets() {
        ReglageImbrication wanted;
        wanted.formats = {{150, 400}};
        if (dice_.OneIn(2)) {
            wanted.formats.push_back({600, 130});
        }
        wanted.ecart = dice_.OneOf({0.0, 0.5, 2.0, 7.3});
        wanted.marge = dice_.OneOf({0.0, 3.0, 11.1});
        wanted.demi_tour = dice_.OneIn(2);
        return wanted;
    }
    int Copies() { return dice_.From(1, 3); }
    bool Mirrored() { return dice_.OneIn(2); }

  private:
    Dice dice_;

    double Mm(int least, int most) { return dice_.From(10 * least, 10 * most) / 10.0; }
    Anneau Star(double reach) {
        Anneau ring;
        const int corners = dice_.From(3, 14);
        for (int i = 0; i < corners; ++i) {
            const double angle = 2 * std::numbers::pi * i / corners;
            const double radius = reach * dice_.From(20, 100) / 100;
            ring.push_back({radius * std::cos(angle), radius * std::sin(angle)});
        }
        return ring;
    }
    Anneau Comb() {
        const double high = Mm(20, 60);
        const double low = Mm(3, 10);
        const double tooth = Mm(4, 9);
        const int teeth = dice_.From(2, 4);
        Anneau ring = {{0, 0}, {(2 * teeth - 1) * tooth, 0}};
        for (int i = teeth - 1; i >= 0; --i) {
            const double left = 2 * i * tooth;
            ring.push_back({left + tooth, high});
            ring.push_back({left, high});
            if (i > 0) {
                ring.push_back({left, low});
                ring.push_back({left - tooth, low});
            }
        }
        return ring;
    }
    Anneau Shape() {
        switch (dice_.Below(4)) {
        case 0:
            return Comb();
        case 1: { // a sliver that leans
            const double lean = Mm(-20, 20);
            const double length = Mm(20, 110);
            return {{0, 0}, {length, lean}, {length, lean + Mm(1, 4)}, {0, 2}};
        }
        case 2: {
            const double side = Mm(1, 30);
            return {{0, 0}, {side, 0}, {side, side / 2}, {0, side / 2}};
        }
        default:
            return Star(dice_.From(5, 50));
        }
    }
};

TEST(NestingByChance, OddPiecesNeverMeetAndKeepGapAndMargin) {
    for (unsigned seed = 0; seed < ManyInOneLocale(kOddSheets); ++seed) {
        SCOPED_TRACE("sheets by seed " + std::to_string(seed));
        OddPieces odd(seed);
        const ReglageImbrication wanted = odd.Sheets();
        const std::vector<PieceNommee> pieces = EnCopies(odd.Some(8), odd.Copies(), odd.Mirrored());
        const auto made = Imbrique(pieces, wanted);
        const auto *sheets = std::get_if<Imbrication>(&made);
        ASSERT_NE(sheets, nullptr);
        EXPECT_EQ(naive::SheetFault(*sheets, pieces, wanted, kOddDigits), "");
    }
}

/// The distance itself: bars that cross without a corner in each other, a square in a ring.
TEST(NestingByChance, WhatCrossesOrLiesInsideIsAtNoDistance) {
    const Anneau level = {{0, 10}, {100, 10}, {100, 12}, {0, 12}};
    const Anneau upright = {{50, 0}, {52, 0}, {52, 40}, {50, 40}};
    EXPECT_LT(naive::RingDistance(level, upright), 0);
    const Anneau beside = {{103, 16}, {110, 16}, {110, 20}};
    EXPECT_NEAR(naive::RingDistance(level, beside), 5, 1e-12);
    EXPECT_LT(naive::RingDistance({{60, 11}, {61, 11}, {61, 11.5}}, level), 0);
    EXPECT_EQ(naive::RingDistance(level, {{0, 12}, {5, 12}, {5, 20}}), 0);
}

} // namespace
} // namespace loftwing
