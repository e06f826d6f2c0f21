#include "output/recording.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

TEST(Recording, AdvanceCountsCharactersAndNotBytes) {
    const TextFont font{"Arial", 5}; // 100 units
    EXPECT_DOUBLE_EQ(MeasuredAdvance("", font), 0);
    EXPECT_DOUBLE_EQ(MeasuredAdvance("i", font), 22.2);
    EXPECT_DOUBLE_EQ(MeasuredAdvance("W", font), 94.4);
    EXPECT_DOUBLE_EQ(MeasuredAdvance("\xC3\xA9", font), 55.6); // one accented letter
}

TEST(Recording, AsksTheSurfaceItIsMadeForHowWideATextIs) {
    Recording device([](const std::string &text, const TextFont &) {
        return 1000.0 * static_cast<double>(text.size());
    });
    device.Print("abc");
    EXPECT_EQ(device.CurrentX, 3000);
}

TEST(Recording, BoundsHoldLinesCirclesAndTexts) {
    Recording device;
    const Extent none = device.Bounds();
    EXPECT_EQ(none.left, 0);
    EXPECT_EQ(none.bottom, 0);
    device.Line(10, 20, 30, 40, 0);
    EXPECT_EQ(device.Bounds().left, 10); // and not 0
    EXPECT_EQ(device.Bounds().top, 20);
    device.Circle(0, 0, 15, 0);
    EXPECT_EQ(device.Bounds().left, -15);
    EXPECT_EQ(device.Bounds().top, -15);
    EXPECT_EQ(device.Bounds().right, 30);
    device.Font.size = 10;
    device.CurrentX = 25;
    device.CurrentY = 35;
    device.Print("1"); // 111.2 wide, a line of 240 high
    EXPECT_DOUBLE_EQ(device.Bounds().right, 136.2);
    EXPECT_DOUBLE_EQ(device.Bounds().bottom, 275);
}

TEST(Recording, ClearForgetsTheDrawingAndThePen) {
    Recording device;
    device.DrawWidth = 3;
    device.DrawStyle = 2;
    device.ForeColor = 7;
    device.Font.size = 30;
    device.Line(1, 2, 3, 4, 5);
    device.Clear();
    EXPECT_TRUE(device.Operations().empty());
    EXPECT_EQ(device.DrawWidth, 1);
    EXPECT_EQ(device.DrawStyle, 0);
    EXPECT_EQ(device.ForeColor, 0U);
    EXPECT_EQ(device.Font, TextFont{});
    EXPECT_EQ(device.CurrentX, 0);
    EXPECT_EQ(device.CurrentY, 0);
}

} // namespace
} // namespace loftwing
