#include "core/contour.h"

#include "support/contour_check.h"
#include "support/failures.h"
#include "support/synthetic_airfoil.h"
#include "support/words.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

constexpr const char *kContourWords = "[Erreur]\n1=Error\n2=in\n";

PointList List(std::initializer_list<double> values) {
    PointList list;
    for (const double value : values) {
        list.Append(value);
    }
    return list;
}

void SetContour(RibModel &rib, std::initializer_list<double> xs, std::initializer_list<double> ys,
                std::int16_t upper) {
    rib.ContourX = List(xs);
    rib.ContourY = List(ys);
    rib.NbContour = static_cast<std::int16_t>(rib.ContourX.Count());
    rib.NbExtrados = upper;
}

bool Contains(const PointList &list, double value) {
    return std::count(list.Values().begin(), list.Values().end(), value) > 0;
}

TEST(InterpoleAitken, ReproducesAPolynomialOfTheFifthDegree) {
    const auto polynomial = [](double x) {
        return 1 + x * (2 + x * (-3 + x * (4 + x * (-5 + x))));
    };
    const PointList xs = List({9, -1, -0.5, 0, 0.25, 0.75, 1.5, 9});
    PointList ys;
    for (const double x : xs.Values()) {
        ys.Append(polynomial(x));
    }
    for (const double v : {-1.0, -0.7, 0.1, 0.25, 0.6, 1.5}) {
        EXPECT_THAT(InterpoleAitken(xs, ys, 4, v), DoubleNear(polynomial(v), 1e-13)) << v;
    }
}

TEST(InterpoleAitken, FailsWhereItsWindowLeavesTheList) {
    const PointList six = List({0, 1, 2, 3, 4, 5});
    EXPECT_EQ(InterpoleAitken(six, six, 3, 2.5), 2.5);
    EXPECT_EQ(FailureOf([&] { InterpoleAitken(six, six, 2, 2.5); }), kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { InterpoleAitken(six, six, 4, 2.5); }), kSubscriptOutOfRange);
}

TEST(InterpoleAitken, FailsOnEqualAbscissasInItsWindow) {
    const PointList xs = List({0, 1, 2, 2, 4, 5});
    EXPECT_EQ(FailureOf([&] { InterpoleAitken(xs, xs, 3, 2.5); }), kDivisionByZero);
}

TEST(Alocate, CutsEachSegmentIntoTenSteps) {
    RibModel rib;
    SetPoints(rib, MakeAirfoil({}));
    Alocate(rib);
    ASSERT_EQ(rib.NbPoints, 41);
    // 40 segments less the one that is passed over, ten samples each, one more or less by rounding.
    EXPECT_NEAR(rib.NbContour, 390, 30);
    EXPECT_EQ(rib.ContourX(1), 1.0);
    EXPECT_EQ(rib.ContourX(rib.NbContour), 1.0);
}

TEST(Alocate, LeavesOutThePointBeforeTheLastTwoSegments) {
    NaiveAirfoil airfoil = MakeAirfoil({});
    constexpr double kX = 0.96875; // fits 32 bits, so no sample stands for the point itself
    airfoil.x[39] = kX;
    RibModel rib;
    SetPoints(rib, airfoil);
    ASSERT_EQ(rib.NbPoints, 41);
    ASSERT_LT(rib.ProfilX(38), kX);
    ASSERT_GT(rib.ProfilX(40), kX);
    Alocate(rib);
    EXPECT_FALSE(Contains(rib.ContourX, kX));
    EXPECT_FALSE(Contains(rib.ContourY, airfoil.y[39]));
    // The segment before it is crossed in one stretch, without samples.
    const auto lower = rib.ContourX.Values().begin() + rib.NbContour / 2;
    EXPECT_EQ(std::count_if(lower, rib.ContourX.Values().end(),
                            [&](double x) { return x > airfoil.x[38] + 1e-6 && x < kX; }),
              0);
}

TEST(Alocate, DropsASampleOnlyOnAPointThatFits32Bits) {
    // Seven points, x falling by steps; only the first stretch matters.
    RibModel exact;
    NaiveAirfoil points;
    for (const double x : {1.0, 0.75, 0.5, 0.375, 0.25, 0.125, 1.0}) {
        points.Add(x, 1.0 - x);
    }
    SetPoints(exact, points);
    Alocate(exact);
    EXPECT_EQ(exact.ContourX(2), static_cast<double>(1.0F + static_cast<float>(-0.025)));
    points.x[1] = 1.0; // stays
    points.x[2] = 0.7; // not representable: the first sample of the second segment is kept
    RibModel rounded;
    SetPoints(rounded, points);
    Alocate(rounded);
    EXPECT_TRUE(Contains(rounded.ContourX, static_cast<double>(0.7F)));
    EXPECT_FALSE(Contains(rounded.ContourX, 0.7));
}

TEST(Alocate, FailsForFivePointsAndKeepsTheFirst) {
    Words words(kContourWords);
    words.platform.Expect(BoxAnswer::ok);
    words.platform.Expect(BoxAnswer::ok);
    RibModel rib;
    SetPoints(rib, MakeAirfoil({0.12, 0, 0.4, 2, 2}));
    ASSERT_EQ(rib.NbPoints, 5);
    EXPECT_EQ(PrepareContour(rib, words.messages), Preparation::impossible);
    EXPECT_EQ(words.platform.boxes[0].title, " Calcul/Alocate");
    EXPECT_EQ(words.platform.boxes[0].text.substr(0, 44),
              "Error # 9 in Loftwing\nSubscript out of range");
    EXPECT_EQ(words.platform.boxes[1].title, " Calcul/MiniX") << "30 points and more are looked at";
    EXPECT_THAT(rib.ContourX.Values(), ElementsAre(1.0));
    EXPECT_EQ(rib.NbContour, 1);
}

TEST(Alocate, StartsAnewEachTime) {
    RibModel rib;
    SetPoints(rib, MakeAirfoil({}));
    Alocate(rib);
    const std::vector<double> once = rib.ContourX.Values();
    Alocate(rib);
    EXPECT_EQ(rib.ContourX.Values(), once);
}

/// A good airfoil of 41 points in which point `at` gets another x.
NaiveAirfoil WithX(std::size_t at, double x) {
    NaiveAirfoil airfoil = MakeAirfoil({});
    airfoil.x[at] = x;
    return airfoil;
}

TEST(Alocate, FailsOnAStepOfZeroAlongX) {
    const NaiveAirfoil good = MakeAirfoil({});
    RibModel rib;
    SetPoints(rib, WithX(13, good.x[12]));
    EXPECT_EQ(FailureOf([&] { Alocate(rib); }), kDivisionByZero) << "equal abscissas";
    // The window of segment 10 is the first to hold both points.
    EXPECT_NEAR(rib.NbContour, 91, 9) << "what was complete stays";
}

TEST(Alocate, FailsOnAStepOfZeroFromAPointThatFits32Bits) {
    // No sample is ever taken here, so only the loop itself can notice.
    NaiveAirfoil airfoil = MakeAirfoil({});
    airfoil.x[10] = 0.5;
    airfoil.x[11] = 0.5;
    RibModel rib;
    SetPoints(rib, airfoil);
    EXPECT_NE(FailureOf([&] { Alocate(rib); }), 0);
}

TEST(Alocate, FailsOnAStepTooSmallToChangeItsValue) {
    NaiveAirfoil airfoil = MakeAirfoil({});
    airfoil.x[11] = 0.5;
    airfoil.x[12] = 0.5 + 1e-9;
    RibModel rib;
    SetPoints(rib, airfoil);
    EXPECT_EQ(FailureOf([&] { Alocate(rib); }), kOverflow);
    EXPECT_LT(rib.NbContour, 200);
}

TEST(Alocate, RepeatsTheSampleOfAStepTooSmallUntilTheCountIsFull) {
    NaiveAirfoil airfoil = MakeAirfoil({});
    airfoil.x[12] = 0.3;
    airfoil.x[13] = 0.3 - 1e-9;
    RibModel rib;
    SetPoints(rib, airfoil);
    EXPECT_EQ(FailureOf([&] { Alocate(rib); }), kOverflow);
    EXPECT_EQ(rib.NbContour, 32767);
    EXPECT_EQ(rib.ContourX(32767), static_cast<double>(0.3F));
    EXPECT_EQ(rib.ContourX.Count(), 32767);
}

TEST(Alocate, FailsAtThe32768thPoint) {
    // 4,000 points: ten samples a segment are too many.
    RibModel rib;
    SetPoints(rib, MakeAirfoil({0.12, 0.02, 0.4, 2000, 2000}));
    EXPECT_EQ(FailureOf([&] { Alocate(rib); }), kOverflow);
    EXPECT_EQ(rib.NbContour, 32767);
}

TEST(Alocate, SamplesTheNoseAlongYFromFourteenPointsOn) {
    // Below 14 points all samples are rounded to 32 bits in x; above, those of the nose in y.
    const auto exact_y = [](const RibModel &rib) {
        return std::count_if(
            rib.ContourY.Values().begin(), rib.ContourY.Values().end(),
            [](double y) { return static_cast<double>(static_cast<float>(y)) == y; });
    };
    RibModel thirteen;
    SetPoints(thirteen, MakeAirfoil({0.12, 0.03, 0.4, 7, 5}));
    Alocate(thirteen);
    EXPECT_LE(exact_y(thirteen), 5) << "both ends, and chance";
    RibModel fourteen;
    SetPoints(fourteen, MakeAirfoil({0.12, 0.03, 0.4, 7, 6}));
    Alocate(fourteen);
    EXPECT_GE(exact_y(fourteen), 80) << "segments 4 to 11";
}

TEST(MiniX, CountsNewMinimaAndNotPlaces) {
    RibModel rib;
    for (int i = 0; i < 70; ++i) {
        rib.ContourX.Append(1.0);
    }
    rib.NbContour = 70;
    // New minima at 3, 5 and 8: equal and rising samples between them don't count.
    rib.ContourX(3) = 0.9;
    rib.ContourX(4) = 0.9;
    rib.ContourX(5) = 0.5;
    rib.ContourX(6) = 0.7;
    rib.ContourX(8) = 0.1;
    rib.ContourX(66) = 0.01; // behind the bound (70 + 60) / 2
    MiniX(rib);
    EXPECT_EQ(rib.NbExtrados, 4);
    EXPECT_EQ(rib.MiniX, 0.1);
    rib.ContourX(65) = 0.05;
    MiniX(rib);
    EXPECT_EQ(rib.NbExtrados, 5);
    EXPECT_EQ(rib.MiniX, 0.05);
}

TEST(MiniX, RoundsItsBoundHalvesToEven) {
    RibModel rib;
    for (int i = 0; i < 71; ++i) {
        rib.ContourX.Append(1.0);
    }
    rib.NbContour = 61; // 60.5 comes to 60
    rib.ContourX(61) = 0.5;
    MiniX(rib);
    EXPECT_EQ(rib.MiniX, 1.0);
    rib.NbContour = 63; // 61.5 comes to 62
    rib.ContourX(61) = 1.0;
    rib.ContourX(62) = 0.5;
    MiniX(rib);
    EXPECT_EQ(rib.MiniX, 0.5);
}

TEST(MiniX, FailsForAContourShorterThanItsBound) {
    RibModel rib;
    for (int i = 0; i < 59; ++i) {
        rib.ContourX.Append(1.0);
    }
    rib.NbContour = 59; // bound 59.5, which comes to 60
    EXPECT_EQ(FailureOf([&] { MiniX(rib); }), kSubscriptOutOfRange);
    rib.ContourX.Append(1.0);
    rib.NbContour = 60;
    EXPECT_EQ(FailureOf([&] { MiniX(rib); }), 0);
}

TEST(Extremes, BelongToTheHalvesOfTheFile) {
    RibModel rib;
    NaiveAirfoil airfoil;
    for (const double y : {0.0, 0.1, 0.3, 0.05, 0.4, -0.2, -0.1}) {
        airfoil.Add(0.5, y);
    }
    SetPoints(rib, airfoil); // seven points: 3.5 comes to 4
    CalculExtradosMaxi(rib);
    CalculIntradosMini(rib);
    EXPECT_EQ(rib.ExtradosMaxi, 0.3);
    EXPECT_EQ(rib.IntradosMini, -0.2);
    airfoil.Add(0.5, 0.0);
    airfoil.Add(0.5, 0.0);
    SetPoints(rib, airfoil); // nine points: 4.5 comes to 4
    CalculExtradosMaxi(rib);
    EXPECT_EQ(rib.ExtradosMaxi, 0.3) << "the fifth point belongs to the other half";
}

TEST(Extremes, AreNeverBeyondTheChordLine) {
    RibModel rib;
    NaiveAirfoil airfoil;
    for (const double y : {0.1, 0.2, 0.15, 0.05, 0.02, 0.1}) {
        airfoil.Add(0.5, y);
    }
    SetPoints(rib, airfoil);
    CalculIntradosMini(rib);
    EXPECT_EQ(rib.IntradosMini, 0.0) << "a section wholly above the line";
    for (double &y : airfoil.y) {
        y = -y;
    }
    SetPoints(rib, airfoil);
    CalculExtradosMaxi(rib);
    EXPECT_EQ(rib.ExtradosMaxi, 0.0);
}

TEST(Extremes, HaveNoBottomForAFlatSection) {
    RibModel rib;
    NaiveAirfoil airfoil;
    for (const double y : {0.0, 0.1, 0.1, 0.0, 0.0, 0.0}) {
        airfoil.Add(0.5, y);
    }
    SetPoints(rib, airfoil);
    CalculIntradosMini(rib);
    EXPECT_EQ(rib.IntradosMini, 0.0);
}

TEST(SepareIntrados, CopiesTheLowerSurfaceFromTheEndBackwards) {
    RibModel rib;
    SetContour(rib, {1, 0.5, 0, 0.5, 1}, {0.01, 0.1, 0, -0.05, -0.01}, 3);
    SepareIntrados(rib);
    EXPECT_THAT(rib.IntradosX.Values(), ElementsAre(1.0, 0.5, 0.0));
    EXPECT_THAT(rib.IntradosY.Values(), ElementsAre(-0.01, -0.05, 0.0));
    EXPECT_EQ(rib.NbIntrados, 3);
}

class Tables : public testing::Test {
  protected:
    RibModel rib;

    void Fill(std::initializer_list<double> xs, std::initializer_list<double> ys,
              std::int16_t upper) {
        SetContour(rib, xs, ys, upper);
        SepareIntrados(rib);
        rib.TabExtrados.fill(99);
        rib.TabIntrados.fill(99);
        TableStations(rib);
    }
};

TEST_F(Tables, AreStraightBetweenThePoints) {
    Fill({1, 0.5, 0, 0.5, 1}, {0, 0.1, 0, -0.05, 0}, 3);
    EXPECT_DOUBLE_EQ(rib.TabExtrados[100], 0.05); // x = 0.75
    EXPECT_DOUBLE_EQ(rib.TabExtrados[300], 0.05); // x = 0.25
    EXPECT_DOUBLE_EQ(rib.TabIntrados[100], -0.025);
    EXPECT_NEAR(rib.TabIntrados[399], -0.00025, 1e-15);
}

TEST_F(Tables, TakeAPointItselfWhereOneLies) {
    Fill({1, 0.5, 0, 0.5, 1}, {0, 0.1, 0.02, -0.05, 0}, 3);
    EXPECT_EQ(rib.TabExtrados[200], 0.1);
    EXPECT_EQ(rib.TabIntrados[200], -0.05);
    EXPECT_EQ(rib.TabExtrados[400], 0.02);
    EXPECT_EQ(rib.TabIntrados[400], 0.02);
}

TEST_F(Tables, TakeAPointWithinAMillionthOfTheStation) {
    Fill({1, 0.5 + 0.9e-6, 0, 0.5 - 0.9e-6, 1}, {0, 0.1, 0, -0.05, 0}, 3);
    EXPECT_EQ(rib.TabExtrados[200], 0.1);
    EXPECT_EQ(rib.TabIntrados[200], -0.05);
    Fill({1, 0.5 + 1.1e-6, 0, 0.5, 1}, {0, 0.1, 0, -0.05, 0}, 3);
    EXPECT_NE(rib.TabExtrados[200], 0.1);
}

TEST_F(Tables, StartAtZeroEvenForAThickTrailingEdge) {
    Fill({1, 0, 1}, {0.01, 0, -0.01}, 2);
    EXPECT_EQ(rib.TabExtrados[0], 0.0);
    EXPECT_EQ(rib.TabIntrados[0], 0.0);
    EXPECT_DOUBLE_EQ(rib.TabExtrados[1], 0.01 * 399 / 400);
}

TEST_F(Tables, GoOnStraightToTheContoursNextPointInFrontOfTheUpperSurface) {
    // The upper surface counts two points and ends at 0.5; the contour's third lies at 0.25.
    Fill({1, 0.5, 0.25, 0.5, 1}, {0, 0.2, 0.1, 0, 0}, 2);
    EXPECT_DOUBLE_EQ(rib.TabExtrados[250], 0.15); // x = 0.375
    EXPECT_EQ(rib.TabExtrados[300], 0.1);
    EXPECT_NEAR(rib.TabExtrados[400], 0.0, 1e-15); // beyond it, on the same line
}

TEST_F(Tables, AreZeroInFrontOfTheLowerSurface) {
    Fill({1, 0.25, 0.5, 1}, {0, 0.1, -0.2, -0.3}, 2);
    EXPECT_EQ(rib.TabIntrados[299] == 0.0, false);
    EXPECT_EQ(rib.TabIntrados[300], 0.1);
    EXPECT_EQ(rib.TabIntrados[301], 0.0);
    EXPECT_EQ(rib.TabIntrados[400], 0.0);
}

TEST_F(Tables, AreZeroInFrontOfAnUpperSurfaceThatEndsTheContour) {
    Fill({1, 0.5}, {0, 0.2}, 2);
    EXPECT_EQ(rib.TabExtrados[200], 0.2);
    EXPECT_EQ(rib.TabExtrados[201], 0.0);
}

TEST_F(Tables, AreZeroBehindASurfaceThatStartsInFrontOfTheStation) {
    Fill({0.9, 0, 1}, {0.1, 0.05, 0}, 2);
    EXPECT_EQ(rib.TabExtrados[20], 0.0) << "no point lies behind x = 0.95";
    EXPECT_EQ(rib.TabExtrados[39], 0.0);
    EXPECT_DOUBLE_EQ(rib.TabExtrados[50], 0.1 - 0.05 * 0.025 / 0.9);
}

TEST_F(Tables, AreZeroWhereTwoAbscissasAreEqual) {
    // The upper surface counts one point; the contour's next one has the same x.
    Fill({1, 1, 0, 1}, {0, 0.2, 0.1, 0}, 1);
    EXPECT_EQ(rib.TabExtrados[200], 0.0);
    EXPECT_EQ(rib.TabExtrados[1], 0.0);
}

TEST_F(Tables, TakeTheFirstOfTwoPointsOnAStation) {
    Fill({1, 0.7, 0.7, 0, 1}, {0, 0.1, 0.2, 0, 0}, 4);
    EXPECT_EQ(rib.TabExtrados[120], 0.1);
}

TEST_F(Tables, FindTheFirstCrossingOfAContourThatRunsBack) {
    // x falls to 0.4, comes back to 0.6 and falls again: the first bracket counts.
    Fill({1, 0.4, 0.6, 0, 1}, {0, 0.06, 0.5, 0.4, 0}, 4);
    EXPECT_DOUBLE_EQ(rib.TabExtrados[200], 0.05); // x = 0.5, between the first two points
}

TEST(EpMaxi, IsTheGreatestDifferenceAndCountsItsNewMaxima) {
    RibModel rib;
    rib.TabExtrados.fill(0);
    rib.TabIntrados.fill(0);
    rib.TabExtrados[10] = 0.1;
    rib.TabIntrados[20] = -0.2;
    rib.TabExtrados[25] = 0.15; // less than before
    rib.TabExtrados[30] = 0.25;
    rib.TabExtrados[40] = 0.25; // no more than before
    CalculEpMaxi(rib);
    EXPECT_EQ(rib.EpMaxi, 0.25);
    EXPECT_EQ(rib.PosEpMaxi, 2.0);
}

TEST(EpMaxi, CountsToTheStationOfASteadyRiseLessOne) {
    RibModel rib;
    for (std::size_t i = 0; i <= kLastStation; ++i) {
        rib.TabExtrados[i] = i <= 280 ? static_cast<double>(i) : 280.0;
    }
    CalculEpMaxi(rib);
    EXPECT_EQ(rib.PosEpMaxi, 279.0);
}

TEST(EpMaxi, IsZeroAndLessThanOnceMetForATurnedSection) {
    RibModel rib;
    rib.TabExtrados.fill(-0.1);
    rib.TabIntrados.fill(0.1);
    CalculEpMaxi(rib);
    EXPECT_EQ(rib.EpMaxi, 0.0);
    EXPECT_EQ(rib.PosEpMaxi, -1.0);
}

TEST(Cambrure, IsTheGreatestMeanAndCountsItsNewMaxima) {
    RibModel rib;
    rib.TabExtrados.fill(0.1);
    rib.TabIntrados.fill(-0.1);
    CalculCambrure(rib);
    EXPECT_EQ(rib.CambrureMaxi, 0.0);
    EXPECT_EQ(rib.PosCambrure, -1);
    rib.TabExtrados[100] = 0.2;
    rib.TabIntrados[200] = 0.1;
    CalculCambrure(rib);
    EXPECT_EQ(rib.CambrureMaxi, 0.1);
    EXPECT_EQ(rib.PosCambrure, 1);
}

TEST(PrepareContour, GivesTheThicknessOfASymmetricalSection) {
    RibModel rib;
    SetPoints(rib, MakeAirfoil({0.12, 0.0, 0.4, 40, 40}));
    Words words(kContourWords);
    EXPECT_EQ(PrepareContour(rib, words.messages), Preparation::complete);
    EXPECT_NEAR(rib.EpMaxi, 0.12, 1e-4);
    for (std::size_t i = 0; i < kLastStation; ++i) {
        EXPECT_NEAR(rib.TabExtrados[i] + rib.TabIntrados[i], 0.0, 4e-5) << i;
    }
    // The run of the upper surface ends some samples before the nose, because repeated samples
    // don't count, and goes on straight from there: the last station alone has a camber.
    EXPECT_EQ(rib.CambrureMaxi, (rib.TabExtrados[400] + rib.TabIntrados[400]) * 0.5);
    EXPECT_LT(rib.CambrureMaxi, 2e-3);
    EXPECT_NEAR(rib.MiniX, 0.0, 1e-5);
    EXPECT_NEAR(rib.ExtradosMaxi, 0.06, 1e-4);
    EXPECT_NEAR(rib.IntradosMini, -0.06, 1e-4);
}

TEST(PrepareContour, GivesTheCamberOfACamberedSection) {
    RibModel rib;
    SetPoints(rib, MakeAirfoil({0.10, 0.04, 0.4, 40, 40}));
    Words words(kContourWords);
    EXPECT_EQ(PrepareContour(rib, words.messages), Preparation::complete);
    EXPECT_NEAR(rib.EpMaxi, 0.10, 1e-4);
    EXPECT_NEAR(rib.CambrureMaxi, 0.04, 2e-4);
}

TEST(PrepareContour, GoesOnWithTheContourThereIs) {
    // Two equal y in the nose: the upper surface is complete by then.
    NaiveAirfoil airfoil = MakeAirfoil({0.12, 0.0, 0.4, 40, 40});
    airfoil.y[44] = airfoil.y[43];
    RibModel rib;
    SetPoints(rib, airfoil);
    Words words(kContourWords);
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(PrepareContour(rib, words.messages), Preparation::incomplete);
    EXPECT_EQ(words.LastBox().title, " Calcul/Alocate");
    EXPECT_GT(rib.NbContour, 380);
    EXPECT_GT(rib.TabExtrados[200], 0.04);
}

} // namespace
} // namespace loftwing
