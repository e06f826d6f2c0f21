#include "output/plot_device.h"

#include "output/recording.h"
#include "support/failures.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace loftwing {
namespace {

TEST(PlotDevice, PaletteHasSixteenColours) {
    const std::array<Colour, 16> colours = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    for (int number = 0; number < 16; ++number) {
        EXPECT_EQ(PaletteColour(number), colours.at(static_cast<std::size_t>(number))) << number;
    }
    EXPECT_EQ(FailureOf([] { PaletteColour(16); }), 5);
    EXPECT_EQ(FailureOf([] { PaletteColour(-1); }), 5);
}

TEST(PlotDevice, LineLeavesTheCurrentPointAtItsEnd) {
    Recording device;
    device.Line(1, 2, 3, 4, 0x112233);
    EXPECT_EQ(device.CurrentX, 3);
    EXPECT_EQ(device.CurrentY, 4);
    device.LineStep(10, -1, 0x445566);
    EXPECT_EQ(device.CurrentX, 13);
    EXPECT_EQ(device.CurrentY, 3);
    const std::vector<Operation> wanted = {DrawnSegment{1, 2, 3, 4, {0x112233, 1, {}}},
                                           DrawnSegment{3, 4, 13, 3, {0x445566, 1, {}}}};
    EXPECT_EQ(device.Operations(), wanted);
}

TEST(PlotDevice, StylesTakeEffectAtWidthOneOnly) {
    Recording device;
    for (const int width : {1, 2, 3}) {
        device.DrawWidth = width;
        device.DrawStyle = 3;
        device.Line(0, 0, 1, 1, 0);
    }
    const auto pen = [&](std::size_t i) {
        return std::get<DrawnSegment>(device.Operations().at(i)).pen;
    };
    EXPECT_EQ(pen(0), (Pen{0, 1, LineStyle::dash_dot}));
    EXPECT_EQ(pen(1), (Pen{0, 2, LineStyle::solid}));
    EXPECT_EQ(pen(2), (Pen{0, 3, LineStyle::solid}));
}

TEST(PlotDevice, WidthsAndStylesFromNowhereStillDraw) {
    Recording device;
    device.DrawWidth = 0;
    device.DrawStyle = 9;
    device.Line(0, 0, 1, 1, 0);
    device.DrawWidth = 99;
    device.Circle(0, 0, 1, 0);
    EXPECT_EQ(std::get<DrawnSegment>(device.Operations().at(0)).pen, (Pen{0, 1, {}}));
    EXPECT_EQ(std::get<DrawnCircle>(device.Operations().at(1)).pen, (Pen{0, 3, {}}));
}

TEST(PlotDevice, PrintMovesTheCurrentPointPastTheText) {
    Recording device;
    device.Font.size = 10;
    device.ForeColor = 0x0000FF;
    device.CurrentX = 100;
    device.CurrentY = 50;
    device.Print("10"); // two digits of 556 thousandths, 10 points of 20 units
    EXPECT_DOUBLE_EQ(device.CurrentX, 100 + 2 * 0.556 * 200);
    EXPECT_EQ(device.CurrentY, 50);
    const auto &text = std::get<DrawnText>(device.Operations().front());
    EXPECT_EQ(text.x, 100);
    EXPECT_EQ(text.y, 50);
    EXPECT_EQ(text.text, "10");
    EXPECT_EQ(text.colour, 0x0000FFU);
    EXPECT_EQ(text.font, (TextFont{"Arial", 10}));
}

TEST(PlotDevice, EmptyTextDrawsNothing) {
    Recording device;
    device.CurrentX = 7;
    device.Print("");
    EXPECT_TRUE(device.Operations().empty());
    EXPECT_EQ(device.CurrentX, 7);
}

TEST(PlotDevice, PlacesWithoutAValueAreAnOverflow) {
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    constexpr double kFar = std::numeric_limits<double>::infinity();
    Recording device;
    EXPECT_EQ(FailureOf([&] { device.Line(kNowhere, 0, 0, 0, 0); }), 6);
    EXPECT_EQ(FailureOf([&] { device.Line(0, 0, 0, kFar, 0); }), 6);
    EXPECT_EQ(FailureOf([&] { device.Circle(0, 0, kFar, 0); }), 6);
    device.CurrentY = kNowhere;
    EXPECT_EQ(FailureOf([&] { device.Print("x"); }), 6);
    EXPECT_TRUE(device.Operations().empty());
}

} // namespace
} // namespace loftwing
