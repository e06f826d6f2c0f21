/// How far the picture's scroll bars go.
#pragma once

#include "output/recording.h"

namespace loftwing {

struct ScrollRange {
    int lowest = 0;
    int highest = 0;
    int page = 1;
    int step = 1;

    bool operator==(const ScrollRange &) const = default;
};

/// The range of one scroll bar over a drawing that lies, unscrolled, from `from` to `to` and is
/// looked at through `seen`. One unit of the bar moves the drawing by `unit`; all in device units.
/// Values above 0 show what lies beyond the far end, values below 0 what lies before 0. Offsets are
/// 16 bits wide, and so is the range. A unit of 0 gives no range.
ScrollRange RangeOver(double from, double to, double seen, double unit);

} // namespace loftwing
