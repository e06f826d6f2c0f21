#include "output/scrolling.h"

#include "output/screen_plot.h"
#include "output/view_screen.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

constexpr int kWheelNotch = 120; // eighths of a degree
constexpr double kLinesPerNotch = 3.0;

int Lines(double notches) {
    return static_cast<int>(std::lround(notches * kLinesPerNotch));
}

/// Takes the whole units out of `rest`.
int TakeUnits(int &rest, double unit) {
    const int units = static_cast<int>(rest / unit);
    rest -= static_cast<int>(std::lround(units * unit));
    return units;
}

/// A value of a bar, which the rib's offset of 16 bits can take.
int BarValue(double units) {
    constexpr double kMost = std::numeric_limits<std::int16_t>::max();
    return static_cast<int>(std::lround(std::clamp(units, -kMost, kMost)));
}

/// One direction of a drawing, unscrolled.
struct Stretch {
    double from;
    double to;

    /// The same at another zoom, which leaves the margin in front of the rib as it is.
    Stretch Zoomed(double margin, double larger) const {
        return {margin + (from - margin) * larger, margin + (to - margin) * larger};
    }
    /// The least value of its bar, which shows where it begins.
    int Start(double seen, double unit) const { return RangeOver(from, to, seen, unit).lowest; }
    /// Whether it is seen whole from there.
    bool Fits(double seen, double unit) const {
        const double moved = -Start(seen, unit) * unit;
        return RangeOver(from + moved, to + moved, seen, unit).highest == 0;
    }
};

/// The same range on a bar that runs the other way.
ScrollRange Turned(const ScrollRange &range) {
    return {-range.highest, -range.lowest, range.page, range.step};
}

} // namespace

double UniteDefilement(const RibModel &rib) {
    return Wide(rib.corde) * Wide(rib.Zoom) / 2.0;
}

Extent AvecDessus(const RibModel &rib, const Extent &drawn, const Extent &over) {
    Extent all = drawn;
    all.left = std::min(all.left, over.left);
    all.right = std::max(all.right, over.right);
    if (DefileEnHauteur(rib)) {
        all.top = std::min(all.top, over.top);
        all.bottom = std::max(all.bottom, over.bottom);
    }
    return all;
}

Defilement DefilementSur(const RibModel &rib, const std::optional<Extent> &drawn, double width,
                         double height) {
    Defilement bars;
    const double unit = UniteDefilement(rib);
    if (!drawn || !(unit > 0.0)) {
        return bars;
    }
    const double x = rib.DecalX * unit;
    const double y = -rib.DecalY * unit;
    bars.across = RangeOver(drawn->left - x, drawn->right - x, width, unit);
    if (DefileEnHauteur(rib)) {
        bars.down = Turned(RangeOver(drawn->top - y, drawn->bottom - y, height, unit));
    }
    return bars;
}

std::int16_t DecalageDe(int value) {
    return static_cast<std::int16_t>(-value);
}

WheelNotches NotchesOf(int turn_x, int turn_y, bool sideways) {
    const auto notches = [](int turn) { return static_cast<double>(turn) / kWheelNotch; };
    if (sideways && turn_x == 0) {
        return {notches(turn_y), 0.0};
    }
    return {notches(turn_x), notches(turn_y)};
}

ScrollMove ArrowMove(int across, int down, const ScrollMove &steps) {
    return {across * steps.across, -down * steps.down};
}

ScrollMove WheelMove(const WheelNotches &notches, const ScrollMove &steps) {
    return {-Lines(notches.across) * steps.across, Lines(notches.down) * steps.down};
}

ScrollMove ScrollDrag::Drag(int x, int y, double unit) {
    if (!(unit > 0.0)) {
        return {};
    }
    rest_x_ += x;
    rest_y_ += y;
    return {-TakeUnits(rest_x_, unit), TakeUnits(rest_y_, unit)};
}

int ZoomWheel::Turn(int turn) {
    rest_ += turn;
    const int steps = rest_ / kWheelNotch;
    rest_ -= steps * kWheelNotch;
    return steps;
}

ScrollMove ZoomAt(const RibModel &rib, const PicturePlace &place, float zoom) {
    const double before = UniteDefilement(rib);
    const double after = Wide(rib.corde) * Wide(zoom) / 2.0;
    if (!(before > 0.0) || !(after > 0.0)) {
        return {};
    }
    // How far the place lies from the end of the margin, in units of either zoom.
    const auto bar = [&](double from_margin, double offset) {
        return BarValue(from_margin / before - offset - from_margin / after);
    };
    const int down = bar(place.y - kMargeHaute, -rib.DecalY);
    return {bar(place.x - kMargeGauche, rib.DecalX), DefileEnHauteur(rib) ? -down : 0};
}

WholeView FitTo(const RibModel &rib, const Extent &drawn, double width, double height) {
    const double unit = UniteDefilement(rib);
    if (!(unit > 0.0)) {
        return {kZoomRow100, {}};
    }
    const double x = rib.DecalX * unit;
    const double y = DefileEnHauteur(rib) ? -rib.DecalY * unit : 0.0;
    WholeView view{};
    for (int row = 0; row < static_cast<int>(kZoomRows.size()); ++row) {
        const double larger = Wide(FacteurZoom(At(kZoomRows, row))) / Wide(rib.Zoom);
        const Stretch across =
            Stretch{drawn.left - x, drawn.right - x}.Zoomed(kMargeGauche, larger);
        const Stretch down = Stretch{drawn.top - y, drawn.bottom - y}.Zoomed(kMargeHaute, larger);
        const double step = unit * larger;
        view = {row, {across.Start(width, step), -down.Start(height, step)}};
        if (across.Fits(width, step) && down.Fits(height, step)) {
            break;
        }
    }
    return view;
}

int ZoomRow(int row, int steps) {
    return std::clamp(row - steps, 0, static_cast<int>(kZoomRows.size()) - 1);
}

} // namespace loftwing
