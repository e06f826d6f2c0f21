#include "output/scrolling.h"

#include <gtest/gtest.h>

#include <limits>

namespace loftwing {
namespace {

/// A rib of 200 mm at 100 %: a unit of the bars moves it by 100 device units.
class Scrolling : public testing::Test {
  protected:
    Scrolling() {
        rib.corde = 200;
        rib.Zoom = 1;
    }
    Defilement Bars() const { return DefilementSur(rib, drawn, kWidth, kHeight); }
    void Shift(double x, double y) {
        drawn.left += x;
        drawn.right += x;
        drawn.top += y;
        drawn.bottom += y;
    }

    // 400 by 100 pixels.
    static constexpr double kWidth = 6000;
    static constexpr double kHeight = 1500;

    RibModel rib;
    Extent drawn{283.5, 850.5, 11623.5, 2000};
};

// 11623.5 + 283.5 - 6000 = 5907 lie beyond the right edge, 2000 + 283.5 - 1500 = 783.5 below.
constexpr ScrollRange kAcross{0, 60, 60, 4};
constexpr ScrollRange kDown{-8, 0, 15, 4};

TEST_F(Scrolling, AUnitIsHalfTheChordAsItIsZoomed) {
    EXPECT_EQ(UniteDefilement(rib), 100.0);
    rib.Zoom = 0.25F;
    EXPECT_EQ(UniteDefilement(rib), 25.0);
    rib.corde = 50;
    rib.Zoom = 3;
    EXPECT_EQ(UniteDefilement(rib), 75.0);
}

TEST_F(Scrolling, TheBarsReachAMarginBeyondTheDrawing) {
    EXPECT_EQ(Bars().across, kAcross);
    EXPECT_EQ(Bars().down, kDown);
}

TEST_F(Scrolling, TheRangesDoNotDependOnHowFarItIsScrolled) {
    rib.DecalX = -10;
    rib.DecalY = 5;
    Shift(-1000, -500);
    EXPECT_EQ(Bars().across, kAcross);
    EXPECT_EQ(Bars().down, kDown);
}

TEST_F(Scrolling, ADrawingThatBeginsBeforeThePictureIsReachedToo) {
    drawn.left = -50;
    drawn.top = -450;
    EXPECT_EQ(Bars().across.lowest, -4); // 333.5
    EXPECT_EQ(Bars().down.highest, 8);   // 733.5, upwards on the vertical bar
}

TEST_F(Scrolling, AViewOfFixedHeightOnlyScrollsAcross) {
    rib.ModeEpCourb = true;
    EXPECT_EQ(Bars().across, kAcross);
    EXPECT_EQ(Bars().down, ScrollRange());
}

TEST_F(Scrolling, WithoutADrawingTheBarsStandStill) {
    const Defilement bars = DefilementSur(rib, std::nullopt, kWidth, kHeight);
    EXPECT_EQ(bars.across, ScrollRange());
    EXPECT_EQ(bars.down, ScrollRange());
}

TEST_F(Scrolling, WithoutAChordTheBarsStandStill) {
    rib.corde = 0;
    EXPECT_EQ(Bars().across, ScrollRange());
    EXPECT_EQ(Bars().down, ScrollRange());
}

TEST(ScrollRangeRule, TheRangeIsSixteenBitsWide) {
    const ScrollRange range = RangeOver(-1e9, 1e9, 100, 1);
    EXPECT_EQ(range.lowest, -32767);
    EXPECT_EQ(range.highest, 32767);
}

TEST(ScrollRangeRule, AStepIsNeverNothing) {
    EXPECT_EQ(RangeOver(0, 0, 100, 1000).step, 1);
    EXPECT_EQ(RangeOver(0, 0, 100, 1000).page, 1);
}

TEST(ScrollOffset, IsTheNegatedValueOfTheBar) {
    EXPECT_EQ(DecalageDe(7), -7);
    EXPECT_EQ(DecalageDe(-32767), 32767);
}

TEST(Wheel, TurnsCountInNotchesOf15Degrees) {
    EXPECT_EQ(NotchesOf(120, -60, false), (WheelNotches{1, -0.5}));
}

TEST(Wheel, SidewaysAWheelWithoutAnAxisForItScrollsAcross) {
    EXPECT_EQ(NotchesOf(0, -120, true), (WheelNotches{-1, 0}));
    EXPECT_EQ(NotchesOf(120, -120, true), (WheelNotches{1, -1}));
}

TEST(Wheel, ANotchIsThreeLines) {
    // Down and to the right: the vertical bar falls, the other rises.
    EXPECT_EQ(WheelMove({-1, -1}, {4, 5}), (ScrollMove{12, -15}));
    EXPECT_EQ(WheelMove({2, 1}, {4, 5}), (ScrollMove{-24, 15}));
}

TEST(Wheel, PartsOfANotchCountInWholeLines) {
    EXPECT_EQ(WheelMove({0, -0.5}, {1, 1}), (ScrollMove{0, -2})); // 1.5 lines
    EXPECT_EQ(WheelMove({0, -0.125}, {1, 1}), ScrollMove());
}

TEST(Drag, TheDrawingFollowsThePointerInWholeUnits) {
    ScrollDrag drag;
    EXPECT_EQ(drag.Drag(25, -25, 10), (ScrollMove{-2, -2}));
}

TEST(Drag, WhatIsLeftOverWaitsForTheNextMove) {
    ScrollDrag drag;
    EXPECT_EQ(drag.Drag(9, -6, 10), ScrollMove());
    EXPECT_EQ(drag.Drag(1, -3, 10), (ScrollMove{-1, 0}));
    EXPECT_EQ(drag.Drag(0, -1, 10), (ScrollMove{0, -1}));
    EXPECT_EQ(drag.Drag(9, 9, 10), ScrollMove());
}

TEST(Drag, TheRestIsWholePixels) {
    ScrollDrag drag;
    // A unit takes 2.5 pixels, counted as 3; two take 5.
    EXPECT_EQ(drag.Drag(4, 0, 2.5).across, -1);
    EXPECT_EQ(drag.Drag(4, 0, 2.5).across, -2);
    EXPECT_EQ(drag.Drag(2, 0, 2.5).across, 0);
}

TEST(Drag, WithoutAUnitNothingIsKept) {
    ScrollDrag drag;
    EXPECT_EQ(drag.Drag(100, 100, 0), ScrollMove());
    EXPECT_EQ(drag.Drag(100, 100, std::numeric_limits<double>::quiet_NaN()), ScrollMove());
    EXPECT_EQ(drag.Drag(9, 9, 10), ScrollMove());
}

TEST(ZoomSteps, WholeNotchesCount) {
    ZoomWheel wheel;
    EXPECT_EQ(wheel.Turn(60), 0);
    EXPECT_EQ(wheel.Turn(60), 1);
    EXPECT_EQ(wheel.Turn(300), 2);
    EXPECT_EQ(wheel.Turn(-60), 0);
    EXPECT_EQ(wheel.Turn(-240), -2);
}

TEST(ZoomSteps, LargerZoomsStandAbove) {
    EXPECT_EQ(ZoomRow(3, 1), 2);
    EXPECT_EQ(ZoomRow(3, -2), 5);
}

TEST(ZoomSteps, EndWithTheList) {
    EXPECT_EQ(ZoomRow(1, 5), 0);
    EXPECT_EQ(ZoomRow(5, -5), 6);
}

} // namespace
} // namespace loftwing
