// The contour of many airfoils, compared with a second computation bit for bit.

#include "support/contour_check.h"
#include "support/synthetic_airfoil.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace loftwing {
namespace {

/// Numbers that are the same everywhere, which those of the library's distributions are not.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    double Between(double low, double high) {
        return low + (high - low) * (static_cast<double>(engine_()) / 4294967296.0);
    }
    std::size_t Index(std::size_t low, std::size_t high) {
        return low + engine_() % (high - low + 1);
    }

  private:
    std::mt19937 engine_;
};

struct Tally {
    int complete = 0;
    int incomplete = 0;
    int impossible = 0;

    void Count(const NaiveContour &naive) {
        ++(naive.minix_failed ? impossible : naive.alocate_failed ? incomplete : complete);
    }
};

NaiveContour Compare(const NaiveAirfoil &airfoil) {
    RibModel rib;
    SetPoints(rib, airfoil);
    return PrepareAndCompare(rib);
}

/// Segments of the upper and lower surface for `points` points, `shift` more of them above.
SyntheticAirfoil Split(int points, int shift) {
    SyntheticAirfoil wanted;
    wanted.upper = (points - 1) / 2 + shift;
    wanted.lower = points - 1 - wanted.upper;
    return wanted;
}

TEST(ContourSweep, SectionsOfEveryNumberOfPoints) {
    Tally tally;
    for (int points = 5; points <= 60; ++points) {
        for (const double camber : {0.0, 0.02, 0.06}) {
            SyntheticAirfoil wanted = Split(points, 0);
            wanted.camber = camber;
            SCOPED_TRACE(points);
            tally.Count(Compare(MakeAirfoil(wanted)));
        }
    }
    EXPECT_GE(tally.complete, 3 * 46) << "from 14 points on all should go well";
    EXPECT_GE(tally.impossible, 3) << "five points are too few";
}

TEST(ContourSweep, SectionsWithMorePointsOnOneSurface) {
    for (int points = 10; points <= 60; points += 3) {
        for (const int shift : {-3, -2, -1, 1, 2, 3, points / 4}) {
            SyntheticAirfoil wanted = Split(points, shift);
            wanted.thickness = 0.09;
            wanted.camber = 0.03;
            SCOPED_TRACE(points);
            SCOPED_TRACE(shift);
            Compare(MakeAirfoil(wanted));
        }
    }
}

TEST(ContourSweep, ThinThickAndTurnedSections) {
    for (const double thickness : {0.001, 0.03, 0.3, 1.0, -0.12}) {
        for (const double camber : {-0.05, 0.0, 0.09}) {
            SyntheticAirfoil wanted = Split(41, 0);
            wanted.thickness = thickness;
            wanted.camber = camber;
            SCOPED_TRACE(thickness);
            SCOPED_TRACE(camber);
            Compare(MakeAirfoil(wanted));
        }
    }
}

TEST(ContourSweep, SectionsRoundedToFewDecimalsAsFilesHaveThem) {
    for (int points = 14; points <= 120; points += 2) {
        NaiveAirfoil airfoil = MakeAirfoil(Split(points, 0));
        for (std::size_t i = 1; i < airfoil.x.size(); ++i) {
            airfoil.x[i] = std::round(airfoil.x[i] * 1e4) / 1e4;
            airfoil.y[i] = std::round(airfoil.y[i] * 1e4) / 1e4;
        }
        SCOPED_TRACE(points);
        Compare(airfoil);
    }
}

TEST(ContourSweep, SectionsWithScatteredPoints) {
    Dice dice(11);
    Tally tally;
    for (int round = 0; round < 300; ++round) {
        SyntheticAirfoil wanted = Split(static_cast<int>(dice.Index(14, 90)), 0);
        wanted.thickness = dice.Between(0.04, 0.2);
        wanted.camber = dice.Between(0.0, 0.06);
        NaiveAirfoil airfoil = MakeAirfoil(wanted);
        for (std::size_t i = 2; i + 1 < airfoil.x.size(); ++i) {
            airfoil.x[i] += dice.Between(-1e-3, 1e-3);
            airfoil.y[i] += dice.Between(-1e-3, 1e-3);
        }
        SCOPED_TRACE(round);
        tally.Count(Compare(airfoil));
    }
    EXPECT_GE(tally.complete, 250);
}

TEST(ContourSweep, PointsWithoutAnyOrder) {
    Dice dice(12);
    for (int round = 0; round < 200; ++round) {
        NaiveAirfoil airfoil;
        airfoil.Add(1.0, dice.Between(-0.1, 0.1));
        for (std::size_t i = dice.Index(3, 60); i > 0; --i) {
            airfoil.Add(dice.Between(-0.2, 1.0), dice.Between(-0.5, 0.5));
        }
        airfoil.Add(1.0, dice.Between(-0.1, 0.1));
        SCOPED_TRACE(round);
        Compare(airfoil);
    }
}

TEST(ContourSweep, StepsOfZeroEverywhere) {
    Tally tally;
    for (std::size_t at = 1; at < 41; ++at) {
        NaiveAirfoil same_x = MakeAirfoil(Split(41, 0));
        same_x.x[at + 1] = same_x.x[at];
        SCOPED_TRACE(at);
        tally.Count(Compare(same_x));
        NaiveAirfoil same_y = MakeAirfoil(Split(41, 0));
        same_y.y[at + 1] = same_y.y[at];
        tally.Count(Compare(same_y));
    }
    EXPECT_GE(tally.incomplete + tally.impossible, 40);
    EXPECT_GE(tally.complete, 20) << "where samples run along the other axis";
}

TEST(ContourSweep, StepsTooSmallEverywhere) {
    Tally tally;
    for (std::size_t at = 2; at < 40; at += 3) {
        for (const double start : {0.5, 0.3}) { // one fits 32 bits, the other doesn't
            for (const double gap : {1e-7, -1e-7, 1e-9, -1e-9, 1e-12}) {
                NaiveAirfoil airfoil = MakeAirfoil(Split(41, 0));
                airfoil.x[at] = start;
                airfoil.x[at + 1] = start + gap;
                SCOPED_TRACE(at);
                SCOPED_TRACE(gap);
                tally.Count(Compare(airfoil));
            }
        }
    }
    EXPECT_GE(tally.incomplete + tally.impossible, 20);
}

TEST(ContourSweep, ThickTrailingEdges) {
    for (const double gap : {0.001, 0.02, -0.01}) {
        NaiveAirfoil airfoil = MakeAirfoil(Split(51, 0));
        airfoil.y[1] += gap;
        airfoil.y.back() -= gap;
        Compare(airfoil);
    }
}

TEST(ContourSweep, MorePointsThanTheCountHolds) {
    SyntheticAirfoil wanted = Split(3500, 0);
    const NaiveContour naive = Compare(MakeAirfoil(wanted));
    EXPECT_TRUE(naive.alocate_failed);
    EXPECT_EQ(naive.contour.Count(), 32767);
}

} // namespace
} // namespace loftwing
