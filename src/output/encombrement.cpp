#include "output/encombrement.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

constexpr double kPoche = 4;        // mm, half the width of a pocket that is as good as full
constexpr double kAllege = 0.02;    // mm, what the outline's simplification may take away
constexpr double kArrondi = 0.01;   // mm, what the arcs of its offset may
constexpr double kEnPlus = 0.002;   // mm, more than all that rounding takes
constexpr double kMiette = 1e-5;    // mm2, area of what rounding leaves between equal lines
constexpr double kCreux = 0.15;     // mm, depth of a hollow that is as good as full
constexpr std::size_t kSimple = 16; // corners of a piece that is taken as it is
constexpr int kCoupes = 7;          // how often one part is cut again
constexpr std::size_t kParties = 48;

/// The outlines alone.
Surface SansTrous(const Surface &surface) {
    Surface outlines;
    std::copy_if(surface.begin(), surface.end(), std::back_inserter(outlines),
                 [](const Anneau &ring) { return Aire(ring) > 0; });
    return outlines;
}

Surface Contours(const Piece &piece) {
    std::vector<Anneau> rings;
    for (const PartiePiece &partie : piece.parties) {
        rings.push_back(partie.dehors);
    }
    return SansTrous(Rempli(rings));
}

std::size_t Sommets(const Surface &surface) {
    std::size_t count = 0;
    for (const Anneau &ring : surface) {
        count += ring.size();
    }
    return count;
}

/// The outlines grown by half the gap and a trifle, with few corners. The simplification promises
/// less than is needed where an outline turns back sharply; so what comes is held against what must
/// be covered, and one that lacks some of it is taken with all its hollows filled.
Surface Grandie(const Surface &wood, double half) {
    if (Sommets(wood) <= kSimple) {
        return half > 0 ? SansTrous(Deplace(wood, half, Coins::vifs)) : wood;
    }
    const double more = half + kAllege + kArrondi + kEnPlus;
    const Surface wide = SansTrous(Deplace(wood, more + kPoche, Coins::vifs));
    const Surface closed = SansTrous(Deplace(wide, -kPoche, Coins::ronds, kArrondi));
    Surface light = SansTrous(Rempli(Allege(closed, kAllege)));
    const Surface wanted = Deplace(wood, half + kEnPlus, Coins::ronds, kEnPlus / 4);
    if (SansMiettes(Moins(wanted, light), kMiette).empty()) {
        return light;
    }
    return {Enveloppe(PointsDe(Deplace(wood, half + kEnPlus, Coins::vifs)))};
}

double EcartDeLaDroite(const PointMm &a, const PointMm &b, const PointMm &point) {
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    return length > 0
               ? std::abs((b.x - a.x) * (point.y - a.y) - (b.y - a.y) * (point.x - a.x)) / length
               : std::hypot(point.x - a.x, point.y - a.y);
}

struct Creux {
    PointMm fond;
    double profondeur = 0;
};

/// The deepest corner of a ring below the edges of its envelope.
Creux PlusCreux(const Anneau &ring, const Anneau &envelope) {
    const auto on_it = [&](const PointMm &point) {
        return std::find(envelope.begin(), envelope.end(), point) != envelope.end();
    };
    const auto first =
        static_cast<std::size_t>(std::find_if(ring.begin(), ring.end(), on_it) - ring.begin());
    Creux deepest;
    std::size_t from = first;
    for (std::size_t i = first + 1; i <= first + ring.size(); ++i) {
        if (!on_it(ring[i % ring.size()])) {
            continue;
        }
        for (std::size_t k = from + 1; k < i; ++k) {
            const PointMm &point = ring[k % ring.size()];
            const double depth =
                EcartDeLaDroite(ring[from % ring.size()], ring[i % ring.size()], point);
            if (depth > deepest.profondeur) {
                deepest = {point, depth};
            }
        }
        from = i;
    }
    return deepest;
}

/// A ring on either side of an upright or level line through a point.
Surface Coupee(const Anneau &ring, const PointMm &at, bool upright) {
    constexpr double kLoin = 1e5;
    const double x = upright ? at.x : kLoin;
    const double y = upright ? kLoin : at.y;
    const Anneau before = {{-kLoin, -kLoin}, {x, -kLoin}, {x, y}, {-kLoin, y}};
    Surface halves = Commun({ring}, {before});
    const Surface behind = Moins({ring}, {before});
    halves.insert(halves.end(), behind.begin(), behind.end());
    return SansTrous(halves);
}

/// Cuts a ring where it is hollow until envelopes are near enough.
void EnConvexes(const Anneau &ring, int cuts, std::vector<Anneau> &parts) {
    Anneau envelope = Enveloppe(ring);
    if (envelope.size() < 3) {
        return;
    }
    const Creux hollow = PlusCreux(ring, envelope);
    if (hollow.profondeur > kCreux && cuts > 0) {
        for (const bool upright : {true, false}) {
            const Surface halves = Coupee(ring, hollow.fond, upright);
            if (halves.size() > 1) {
                for (const Anneau &half : halves) {
                    EnConvexes(half, cuts - 1, parts);
                }
                return;
            }
        }
    }
    parts.push_back(std::move(envelope));
}

} // namespace

Encombrement EncombrementDe(const Piece &piece, double ecart) {
    Encombrement taken;
    taken.boite = BoiteDe(piece);
    for (const Anneau &ring : Grandie(Contours(piece), ecart / 2)) {
        std::vector<Anneau> parts;
        EnConvexes(ring, kCoupes, parts);
        if (parts.size() > kParties) {
            parts = {Enveloppe(ring)};
        }
        taken.parties.insert(taken.parties.end(), parts.begin(), parts.end());
    }
    return taken;
}

Encombrement DemiTour(const Encombrement &encombrement) {
    Encombrement turned = encombrement;
    for (Anneau &ring : turned.parties) {
        for (PointMm &point : ring) {
            point = {-point.x, -point.y};
        }
    }
    const BoitePiece &box = encombrement.boite;
    turned.boite = {{-box.haut_droite.x, -box.haut_droite.y},
                    {-box.bas_gauche.x, -box.bas_gauche.y}};
    return turned;
}

Surface Interdit(const Encombrement &fixe, const Encombrement &mobile) {
    const Encombrement turned = DemiTour(mobile);
    std::vector<Anneau> sums;
    for (const Anneau &one : fixe.parties) {
        for (const Anneau &other : turned.parties) {
            sums.push_back(SommeConvexe(one, other));
        }
    }
    return sums.size() > 1 ? Rempli(sums) : sums;
}

} // namespace loftwing
