#include "output/scroll_range.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

constexpr double kWheelStep = 450.0; // 30 pixels
constexpr double kMargin = 283.5;    // 5 mm beyond the drawing

int Units(double length, double unit) {
    constexpr double kMost = std::numeric_limits<short>::max();
    return static_cast<int>(std::clamp(std::ceil(length / unit), 0.0, kMost));
}

} // namespace

ScrollRange RangeOver(double from, double to, double seen, double unit) {
    ScrollRange range;
    if (!(unit > 0.0)) {
        return range;
    }
    range.highest = to + kMargin > seen ? Units(to + kMargin - seen, unit) : 0;
    range.lowest = from < 0.0 ? -Units(kMargin - from, unit) : 0;
    range.page = std::max(1, Units(seen, unit));
    range.step = std::max(1, static_cast<int>(kWheelStep / unit));
    return range;
}

} // namespace loftwing
