// Rings without concave corners, whose sums need no more than their edges in order.

#include "output/surface.h"

#include <algorithm>

namespace loftwing {

namespace {

/// Above 0 where the way from a by b to c turns left.
double Tourne(const PointMm &a, const PointMm &b, const PointMm &c) {
    return (b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y);
}

bool Avant(const PointMm &a, const PointMm &b) {
    return a.y != b.y ? a.y < b.y : a.x < b.x;
}

/// One side of an envelope: the points from the first on that keep it turning left.
template <class Iterator>
void AjouteCote(Iterator from, Iterator to, Anneau &ring) {
    const std::size_t first = ring.size();
    for (; from != to; ++from) {
        while (ring.size() >= first + 2 && Tourne(ring[ring.size() - 2], ring.back(), *from) <= 0) {
            ring.pop_back();
        }
        ring.push_back(*from);
    }
    ring.pop_back(); // the other side begins with it
}

/// The same ring from its lowest point on, so that its edges are in the order of their directions.
Anneau DepuisLeBas(Anneau ring) {
    std::rotate(ring.begin(), std::min_element(ring.begin(), ring.end(), Avant), ring.end());
    return ring;
}

} // namespace

Anneau Enveloppe(std::vector<PointMm> points) {
    std::sort(points.begin(), points.end(), Avant);
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (points.size() < 3) {
        return points;
    }
    Anneau ring;
    AjouteCote(points.begin(), points.end(), ring);
    AjouteCote(points.rbegin(), points.rend(), ring);
    return ring;
}

Anneau SommeConvexe(const Anneau &a, const Anneau &b) {
    if (a.empty() || b.empty()) {
        return {};
    }
    const Anneau one = DepuisLeBas(a);
    const Anneau other = DepuisLeBas(b);
    Anneau sum;
    sum.reserve(one.size() + other.size());
    std::size_t i = 0;
    std::size_t j = 0;
    const auto at = [](const Anneau &ring, std::size_t k) {
        return ring[k < ring.size() ? k : k - ring.size()];
    };
    while (i < one.size() || j < other.size()) {
        const PointMm p = at(one, i);
        const PointMm q = at(other, j);
        sum.push_back({p.x + q.x, p.y + q.y});
        const PointMm next_p = at(one, i + 1);
        const PointMm next_q = at(other, j + 1);
        const double turn =
            (next_p.x - p.x) * (next_q.y - q.y) - (next_q.x - q.x) * (next_p.y - p.y);
        const bool first = j >= other.size() || (i < one.size() && turn >= 0);
        const bool second = i >= one.size() || (j < other.size() && turn <= 0);
        i += first ? 1 : 0;
        j += second ? 1 : 0;
    }
    return sum;
}

} // namespace loftwing
