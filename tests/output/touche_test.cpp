#include "output/touche.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr SujetTrace kTouchedSpar{GenreSujet::longeron, 1};
constexpr SujetTrace kHole{GenreSujet::trou, 0};

/// A spar's notch of 20 x 10 at (100, 100), a hole of radius 50 around (300, 100), and a contour
/// line at y = 0 that belongs to no part.
struct TouchedRib : Recording {
    TouchedRib() {
        Line(0, 0, 1000, 0, 0);
        sujet = kTouchedSpar;
        Line(100, 100, 120, 100, 0);
        Line(120, 100, 120, 110, 0);
        Line(120, 110, 100, 110, 0);
        sujet = kHole;
        Circle(300, 100, 50, 0);
        sujet = {};
    }
};

TEST(Touche, TheNearestLineOfAPartIsFoundWithinReach) {
    const TouchedRib drawing;
    EXPECT_EQ(SujetAu(drawing, {110, 97}, 4), kTouchedSpar);
    EXPECT_FALSE(SujetAu(drawing, {110, 95}, 4));
    EXPECT_EQ(SujetAu(drawing, {352, 100}, 4), kHole);
}

TEST(Touche, TheContourIsNoPart) {
    EXPECT_FALSE(SujetAu(TouchedRib(), {500, 0}, 4));
}

TEST(Touche, TheInsideOfAHoleIsTheHole) {
    EXPECT_EQ(SujetAu(TouchedRib(), {300, 100}, 4), kHole);
}

TEST(Touche, WhereHolesLieInOneAnotherTheSmallerOneIsMeant) {
    TouchedRib drawing;
    drawing.sujet = {GenreSujet::trou, 1};
    drawing.Circle(300, 100, 20, 0);
    EXPECT_EQ(SujetAu(drawing, {300, 110}, 4), (SujetTrace{GenreSujet::trou, 1}));
}

TEST(Touche, TheInsideOfATemplateIsNotTheTemplate) {
    Recording drawing;
    drawing.sujet = {GenreSujet::gabarit, 0};
    drawing.Line(0, 0, 1000, 0, 0);
    drawing.Line(0, 1000, 1000, 1000, 0);
    EXPECT_FALSE(SujetAu(drawing, {500, 500}, 4));
    EXPECT_TRUE(SujetAu(drawing, {500, 998}, 4));
}

TEST(Touche, EndsAndCentresCatchThePointer) {
    const TouchedRib drawing;
    EXPECT_EQ(Accroche(drawing, {121, 99}, 4), (LieuTrace{120, 100}));
    EXPECT_EQ(Accroche(drawing, {302, 98}, 4), (LieuTrace{300, 100}));
    EXPECT_EQ(Accroche(drawing, {200, 50}, 4), std::nullopt);
}

TEST(Touche, OnePartHasItsLinesUnderlined) {
    const auto lines = Souligne(TouchedRib(), kTouchedSpar, 0xFF0000);
    ASSERT_EQ(lines->Operations().size(), 3U);
    EXPECT_EQ(std::get<DrawnSegment>(lines->Operations()[1]),
              (DrawnSegment{120, 100, 120, 110, {0xFF0000, 3, LineStyle::solid}}));
}

TEST(Touche, AnEmptyDrawingHasNothing) {
    const Recording empty;
    EXPECT_FALSE(SujetAu(empty, {0, 0}, 4));
    EXPECT_EQ(Accroche(empty, {0, 0}, 4), std::nullopt);
}

} // namespace
} // namespace loftwing
