#include "output/written_ring.h"

namespace loftwing {

std::vector<PointEcrit> SansRepetition(const std::vector<PointEcrit> &points) {
    constexpr std::size_t kMoins = 3;
    std::vector<PointEcrit> kept;
    for (const PointEcrit &point : points) {
        if (kept.empty() || point != kept.back()) {
            kept.push_back(point);
        }
    }
    while (kept.size() > 1 && kept.back() == kept.front()) {
        kept.pop_back();
    }
    return kept.size() < kMoins ? std::vector<PointEcrit>() : kept;
}

} // namespace loftwing
