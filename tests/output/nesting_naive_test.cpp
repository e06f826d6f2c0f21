// Real pieces on sheets, held against distances from edge to edge.

#include "output/nesting.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {
namespace {

constexpr double kFar = std::numeric_limits<double>::max();
constexpr double kWritten = 1e-6; // mm, the digits of a coordinate

double Distance(const PointMm &point, const PointMm &a, const PointMm &b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? ((point.x - a.x) * dx + (point.y - a.y) * dy) / square : 0;
    const double part = std::clamp(along, 0.0, 1.0);
    return std::hypot(point.x - a.x - part * dx, point.y - a.y - part * dy);
}

bool Inside(const Anneau &ring, const PointMm &point) {
    bool inside = false;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PointMm &a = ring[i];
        const PointMm &b = ring[(i + 1) % ring.size()];
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside;
}

/// Rings that cross have a corner of one in the other or come within the length of an edge; so that
/// none of it passes, a ring with a corner inside the other one is at a negative distance.
double Distance(const Anneau &one, const Anneau &other) {
    double least = kFar;
    for (const PointMm &point : one) {
        if (Inside(other, point)) {
            return -1;
        }
        for (std::size_t i = 0; i < other.size(); ++i) {
            least = std::min(least, Distance(point, other[i], other[(i + 1) % other.size()]));
        }
    }
    return least;
}

double Distance(const Piece &one, const Piece &other) {
    double least = kFar;
    for (const PartiePiece &a : one.parties) {
        for (const PartiePiece &b : other.parties) {
            least = std::min({least, Distance(a.dehors, b.dehors), Distance(b.dehors, a.dehors)});
        }
    }
    return least;
}

bool FarApart(const Piece &one, const Piece &other, double gap) {
    const BoitePiece a = BoiteDe(one);
    const BoitePiece b = BoiteDe(other);
    return a.haut_droite.x + gap < b.bas_gauche.x || b.haut_droite.x + gap < a.bas_gauche.x ||
           a.haut_droite.y + gap < b.bas_gauche.y || b.haut_droite.y + gap < a.bas_gauche.y;
}

class NestingOfRibs : public testing::Test {
  protected:
    RibWorld world;

    void Add(std::vector<PieceNommee> &pieces, float chord) {
        world.rib.corde = chord;
        world.rib.cordeAfich = std::to_string(chord);
        const auto made = FaitPieces(world.rib, {}, {world.settings.Unite, world.messages});
        const auto *all = std::get_if<std::vector<Piece>>(&made);
        ASSERT_NE(all, nullptr);
        for (const Piece &piece : *all) {
            pieces.push_back({std::to_string(chord), piece});
        }
    }

    /// A cambered rib with open notches, stocks and holes.
    void Laden() {
        TakeAirfoil(world, Naca(4412, 60));
        RibModel &rib = world.rib;
        rib.EpCoffrage = 1.5F;
        rib.EpBA = 5;
        rib.EpBF = 12;
        rib.NbLongeron = 1;
        for (int slot = 0; slot < 2; ++slot) {
            Longeron &spar = rib.longeron[slot];
            spar.PosLongAfich = slot == 0 ? "30%" : "62%";
            spar.LargLong = slot == 0 ? 5.0F : 20.0F; // the second one is a wide pocket
            spar.HautLong = 3;
            spar.OptLongExt = 1;
        }
    }

    static void Check(const std::vector<PieceNommee> &pieces, const ReglageImbrication &wanted) {
        const auto made = Imbrique(pieces, wanted);
        const auto *sheets = std::get_if<Imbrication>(&made);
        ASSERT_NE(sheets, nullptr);
        std::vector<std::size_t> laid;
        for (const Planche &sheet : *sheets) {
            for (std::size_t i = 0; i < sheet.pieces.size(); ++i) {
                const Piece &piece = sheet.pieces[i].piece;
                laid.push_back(sheet.pieces[i].rang);
                EXPECT_NEAR(AirePiece(piece), AirePiece(pieces[laid.back()].piece), 1e-6);
                const BoitePiece box = BoiteDe(piece);
                EXPECT_GE(box.bas_gauche.x, wanted.marge - kWritten);
                EXPECT_GE(box.bas_gauche.y, wanted.marge - kWritten);
                EXPECT_LE(box.haut_droite.x, sheet.format.Longueur() - wanted.marge + kWritten);
                EXPECT_LE(box.haut_droite.y, sheet.format.Travers() - wanted.marge + kWritten);
                for (std::size_t k = 0; k < i; ++k) {
                    const Piece &other = sheet.pieces[k].piece;
                    if (!FarApart(piece, other, wanted.ecart)) {
                        EXPECT_GE(Distance(piece, other), wanted.ecart - kWritten);
                    }
                }
            }
        }
        std::sort(laid.begin(), laid.end());
        ASSERT_EQ(laid.size(), pieces.size());
        for (std::size_t i = 0; i < laid.size(); ++i) {
            EXPECT_EQ(laid[i], i);
        }
    }
};

TEST_F(NestingOfRibs, GapAndMarginHoldFromEdgeToEdge) {
    Laden();
    std::vector<PieceNommee> pieces;
    for (int i = 0; i < 10; ++i) {
        Add(pieces, 220.0F - 9.0F * static_cast<float>(i));
    }
    for (const bool turn : {false, true}) {
        for (const double gap : {0.0, 2.0}) {
            ReglageImbrication wanted;
            wanted.formats = {{80, 500}};
            wanted.ecart = gap;
            wanted.demi_tour = turn;
            Check(pieces, wanted);
        }
    }
}

TEST_F(NestingOfRibs, HeelsTemplatesAndBothWingsKeepThemToo) {
    Laden();
    std::vector<PieceNommee> pieces;
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.talon.TalonIntra = 25;
    world.rib.talon.TalonBAAfich = "20%";
    world.rib.talon.TalonBFAfich = "45%";
    Add(pieces, 200);
    Add(pieces, 170);
    const std::size_t heels = pieces.size();
    std::vector<PieceNommee> wings = EnCopies(pieces, 4, true);
    ASSERT_EQ(wings.size(), 4 * heels);
    ReglageImbrication wanted;
    wanted.formats = {{120, 600}, {100, 300}};
    wanted.ecart = 1.3;
    wanted.marge = 5;
    wanted.demi_tour = true;
    Check(wings, wanted);
}

} // namespace
} // namespace loftwing
