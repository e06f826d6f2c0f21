/// Airfoils by the public formulas of the four-digit series, for tests.
#pragma once

#include "support/naive_contour.h"

namespace loftwing {

struct SyntheticAirfoil {
    double thickness = 0.12;
    double camber = 0.0;
    double camber_place = 0.4;
    int upper = 20; ///< segments from the trailing to the leading edge
    int lower = 20; ///< segments back
};

/// upper + lower + 1 points with cosine spacing, from the trailing edge over the upper surface to
/// the leading edge and back. The trailing edge is closed; points lie above and below x, so that
/// first and last x are exactly 1.
NaiveAirfoil MakeAirfoil(const SyntheticAirfoil &wanted);

} // namespace loftwing
