/// Sheeting unrolled: how large it is, and the board that it is cut from.
#pragma once

#include "core/rib_model.h"
#include "output/surface.h"

#include <array>
#include <vector>

namespace loftwing {

/// A place on a wing, mm: x along the span, y towards the trailing edges, z up.
struct PointAile {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// The run of one rib's outline under the sheeting, from its front to its rear end.
using CourseCoffrage = std::vector<PointAile>;

/// The run of a surface between two places, mm behind the leading edge, which lies at `x` and `y`.
/// Empty where there is nothing between them.
CourseCoffrage CourseDe(const PartiesRib &rib, bool dessus, double de, double a, double x,
                        double y);

/// Length of a run, mm.
double LongueurDe(const CourseCoffrage &course);

/// Area of the surface that straight lines between two runs make, from the same share of the one's
/// length to that of the other's, mm2.
double AireReglee(const CourseCoffrage &a, const CourseCoffrage &b);

/// Length and width of the smallest rectangle around some points whose length lies along one of
/// these directions; both 0 without points.
std::array<double, 2> RectangleAutour(const std::vector<PointMm> &points,
                                      const std::vector<PointMm> &directions);

} // namespace loftwing
