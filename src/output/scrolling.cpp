#include "output/scrolling.h"

#include "output/screen_plot.h"
#include "output/view_screen.h"

#include <algorithm>
#include <cmath>

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

/// The same range on a bar that runs the other way.
ScrollRange Turned(const ScrollRange &range) {
    return {-range.highest, -range.lowest, range.page, range.step};
}

} // namespace

double UniteDefilement(const RibModel &rib) {
    return Wide(rib.corde) * Wide(rib.Zoom) / 2.0;
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

int ZoomRow(int row, int steps) {
    return std::clamp(row - steps, 0, static_cast<int>(kZoomRows.size()) - 1);
}

} // namespace loftwing
