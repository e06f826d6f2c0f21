/// What pens look like in files and on paper; the screen scales the same patterns.
#pragma once

#include "output/plot_device.h"

#include <array>
#include <span>

namespace loftwing {

/// Widths in mm of the pens 1, 2 and 3 on paper and in files.
inline constexpr std::array<double, 3> kPenWidthsMm = {0.18, 0.35, 0.5};

namespace dashes {
inline constexpr std::array<double, 2> kDash = {3, 1.5};
inline constexpr std::array<double, 2> kDot = {0.5, 1};
inline constexpr std::array<double, 4> kDashDot = {3, 1, 0.5, 1};
inline constexpr std::array<double, 6> kDashDotDot = {3, 1, 0.5, 1, 0.5, 1};
} // namespace dashes

/// The pattern of a line style in mm: mark, gap, mark, gap, ...; none for a solid line.
constexpr std::span<const double> DashesMm(LineStyle style) {
    switch (style) {
    case LineStyle::dash:
        return dashes::kDash;
    case LineStyle::dot:
        return dashes::kDot;
    case LineStyle::dash_dot:
        return dashes::kDashDot;
    case LineStyle::dash_dot_dot:
        return dashes::kDashDotDot;
    case LineStyle::solid:
        break;
    }
    return {};
}

} // namespace loftwing
