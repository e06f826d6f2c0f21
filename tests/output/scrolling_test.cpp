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

TEST_F(Scrolling, WhatLiesOverTheDrawingIsReachedToo) {
    const Extent over{-300, -2000, 9000, 8000};
    const Extent all = AvecDessus(rib, drawn, over);
    EXPECT_EQ(all.left, -300);
    EXPECT_EQ(all.right, 11623.5);
    EXPECT_EQ(all.top, -2000);
    EXPECT_EQ(all.bottom, 8000);
}

TEST_F(Scrolling, AViewOfFixedHeightStaysSoUnderWhatLiesOverIt) {
    rib.ModeEpCourb = true;
    const Extent all = AvecDessus(rib, drawn, {-300, -2000, 12000, 8000});
    EXPECT_EQ(all.left, -300);
    EXPECT_EQ(all.right, 12000);
    EXPECT_EQ(all.top, 850.5);
    EXPECT_EQ(all.bottom, 2000);
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

// 100 mm behind the leading edge and 20 mm below the margin.
constexpr PicturePlace kPlace{283.5 + 5670, 850.5 + 1134};

TEST_F(Scrolling, AZoomKeepsAPlaceToTheNearestUnit) {
    // At 200 % the place lies 5670 and 1134 further off, in units of 200.
    EXPECT_EQ(ZoomAt(rib, kPlace, 2), (ScrollMove{28, -6}));
    // At 50 % it lies 2835 and 567 nearer, in units of 50.
    EXPECT_EQ(ZoomAt(rib, kPlace, 0.5F), (ScrollMove{-57, 11}));
}

TEST_F(Scrolling, AZoomGoesOnFromWhereItIsScrolled) {
    rib.DecalX = -10; // the bars stand at 10 and -2
    rib.DecalY = 2;
    // 66.7 units across become 28.35, 13.34 down become 5.67.
    EXPECT_EQ(ZoomAt(rib, kPlace, 2), (ScrollMove{38, -8}));
    EXPECT_EQ(ZoomAt(rib, kPlace, 1), (ScrollMove{10, -2}));
}

TEST_F(Scrolling, AtTheCornerOfTheMarginsAZoomScrollsNothing) {
    for (const float zoom : {0.25F, 3.0F}) {
        EXPECT_EQ(ZoomAt(rib, {283.5, 850.5}, zoom), ScrollMove());
    }
}

TEST_F(Scrolling, AZoomOfAViewOfFixedHeightScrollsAcrossOnly) {
    rib.ModeEpCourb = true;
    EXPECT_EQ(ZoomAt(rib, kPlace, 2), (ScrollMove{28, 0}));
}

TEST_F(Scrolling, AZoomStaysInSixteenBitsAndWantsAChord) {
    rib.corde = 0.001F;
    EXPECT_EQ(ZoomAt(rib, kPlace, 2), (ScrollMove{32767, -32767}));
    rib.corde = 0;
    EXPECT_EQ(ZoomAt(rib, kPlace, 2), ScrollMove());
}

TEST_F(Scrolling, TheLargestZoomThatShowsAllIsTaken) {
    // 283.5 + 11340 z + 283.5 across, 850.5 + 1149.5 z + 283.5 down.
    EXPECT_EQ(FitTo(rib, drawn, 6000, 1500), (WholeView{6, {}}));  // z up to 0.48 and 0.32
    EXPECT_EQ(FitTo(rib, drawn, 40000, 6000), (WholeView{0, {}})); // 3.48 and 4.23
    EXPECT_EQ(FitTo(rib, drawn, 40000, 3000), (WholeView{2, {}})); // 3.48 and 1.62
    EXPECT_EQ(FitTo(rib, drawn, 11907, 6000), (WholeView{3, {}})); // 1 to the unit
    EXPECT_EQ(FitTo(rib, drawn, 11906, 6000), (WholeView{4, {}}));
}

TEST_F(Scrolling, WhereNoZoomShowsAllItIsTheSmallest) {
    EXPECT_EQ(FitTo(rib, drawn, 1000, 1000).row, 6);
}

TEST_F(Scrolling, WhatShowsAllDoesNotDependOnThePresentView) {
    rib.Zoom = 2;
    drawn = {283.5, 850.5, 283.5 + 22680, 850.5 + 2299};
    rib.DecalX = -10;
    rib.DecalY = 5;
    Shift(-2000, -1000);
    EXPECT_EQ(FitTo(rib, drawn, 40000, 3000), (WholeView{2, {}}));
}

TEST_F(Scrolling, ADrawingThatBeginsBeforeThePictureIsScrolledIntoIt) {
    drawn.left = 283.5 - 2000;
    // At 100 % 20 units of 100 show it with its margin, and it ends at 13907.
    EXPECT_EQ(FitTo(rib, drawn, 14500, 6000), (WholeView{3, {-20, 0}}));
}

TEST(ArrowKeys, MoveByALine) {
    EXPECT_EQ(ArrowMove(1, 0, {4, 5}), (ScrollMove{4, 0}));
    EXPECT_EQ(ArrowMove(-1, 0, {4, 5}), (ScrollMove{-4, 0}));
    EXPECT_EQ(ArrowMove(0, 1, {4, 5}), (ScrollMove{0, -5}));
    EXPECT_EQ(ArrowMove(0, -1, {4, 5}), (ScrollMove{0, 5}));
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
