// Areas of any numbers: what isn't finite or too far away is refused before the library that does
// the work sees it, everything else gives rings of finite numbers. Areas of a rib's size without
// concave corners add up: what two have in common and what they cover together, what is left of one
// and what was taken.

#include "fuzz_world.h"
#include "output/surface.h"

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

constexpr double kReach = 1000; // mm, of areas that must add up
constexpr int kCornersMaxi = 24;

/// A number of any size, or one within a rib's reach.
double Coordinate(Choices &choices, bool any) {
    if (any) {
        return choices.Number();
    }
    const unsigned high = choices.Byte();
    return (high * 256.0 + choices.Byte()) / 65536 * 2 * kReach - kReach;
}

Anneau Ring(Choices &choices, bool any) {
    Anneau ring;
    const int corners = choices.Below(kCornersMaxi);
    for (int i = 0; i < corners; ++i) {
        const double x = Coordinate(choices, any);
        ring.push_back({x, Coordinate(choices, any)});
    }
    return ring;
}

Surface Rings(Choices &choices, bool any) {
    Surface rings;
    const int count = 1 + choices.Below(4);
    for (int i = 0; i < count; ++i) {
        rings.push_back(Ring(choices, any));
    }
    return rings;
}

void CheckNumbers(const Surface &surface) {
    for (const Anneau &ring : surface) {
        Require(ring.size() > 2, "ring with an inside");
        for (const PointMm &point : ring) {
            Require(std::isfinite(point.x) && std::isfinite(point.y), "points of numbers");
        }
    }
}

Surface Hulls(const Surface &rings) {
    Surface hulls;
    for (const Anneau &ring : rings) {
        hulls.push_back(Enveloppe(ring));
    }
    return hulls;
}

/// Each corner is moved by up to half a step of the grid wherever two lines cross.
double Digits(const Surface &a, const Surface &b) {
    std::size_t corners = 0;
    for (const Surface *surface : {&a, &b}) {
        for (const Anneau &ring : *surface) {
            corners += ring.size();
        }
    }
    const auto count = static_cast<double>(corners);
    return 1e-3 * (1 + count * count / 16);
}

void CheckSums(const Surface &a, const Surface &b) {
    const double digits = Digits(a, b);
    const Surface both = Commun(a, b);
    const Surface either = Union(a, b);
    const Surface left = Moins(a, b);
    for (const Surface *surface : {&both, &either, &left}) {
        CheckNumbers(*surface);
        Require(Aire(*surface) > -digits, "area above 0");
    }
    const double sum = Aire(a) + Aire(b);
    Require(std::abs(Aire(both) + Aire(either) - sum) < digits, "both and either add up");
    Require(std::abs(Aire(left) + Aire(both) - Aire(a)) < digits, "left and taken add up");
    double parts = 0;
    for (const Surface &part : Morceaux(a)) {
        CheckNumbers(part);
        parts += Aire(part);
    }
    Require(std::abs(parts - Aire(a)) < digits, "parts add up");
}

void CheckMoves(const Surface &area, double mm) {
    const Surface grown = Deplace(area, std::abs(mm), Coins::ronds, 0.01);
    const Surface shrunk = Deplace(area, -std::abs(mm), Coins::vifs);
    CheckNumbers(grown);
    CheckNumbers(shrunk);
    const double digits = Digits(area, grown);
    Require(Aire(grown) > Aire(area) - digits, "grown");
    Require(Aire(shrunk) < Aire(area) + digits, "shrunk");
    CheckNumbers(Allege(area, 0.05));
    CheckNumbers(SansMiettes(area, 1));
}

void CheckLines(const Surface &area, const Ligne &line) {
    for (const Ligne &run : Dedans(line, area)) {
        Require(run.size() > 1, "run of a line");
        for (const PointMm &point : run) {
            Require(std::isfinite(point.x) && std::isfinite(point.y), "run of numbers");
        }
    }
    for (const PointMm &point : line) {
        Contient(area, point);
    }
    const Anneau hull = Enveloppe(PointsDe(area));
    Require(hull.size() < 3 || Aire(hull) >= 0, "hull that runs anticlockwise");
    if (hull.size() > 2) {
        Require(SommeConvexe(hull, hull).size() > 2, "sum of two hulls");
    }
}

void Work(Choices choices) {
    const bool any = choices.Byte() % 4 == 3;
    const double mm = choices.Byte() / 16.0;
    const Surface a = Rings(choices, any);
    const Surface b = Rings(choices, any);
    const Ligne line = Ring(choices, any);
    try {
        const Surface one = Impair(a);
        const Surface other = Rempli(b);
        CheckNumbers(one);
        CheckNumbers(other);
        if (any) {
            CheckNumbers(Union(a, b));
            CheckNumbers(Moins(a, b));
            CheckNumbers(Commun(a, b));
            CheckNumbers(Reste(one, b));
            CheckNumbers(Deplace(a, mm, Coins::ronds, 0.01));
            CheckNumbers(Deplace(one, choices.Number(), Coins::vifs));
            Morceaux(a);
        } else {
            CheckNumbers(Commun(one, other));
            CheckNumbers(Moins(one, other));
            const Surface plain = Rempli(Hulls(a));
            CheckSums(plain, Rempli(Hulls(b)));
            CheckMoves(plain, mm);
        }
        CheckLines(one, line);
    } catch (const Failure &failure) {
        Require(failure.number == kOverflow && any, "refused for its numbers only");
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::Work(loftwing::Choices(loftwing::BytesOf(data, size)));
    return 0;
}
