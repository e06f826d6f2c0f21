#include "support/naive_wing_sheeting.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace loftwing::naive {

namespace {

constexpr int kShares = 400;

using Flat = std::array<double, 2>;

/// One surface's points from the nose, which is the foremost one, to the trailing edge.
std::vector<Flat> SurfaceOf(const NaiveContour &contour, bool above) {
    const std::vector<double> &x = contour.contour.x;
    const std::vector<double> &y = contour.contour.y;
    const auto nose =
        static_cast<std::size_t>(std::min_element(x.begin() + 1, x.end()) - x.begin());
    std::vector<Flat> points;
    if (above) {
        for (std::size_t i = nose; i >= 1; --i) {
            points.push_back({x[i], y[i]});
        }
        return points;
    }
    for (std::size_t i = nose; i < x.size(); ++i) {
        points.push_back({x[i], y[i]});
    }
    return points;
}

/// Lines between the points. `from` moves on with places that grow.
double HeightAt(const std::vector<Flat> &points, double x, std::size_t &from) {
    while (from + 2 < points.size() && points[from + 1][0] < x) {
        ++from;
    }
    const Flat &a = points[from];
    const Flat &b = points[from + 1];
    const double part = a[0] == b[0] ? 1 : std::clamp((x - a[0]) / (b[0] - a[0]), 0.0, 1.0);
    return a[1] + (b[1] - a[1]) * part;
}

/// A rib's run between the sheeting's edges in equal shares of it, close together at its ends.
std::vector<WingPoint> RunOf(const SheetedRib &rib, bool above) {
    const std::vector<Flat> points = SurfaceOf(*rib.contour, above);
    std::vector<WingPoint> run;
    std::size_t from = 0;
    for (int k = 0; k <= kShares; ++k) {
        const double share = (1 - std::cos(std::numbers::pi * k / kShares)) / 2;
        const double behind = rib.front + (rib.rear - rib.front) * share;
        run.push_back(
            {rib.s, rib.nose + behind, HeightAt(points, behind / rib.chord, from) * rib.chord});
    }
    return run;
}

double Distance(const WingPoint &a, const WingPoint &b) {
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

double LengthOf(const std::vector<WingPoint> &run) {
    double length = 0;
    for (std::size_t k = 0; k + 1 < run.size(); ++k) {
        length += Distance(run[k], run[k + 1]);
    }
    return length;
}

/// By the half of the product of two sides.
double Triangle(const WingPoint &a, const WingPoint &b, const WingPoint &c) {
    const WingPoint u{b.x - a.x, b.y - a.y, b.z - a.z};
    const WingPoint v{c.x - a.x, c.y - a.y, c.z - a.z};
    return std::hypot(u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x) / 2;
}

/// Between two runs, the mean of both ways to part each field into triangles.
double Between(const std::vector<WingPoint> &one, const std::vector<WingPoint> &two) {
    double area = 0;
    for (std::size_t k = 0; k + 1 < one.size(); ++k) {
        const WingPoint &a = one[k];
        const WingPoint &b = one[k + 1];
        const WingPoint &c = two[k + 1];
        const WingPoint &d = two[k];
        area += (Triangle(a, b, c) + Triangle(a, c, d) + Triangle(a, b, d) + Triangle(b, c, d)) / 2;
    }
    return area;
}

/// The sides of the rectangle around some points, one side in a direction, the longer side first.
std::array<double, 2> Around(const std::vector<Flat> &points, double dx, double dy) {
    const double length = std::hypot(dx, dy);
    std::array<double, 2> least{1e9, 1e9};
    std::array<double, 2> most{-1e9, -1e9};
    for (const Flat &p : points) {
        const std::array<double, 2> at{(p[0] * dx + p[1] * dy) / length,
                                       (p[1] * dx - p[0] * dy) / length};
        for (const std::size_t i : {0U, 1U}) {
            least[i] = std::min(least[i], at[i]);
            most[i] = std::max(most[i], at[i]);
        }
    }
    const double along = most[0] - least[0];
    const double across = most[1] - least[1];
    return {std::max(along, across), std::min(along, across)};
}

std::array<double, 2> Smaller(const std::array<double, 2> &a, const std::array<double, 2> &b) {
    return b[0] * b[1] < a[0] * a[1] ? b : a;
}

/// Turned by thousandths of a degree around the best of the degrees.
std::array<double, 2> Smallest(const std::vector<Flat> &points) {
    double best = 0;
    double least = std::numeric_limits<double>::max();
    const auto at = [&](double degrees) {
        const double angle = degrees * std::numbers::pi / 180;
        return Around(points, std::cos(angle), std::sin(angle));
    };
    const auto look = [&](double from, double to, double step) {
        for (double degrees = from; degrees <= to; degrees += step) {
            const std::array<double, 2> sides = at(degrees);
            if (sides[0] * sides[1] < least) {
                least = sides[0] * sides[1];
                best = degrees;
            }
        }
    };
    look(-90, 90, 0.1);
    look(best - 0.1, best + 0.1, 0.001);
    return at(best);
}

} // namespace

WingSheeting SheetingOf(const std::vector<SheetedRib> &ribs, double slope, bool above) {
    WingSheeting sheeting;
    std::vector<std::vector<WingPoint>> runs;
    std::vector<double> arcs;
    for (const SheetedRib &rib : ribs) {
        runs.push_back(RunOf(rib, above));
        arcs.push_back(LengthOf(runs.back()));
    }
    for (std::size_t i = 0; i + 1 < runs.size(); ++i) {
        sheeting.area += Between(runs[i], runs[i + 1]);
    }
    const double half_root = ribs.front().thickness / 2;
    const double half_tip = ribs.back().thickness / 2;
    sheeting.area += arcs.front() * half_root + arcs.back() * half_tip;
    sheeting.arc = *std::max_element(arcs.begin(), arcs.end());

    // A rib is a plate: its run is the same over its whole thickness.
    std::vector<Flat> front;
    std::vector<Flat> rear;
    for (std::size_t i = 0; i < ribs.size(); ++i) {
        for (const double side : {-0.5, 0.5}) {
            const double away = side * ribs[i].thickness;
            const double y = ribs[i].nose + ribs[i].front + slope * away;
            front.push_back({ribs[i].s + away, y});
            rear.push_back({ribs[i].s + away, y + arcs[i]});
        }
    }
    std::vector<Flat> all = front;
    all.insert(all.end(), rear.begin(), rear.end());
    sheeting.board = Around(all, 1, 0);
    for (const std::vector<Flat> &side : {front, rear}) {
        sheeting.board = Smaller(sheeting.board, Around(all, side.back()[0] - side.front()[0],
                                                        side.back()[1] - side.front()[1]));
    }
    sheeting.smallest = Smallest(all);
    return sheeting;
}

} // namespace loftwing::naive
