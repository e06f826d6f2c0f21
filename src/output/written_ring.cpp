#include "output/written_ring.h"

#include <algorithm>

namespace loftwing {

std::vector<PointEcrit> SansRepetition(std::vector<PointEcrit> points) {
    constexpr std::size_t kMoins = 3;
    points.erase(std::unique(points.begin(), points.end()), points.end());
    while (points.size() > 1 && points.back() == points.front()) {
        points.pop_back();
    }
    if (points.size() < kMoins) {
        points.clear();
    }
    return points;
}

} // namespace loftwing
