/// Rings as a file writes them.
#pragma once

#include "output/surface.h"

#include <string>
#include <utility>
#include <vector>

namespace loftwing {

/// A point with the digits that stand in the file. It is put into digits once, so that lines that
/// meet there meet to the last digit.
struct PointEcrit {
    std::string x;
    std::string y;

    bool operator==(const PointEcrit &) const = default;
};

/// Leaves out points that are written like the one before, the last one's next being the first.
/// Nothing is left of a ring without three points that differ: it encloses nothing.
std::vector<PointEcrit> SansRepetition(std::vector<PointEcrit> points);

/// A ring by way of `ecrit`, which makes the PointEcrit of a PointMm.
template <class Ecrit>
std::vector<PointEcrit> AnneauEcrit(const Anneau &anneau, Ecrit ecrit) {
    std::vector<PointEcrit> points;
    points.reserve(anneau.size());
    for (const PointMm &point : anneau) {
        points.push_back(ecrit(point));
    }
    return SansRepetition(std::move(points));
}

} // namespace loftwing
