#include "output/plot_device.h"

#include "base/failure.h"

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

constexpr std::array<Colour, 16> kPalette = {
    0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
    0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

} // namespace

Colour PaletteColour(int number) {
    if (number < 0 || number >= static_cast<int>(kPalette.size())) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    return kPalette[static_cast<std::size_t>(number)];
}

Pen PlotDevice::PenOf(Colour colour) const {
    const int width = std::clamp(DrawWidth, 1, 3);
    // Wide lines are solid on every device of the trade.
    const bool styled = width == 1 && DrawStyle >= 0 && DrawStyle <= 4;
    return {colour, width, styled ? static_cast<LineStyle>(DrawStyle) : LineStyle::solid};
}

void PlotDevice::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Segment(Finite(x1), Finite(y1), Finite(x2), Finite(y2), PenOf(colour));
    CurrentX = x2;
    CurrentY = y2;
}

void PlotDevice::LineStep(double dx, double dy, Colour colour) {
    Line(CurrentX, CurrentY, CurrentX + dx, CurrentY + dy, colour);
}

void PlotDevice::Circle(double x, double y, double radius, Colour colour) {
    CircleOutline(Finite(x), Finite(y), Finite(radius), PenOf(colour));
}

void PlotDevice::Print(const std::string &text) {
    if (!text.empty()) {
        CurrentX += Text(Finite(CurrentX), Finite(CurrentY), text, Font, ForeColor);
    }
}

} // namespace loftwing
