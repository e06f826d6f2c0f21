/// The sheeting of the naive wing, unrolled.
#pragma once

#include "support/naive_contour.h"
#include "support/naive_wing.h"

#include <vector>

namespace loftwing::naive {

struct SheetedRib {
    double s = 0; ///< of its middle, from the panel's root
    double thickness = 0;
    double nose = 0; ///< y of its leading edge
    double chord = 0;
    double front = 0, rear = 0; ///< where the sheeting ends, behind the leading edge
    const NaiveContour *contour = nullptr;
};

/// `slope`: of the leading edge in the plan.
WingSheeting SheetingOf(const std::vector<SheetedRib> &ribs, double slope, bool above);

} // namespace loftwing::naive
