/// Comparing the program's contour with the second computation, bit for bit.
#pragma once

#include "core/contour.h"
#include "support/naive_contour.h"

namespace loftwing {

/// Puts raw points into a rib as the reader does.
void SetPoints(RibModel &rib, const NaiveAirfoil &airfoil);

/// The raw points of a rib.
NaiveAirfoil PointsOf(const RibModel &rib);

/// Prepares the contour of `rib` and fails the test where anything differs from the second
/// computation. Gives that computation, so that a test can see whether it tried what it wanted to.
NaiveContour PrepareAndCompare(RibModel &rib);

} // namespace loftwing
