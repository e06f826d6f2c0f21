#include "programme/developpe.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace loftwing {

namespace {

constexpr std::size_t kPas = 400; // of a run, where two are compared

double Distance(const PointAile &a, const PointAile &b) {
    return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

PointAile Entre(const PointAile &a, const PointAile &b, double part) {
    return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part, a.z + (b.z - a.z) * part};
}

double Triangle(const PointAile &a, const PointAile &b, const PointAile &c) {
    const PointAile u{b.x - a.x, b.y - a.y, b.z - a.z};
    const PointAile v{c.x - a.x, c.y - a.y, c.z - a.z};
    return std::hypot(u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x) / 2;
}

/// A surface of the outline from its foremost point to the trailing edge, in chords.
std::vector<PointMm> SurfaceDe(const PartiesRib &rib, bool dessus) {
    const long count = rib.NbContour;
    long nose = 1;
    for (long i = 2; i <= count; ++i) {
        nose = rib.ContourX(i) < rib.ContourX(nose) ? i : nose;
    }
    std::vector<PointMm> points;
    points.reserve(static_cast<std::size_t>(count));
    for (long i = nose; i >= 1 && i <= count; i += dessus ? -1 : 1) {
        points.push_back({rib.ContourX(i), rib.ContourY(i)});
    }
    return points;
}

/// The same run as points at equal shares of its length.
CourseCoffrage EnPas(const CourseCoffrage &course) {
    CourseCoffrage even;
    even.reserve(kPas + 1);
    const double step = LongueurDe(course) / static_cast<double>(kPas);
    double before = 0; // length up to the segment
    std::size_t i = 1;
    for (std::size_t k = 0; k < kPas; ++k) {
        const double wanted = step * static_cast<double>(k);
        while (i + 1 < course.size() && before + Distance(course[i - 1], course[i]) < wanted) {
            before += Distance(course[i - 1], course[i]);
            ++i;
        }
        const double run = Distance(course[i - 1], course[i]);
        const double part = run > 0 ? std::clamp((wanted - before) / run, 0.0, 1.0) : 0;
        even.push_back(Entre(course[i - 1], course[i], part));
    }
    even.push_back(course.back());
    return even;
}

} // namespace

CourseCoffrage CourseDe(const PartiesRib &rib, bool dessus, double de, double a, double x,
                        double y) {
    const double corde = Wide(rib.corde);
    const std::vector<PointMm> surface = SurfaceDe(rib, dessus);
    CourseCoffrage course;
    const auto take = [&](const PointMm &point) { course.push_back({x, y + point.x, point.y}); };
    for (std::size_t i = 1; i < surface.size(); ++i) {
        const PointMm from{surface[i - 1].x * corde, surface[i - 1].y * corde};
        const PointMm to{surface[i].x * corde, surface[i].y * corde};
        // Near the nose a run may go back a little; what lies outside counts as its end.
        const double run = to.x - from.x;
        const auto cut = [&](double at) {
            const double part = (at - from.x) / run;
            return PointMm{at, from.y + (to.y - from.y) * part};
        };
        if (std::max(from.x, to.x) < de || std::min(from.x, to.x) > a) {
            continue;
        }
        if (course.empty()) {
            take(from.x < de && run != 0 ? cut(de) : from);
        }
        take(to.x > a && run != 0 ? cut(a) : to);
    }
    return course.size() < 2 ? CourseCoffrage{} : course;
}

double LongueurDe(const CourseCoffrage &course) {
    double length = 0;
    for (std::size_t i = 1; i < course.size(); ++i) {
        length += Distance(course[i - 1], course[i]);
    }
    return length;
}

double AireReglee(const CourseCoffrage &a, const CourseCoffrage &b) {
    if (a.empty() || b.empty()) {
        return 0;
    }
    const CourseCoffrage here = EnPas(a);
    const CourseCoffrage there = EnPas(b);
    double area = 0;
    for (std::size_t k = 1; k < here.size(); ++k) {
        area += Triangle(here[k - 1], here[k], there[k - 1]) +
                Triangle(here[k], there[k], there[k - 1]);
    }
    return area;
}

std::array<double, 2> RectangleAutour(const std::vector<PointMm> &points,
                                      const std::vector<PointMm> &directions) {
    std::array<double, 2> best{};
    double least = std::numeric_limits<double>::infinity();
    for (const PointMm &way : directions) {
        const double length = std::hypot(way.x, way.y);
        if (points.empty() || !(length > 0)) {
            continue;
        }
        double left = std::numeric_limits<double>::infinity();
        double right = -left;
        double low = left;
        double high = -left;
        for (const PointMm &point : points) {
            const double along = (point.x * way.x + point.y * way.y) / length;
            const double across = (point.y * way.x - point.x * way.y) / length;
            left = std::min(left, along);
            right = std::max(right, along);
            low = std::min(low, across);
            high = std::max(high, across);
        }
        const double area = (right - left) * (high - low);
        if (area < least) {
            least = area;
            best = {right - left, high - low};
        }
    }
    return best;
}

} // namespace loftwing
