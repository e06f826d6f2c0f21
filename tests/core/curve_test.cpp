#include "core/curve.h"

#include "support/failures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace loftwing {
namespace {

double NaiveDistance(const Curve &line, const CurvePoint &p) {
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        const double dx = line[i + 1].x - line[i].x;
        const double dy = line[i + 1].y - line[i].y;
        const double square = dx * dx + dy * dy;
        double t = square == 0 ? 0 : ((p.x - line[i].x) * dx + (p.y - line[i].y) * dy) / square;
        t = std::min(1.0, std::max(0.0, t));
        nearest = std::min(nearest, std::hypot(p.x - line[i].x - t * dx, p.y - line[i].y - t * dy));
    }
    return nearest;
}

TEST(NearPolyline, GivesTheDistanceToItsNearestPlace) {
    const NearPolyline line({{0, 0}, {4, 0}, {4, 3}});
    EXPECT_DOUBLE_EQ(line({2, 1}), 1);
    EXPECT_DOUBLE_EQ(line({-3, 4}), 5);
    EXPECT_DOUBLE_EQ(line({6, 2}), 2);
    EXPECT_DOUBLE_EQ(line({4, 1}), 0);
}

TEST(NearPolyline, AgreesWithLookingAtEverySegment) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-2, 3);
    for (const int count : {2, 3, 9, 80, 700}) {
        Curve line;
        for (int i = 0; i < count; ++i) {
            line.push_back({place(random), place(random)});
        }
        line.push_back({line.front().x, 9}); // a long segment
        const NearPolyline near(line);
        std::size_t around = 100000; // beyond the last segment
        for (int i = 0; i < 60; ++i) {
            const CurvePoint p{2 * place(random), 2 * place(random)};
            EXPECT_NEAR(near(p), NaiveDistance(line, p), 1e-12) << count;
            EXPECT_EQ(near(p, around), near(p)) << count;
            EXPECT_LT(around, line.size());
        }
    }
}

TEST(NearPolyline, FindsPlacesThatRoundingLaysBesideTheLine) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> step(0.003, 0.007);
    for (int wave = 0; wave < 100; ++wave) {
        Curve line;
        for (double x = 1; line.size() < 200; x -= step(random)) {
            line.push_back({x, 0.1 * std::sin(7 * x + wave)});
        }
        const NearPolyline near(line);
        std::size_t around = 0;
        for (std::size_t i = 0; i + 1 < line.size(); ++i) {
            for (const double share : {0.0, 0.3, 0.7, 1.0}) {
                const CurvePoint p{line[i].x + share * (line[i + 1].x - line[i].x),
                                   line[i].y + share * (line[i + 1].y - line[i].y)};
                ASSERT_LT(near(p, around), 1e-15) << wave << " " << i << " " << share;
            }
        }
    }
}

/// The farthest of points, each measured for itself and from every segment.
double NaiveFarthest(const Curve &line, const Curve &points) {
    double farthest = 0;
    for (const CurvePoint &point : points) {
        farthest = std::max(farthest, NaiveDistance(line, point));
    }
    return farthest;
}

constexpr double kAnyDistance = std::numeric_limits<double>::infinity();

/// Points beside a line, up to `width` away from it, in its order.
Curve Beside(const Curve &line, double width, std::mt19937 &random) {
    std::uniform_real_distribution<double> off(-width, width);
    Curve points;
    for (const CurvePoint &point : line) {
        for (int i = 0; i < 3; ++i) {
            points.push_back({point.x + off(random), point.y + off(random)});
        }
    }
    return points;
}

TEST(NearPolyline, TellsTheFarthestOfManyPoints) {
    std::mt19937 random(11);
    for (const double width : {0.0, 1e-9, 0.001, 0.3}) {
        Curve line;
        for (int i = 0; i <= 150; ++i) {
            line.push_back({std::cos(0.04 * i), 0.2 * std::sin(0.12 * i)});
        }
        const NearPolyline near(line);
        Curve points = Beside(line, width, random);
        const double farthest = NaiveFarthest(line, points);
        EXPECT_NEAR(near.Farthest(points, 0, kAnyDistance), farthest, 1e-15) << width;
        // However they follow each other.
        std::shuffle(points.begin(), points.end(), random);
        EXPECT_NEAR(near.Farthest(points, 0, kAnyDistance), farthest, 1e-15) << width;
        double each = 0;
        for (const CurvePoint &point : points) {
            each = std::max(each, near(point));
        }
        EXPECT_EQ(near.Farthest(points, 0, kAnyDistance), each) << width;
        EXPECT_EQ(near.Farthest(points, each / 2, kAnyDistance), each) << width;
    }
}

TEST(NearPolyline, TellsTheFarthestWhereTheWayAlongTheLineMisleads) {
    // Two long strokes one above the other: the way along the lower one ends below the point, while
    // the upper one passes through it.
    const Curve line = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {9, 0}, {9, 1}, {3, 1}, {0, 1}};
    const Curve points = {{0.1, 0}, {1.1, 1}, {2.1, 1}, {2.2, 0.75}};
    EXPECT_DOUBLE_EQ(NearPolyline(line).Farthest(points, 0, kAnyDistance), 0.25);
    // Farther along than is looked.
    Curve flat;
    for (int i = 0; i <= 1000; ++i) {
        flat.push_back({i / 1000.0, 0});
    }
    EXPECT_DOUBLE_EQ(
        NearPolyline(flat).Farthest({{0, 0.25}, {1, 0.125}, {0, 0.5}}, 0, kAnyDistance), 0.5);
}

TEST(NearPolyline, TellsNoMoreOfTheFarthestThanIsAskedFor) {
    const NearPolyline line({{0, 0}, {1, 0}});
    const Curve points = {{0, 0.5}, {0.5, 2}, {0.75, 3}};
    EXPECT_EQ(line.Farthest(points, 4, kAnyDistance), 4);
    EXPECT_EQ(line.Farthest(points, 3, kAnyDistance), 3);
    EXPECT_EQ(line.Farthest(points, 1, kAnyDistance), 3);
    EXPECT_GE(line.Farthest(points, 0, 1), 1);
    EXPECT_EQ(line.Farthest(points, 0, 5), 3);
    EXPECT_EQ(line.Farthest({}, 0, kAnyDistance), 0);
    EXPECT_EQ(NearPolyline({{1, 1}}).Farthest({{1, 4}, {1, 2}}, 0, kAnyDistance), 3);
}

TEST(NearPolyline, HasItsFarthestPointBeyondAllNumbersWhereOneIsNoPlace) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const NearPolyline line({{0, 0}, {1, 0}});
    EXPECT_TRUE(std::isinf(line.Farthest({{0, 1}, {nan, 0}, {0, 2}}, 0, kAnyDistance)));
    EXPECT_TRUE(std::isinf(line.Farthest({{0, 1}, {0, kAnyDistance}}, 3, kAnyDistance)));
    // Squares leave the range of numbers before distances do.
    EXPECT_DOUBLE_EQ(line.Farthest({{0, 1}, {0, 3e200}, {0, 2e200}}, 0, kAnyDistance), 3e200);
    EXPECT_DOUBLE_EQ(line.Farthest({{0, 1e-200}, {0, 3e-200}}, 0, kAnyDistance), 3e-200);
}

TEST(NearPolyline, IsInfinitelyFarFromWhatIsNoPlace) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isinf(NearPolyline({{0, 0}, {1, 0}})({nan, 0})));
    EXPECT_DOUBLE_EQ(NearPolyline({{0, 0}, {nan, nan}, {1, 0}})({0.5, 2}), 2);
    EXPECT_DOUBLE_EQ(NearPolyline({{1, 1}})({1, 4}), 3);
    EXPECT_EQ(FailureOf([nan] { NearPolyline(Curve{{nan, 0}}); }), kInvalidProcedureCall);
}

TEST(NaturalSpline, OfThreePointsIsTheOneComputedByHand) {
    // Both polygon sides are sqrt(2) long. With h = sqrt(2) the middle second derivative of y is
    // 6 (-2 / h) / (4 h) = -1.5, and y half way up is 0.5 + 1.5 h^2 / 16 = 0.6875.
    const NaturalSpline spline({{0, 0}, {1, 1}, {2, 0}});
    const double h = std::sqrt(2.0);
    EXPECT_DOUBLE_EQ(spline.Length(), 2 * h);
    EXPECT_DOUBLE_EQ(spline.KnotAt(1), h);
    EXPECT_NEAR(spline(h / 2).x, 0.5, 1e-15);
    EXPECT_NEAR(spline(h / 2).y, 0.6875, 1e-15);
    EXPECT_NEAR(spline(1.5 * h).y, 0.6875, 1e-15);
}

TEST(NaturalSpline, GoesThroughItsPointsWithoutAKinkAndEndsStraight) {
    const Curve points = {{0, 0}, {1, 2}, {1.5, 2.2}, {4, -1}, {4.1, 0}};
    const NaturalSpline spline(points);
    const double d = 1e-4;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double s = spline.KnotAt(i);
        EXPECT_NEAR(Distance(spline(s), points[i]), 0, 1e-12);
        if (i == 0 || i + 1 == points.size()) {
            continue;
        }
        const CurvePoint before = spline(s - d);
        const CurvePoint behind = spline(s + d);
        const CurvePoint farther = spline(s + 2 * d);
        const CurvePoint nearer = spline(s - 2 * d);
        EXPECT_NEAR((behind.y - points[i].y) / d, (points[i].y - before.y) / d, 0.02) << i;
        EXPECT_NEAR((farther.y - 2 * behind.y + points[i].y) / d / d,
                    (points[i].y - 2 * before.y + nearer.y) / d / d, 0.1)
            << i;
    }
    const CurvePoint a = spline(d);
    const CurvePoint b = spline(2 * d);
    EXPECT_NEAR((b.y - 2 * a.y + points[0].y) / d / d, 0, 0.01);
}

TEST(NaturalSpline, TakesTwoPointsAndRefusesWhatIsNoCurve) {
    EXPECT_DOUBLE_EQ(NaturalSpline({{0, 0}, {2, 2}})(std::sqrt(2.0)).x, 1);
    EXPECT_EQ(FailureOf([] { NaturalSpline({{0, 0}}); }), kInvalidProcedureCall);
    EXPECT_EQ(FailureOf([] { NaturalSpline({{0, 0}, {0, 0}, {1, 1}}); }), kInvalidProcedureCall);
}

TEST(NaturalSpline, IsSampledFromPointToPoint) {
    const NaturalSpline spline({{0, 0}, {1, 1}, {2, 0}});
    const Curve line = spline.Sampled(2);
    ASSERT_EQ(line.size(), 5U);
    EXPECT_EQ(line[2], (CurvePoint{1, 1}));
    EXPECT_NEAR(line[1].y, 0.6875, 1e-15);
    EXPECT_EQ(line[4], (CurvePoint{2, 0}));
}

TEST(NaturalSpline, IsSampledWhereItLies) {
    // The last two points touch, so that rounding brings places between them onto one of them.
    const Curve points = {{1, 0}, {0.6, 0.07}, {0, 0}, {0.4, -0.01}, {1, 0}, {1, 1e-15}};
    const NaturalSpline spline(points);
    const int steps = 40;
    const Curve line = spline.Sampled(steps);
    ASSERT_EQ(line.size(), 5U * 40 + 1);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        EXPECT_EQ(line[i * 40], points[i]);
        for (int step = 1; step < steps; ++step) {
            const double s =
                spline.KnotAt(i) + (spline.KnotAt(i + 1) - spline.KnotAt(i)) * step / steps;
            EXPECT_EQ(line[i * 40 + static_cast<std::size_t>(step)], spline(s)) << i << " " << step;
        }
    }
}

} // namespace
} // namespace loftwing
