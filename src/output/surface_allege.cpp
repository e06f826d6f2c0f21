// Rings with fewer points, for questions that want no more than a look.

#include "output/surface.h"

#include <algorithm>
#include <utility>

namespace loftwing {

namespace {

/// Twice the area of the triangle of three points, squared, over the square of the first two's
/// distance: the square of the third one's distance from their line.
double Carre(const PointMm &a, const PointMm &b, const PointMm &c) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double px = c.x - a.x;
    const double py = c.y - a.y;
    if (square == 0) {
        return px * px + py * py;
    }
    const double twice = dx * py - dy * px;
    return twice * twice / square;
}

Anneau AllegeAnneau(const Anneau &ring, double ecart) {
    const std::size_t count = ring.size();
    if (count < 5) {
        return ring;
    }
    const auto by_x = [](const PointMm &a, const PointMm &b) { return a.x < b.x; };
    const auto [front, rear] = std::minmax_element(ring.begin(), ring.end(), by_x);
    std::vector<bool> kept(count, false);
    const auto first = static_cast<std::size_t>(front - ring.begin());
    const auto second = static_cast<std::size_t>(rear - ring.begin());
    kept[first] = kept[second] = true;
    // Runs between points that stay; an end beyond the last point means one of the next round.
    std::vector<std::pair<std::size_t, std::size_t>> runs = {
        {first, second < first ? second + count : second},
        {second, first < second ? first + count : first}};
    while (!runs.empty()) {
        const auto [from, to] = runs.back();
        runs.pop_back();
        double most = ecart * ecart;
        std::size_t farthest = from;
        for (std::size_t i = from + 1; i < to; ++i) {
            const double square = Carre(ring[from % count], ring[to % count], ring[i % count]);
            if (square > most) {
                most = square;
                farthest = i;
            }
        }
        if (farthest != from) {
            kept[farthest % count] = true;
            runs.emplace_back(from, farthest);
            runs.emplace_back(farthest, to);
        }
    }
    Anneau left;
    for (std::size_t i = 0; i < count; ++i) {
        if (kept[i]) {
            left.push_back(ring[i]);
        }
    }
    return left;
}

} // namespace

Surface Allege(const Surface &surface, double ecart) {
    Surface light;
    for (const Anneau &ring : surface) {
        const Anneau next = AllegeAnneau(ring, ecart);
        // Narrower than the tolerance a ring would vanish.
        light.push_back(next.size() > 2 ? next : ring);
    }
    return light;
}

} // namespace loftwing
