// Pieces of real airfoils against the rules taken point by point, and their rings looked at one
// line after the other.

#include "output/piece_fixture.h"
#include "support/naive_piece.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace loftwing {
namespace {

constexpr double kSoNear = 0.02; // mm from an edge where the two computations may differ

/// Whether two lines cross, or touch elsewhere than at their ends.
bool SeCroisentEnPlein(const PointMm &a, const PointMm &b, const PointMm &c, const PointMm &d) {
    const auto side = [](const PointMm &p, const PointMm &q, const PointMm &r) {
        return (q.x - p.x) * (r.y - p.y) - (r.x - p.x) * (q.y - p.y);
    };
    const double tiny = 1e-12;
    const double c1 = side(a, b, c);
    const double c2 = side(a, b, d);
    const double c3 = side(c, d, a);
    const double c4 = side(c, d, b);
    return ((c1 > tiny && c2 < -tiny) || (c1 < -tiny && c2 > tiny)) &&
           ((c3 > tiny && c4 < -tiny) || (c3 < -tiny && c4 > tiny));
}

struct Bord {
    PointMm a, b;
};

/// Lines that cross others of the rings, each pair once.
int Croisements(const std::vector<Anneau> &rings) {
    std::vector<Bord> edges;
    for (const Anneau &ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const PointMm &p = ring[i];
            const PointMm &q = ring[(i + 1) % ring.size()];
            edges.push_back(p.x < q.x ? Bord{p, q} : Bord{q, p});
        }
    }
    std::sort(edges.begin(), edges.end(),
              [](const Bord &l, const Bord &r) { return l.a.x < r.a.x; });
    int count = 0;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (std::size_t j = i + 1; j < edges.size() && edges[j].a.x <= edges[i].b.x; ++j) {
            count += SeCroisentEnPlein(edges[i].a, edges[i].b, edges[j].a, edges[j].b) ? 1 : 0;
        }
    }
    return count;
}

/// Whether a contour crosses itself elsewhere than at its trailing edge: there the second
/// computation, which takes it as it is, knows nothing of a largest part.
bool SeCroiseDevant(const RibModel &rib) {
    Anneau ring;
    for (int i = 1; i <= rib.NbContour; ++i) {
        if (rib.ContourX(i) < 0.93) {
            ring.push_back({rib.ContourX(i), rib.ContourY(i)});
        }
    }
    return Croisements({ring}) > 0;
}

class PieceSecond : public PieceTest {
  protected:
    PieceSecond() {
        rib.corde = 200;
        rib.cordeAfich = "200";
    }

    /// Something of everything; `variant` turns this and that the other way.
    void AllOn(int variant) {
        rib.EpCoffrage = variant % 5 == 4 ? 0.0F : 1.5F;
        rib.EpBF = 12;
        rib.TypeBA = variant % 2 == 0 ? 1 : 0;
        rib.EpBA = 6;
        rib.carre.CarreBA = 4;
        rib.carre.CarreBAX = 4;
        rib.carre.CarreBAY = 0.5F;
        AddSpars();
        AddHoles();
        Heel(32, "40%", "30");
        rib.vrillage = static_cast<float>(variant % 3 - 1) * 2.5F;
        rib.talon.OptTalon = variant % 4 == 3 ? 1 : 0;
        rib.talon.TalonExtra = -35;
    }
    void AddSpars() {
        Longeron &along = Spar("14%", 5, 3, 0);
        along.OptLongExt = 1;
        along.OptLongInt = 2;
        Longeron &square = Spar("60", 6, 3, 1);
        square.OptLongExt = 2;
        square.OptLongInt = 1;
        Longeron &round = Spar("86", 3, 0, 2);
        round.OptLongExt = 1;
        round.OptLongInt = 2;
        round.DistLong = 1;
        Longeron &deep = Spar("128", 4, 2, 3);
        deep.OptLongExt = 2;
        deep.OptLongInt = 2;
        deep.DistLong = 2;
        Spar("150", 4, 2, 0).OptLongInt = 1;
    }
    void AddHoles() {
        Hole("44", 9).ChkCentre = 1;
        Hole("74", 8, 6).ChkCentre = 1;
        Hole("100", 6).DecalTrou = 2;
        Trou &open = Hole("112", 8, 3);
        open.ChkCentre = 1;
        open.DecalTrou = 12;
        Hole("160", 2).ChkCentre = 1;
    }

    static bool InWood(const Piece &piece, const PointMm &at) {
        return std::any_of(piece.parties.begin(), piece.parties.end(), [&](const PartiePiece &p) {
            const bool hole =
                std::any_of(p.cercles.begin(), p.cercles.end(), [&](const CerclePiece &circle) {
                    return std::hypot(at.x - circle.centre.x, at.y - circle.centre.y) <
                           circle.rayon;
                });
            return !hole && Contient({p.dehors}, at) && !Contient(p.dedans, at);
        });
    }
    /// Whether wood begins or ends within reach of a point, by the first computation.
    static bool AtEdge(const Piece &piece, const PointMm &at) {
        const bool here = InWood(piece, at);
        for (int i = 0; i < 32; ++i) {
            const double angle = 2 * std::acos(-1.0) * i / 32;
            if (InWood(piece, {at.x + kSoNear * std::cos(angle),
                               at.y + kSoNear * std::sin(angle)}) != here) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(PieceSecond, TheRulesPointByPointGiveTheSameWood) {
    int variant = 0;
    for (const std::string &file : AirfoilFiles()) {
        rib.Partie<Ajouts>() = {};
        rib.Partie<Vue>() = {};
        if (!TakeAirfoilFile(world, file) || SeCroiseDevant(rib)) {
            continue;
        }
        AllOn(variant++);
        const auto made = Fait();
        if (std::holds_alternative<RefusPiece>(made)) {
            continue; // thin ones have no body where a spar stands
        }
        const Piece &piece = std::get<std::vector<Piece>>(made).front();
        const naive::NaivePiece second(rib);
        std::mt19937 random(1);
        std::uniform_real_distribution<double> along(-5, 205);
        std::uniform_real_distribution<double> up(-50, 50);
        for (int i = 0; i < 200; ++i) {
            const PointMm at{along(random), up(random) / (i % 2 == 0 ? 1 : 3)};
            if (InWood(piece, at) != second.Wood(at.x, at.y) && !AtEdge(piece, at)) {
                ADD_FAILURE() << file << ": " << at.x << ", " << at.y;
                break;
            }
        }
    }
    EXPECT_GE(variant, 20);
}

TEST_F(PieceSecond, ItsAreaIsThatOfItsColumns) {
    for (const int variant : {0, 3}) {
        rib.Partie<Ajouts>() = {};
        TakeAirfoil(world, Naca(variant % 2 == 0 ? 4415 : 18, 60, true));
        AllOn(variant);
        rib.EpCoffrage = 0;
        const Piece piece = Nervure();
        const naive::NaivePiece second(rib);
        // All sides of notches and holes stand at whole hundredths.
        double sum = 0;
        for (int i = -100; i < 20100; ++i) {
            sum += second.WoodOver((i + 0.5) / 100) / 100;
        }
        EXPECT_NEAR(AirePiece(piece), sum, 0.05) << variant;
    }
}

void ExpectSound(const Piece &piece, const std::string &file) {
    std::vector<Anneau> rings;
    for (const PartiePiece &part : piece.parties) {
        EXPECT_GT(Aire(part.dehors), 0.0099) << file;
        rings.push_back(part.dehors);
        for (const Anneau &hole : part.dedans) {
            EXPECT_LT(Aire(hole), -0.0099) << file;
            const PointMm middle{(hole[0].x + hole[1].x) / 2, (hole[0].y + hole[1].y) / 2};
            EXPECT_TRUE(Contient({part.dehors}, middle)) << file;
            rings.push_back(hole);
        }
        for (const CerclePiece &circle : part.cercles) {
            rings.push_back(AnneauRond(circle.centre, circle.rayon));
            EXPECT_TRUE(Contient({part.dehors}, circle.centre)) << file;
        }
    }
    for (const Anneau &ring : rings) {
        EXPECT_GE(ring.size(), 3U) << file;
        EXPECT_EQ(std::adjacent_find(ring.begin(), ring.end()), ring.end()) << file;
    }
    EXPECT_EQ(Croisements(rings), 0) << file;
}

TEST_F(PieceSecond, RingsAreSoundWhateverTheAirfoil) {
    int variant = 0;
    int made_of = 0;
    for (const std::string &file : AirfoilFiles()) {
        rib.Partie<Ajouts>() = {};
        if (!TakeAirfoilFile(world, file)) {
            continue;
        }
        ++variant;
        for (const bool loaded : {false, true}) {
            if (loaded) {
                AllOn(variant);
            }
            demande.saignee = variant % 2 == 0 ? 0.2 : 0;
            const auto made = Fait();
            if (const auto *pieces = std::get_if<std::vector<Piece>>(&made)) {
                ExpectSound(pieces->front(), file);
                ++made_of;
            }
        }
    }
    EXPECT_GE(made_of, variant);
}

} // namespace
} // namespace loftwing
