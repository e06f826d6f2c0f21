#include "core/curve.h"

#include "base/failure.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <utility>

namespace loftwing {

namespace {

constexpr std::size_t kRun = 8; // segments in a box of their own

/// Points of a line that are looked at for the next one of many: none of a contour's samples is
/// that far from the one before, and a line that was laid to mislead shall cost no more.
constexpr std::size_t kReach = 100;

bool IsFinite(const CurvePoint &point) {
    return std::isfinite(point.x) && std::isfinite(point.y);
}

/// The second derivatives of a natural cubic spline through `values` over `at`: the tridiagonal
/// system, solved from both ends (Thomas's algorithm).
std::vector<double> Bends(const std::vector<double> &at, const std::vector<double> &values) {
    const std::size_t count = values.size();
    std::vector<double> bends(count, 0.0);
    std::vector<double> ratio(count, 0.0);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const double before = at[i] - at[i - 1];
        const double behind = at[i + 1] - at[i];
        const double wanted =
            6.0 * ((values[i + 1] - values[i]) / behind - (values[i] - values[i - 1]) / before);
        const double pivot = 2.0 * (before + behind) - before * ratio[i - 1];
        ratio[i] = behind / pivot;
        bends[i] = (wanted - before * bends[i - 1]) / pivot;
    }
    for (std::size_t i = count - 1; i-- > 1;) {
        bends[i] -= ratio[i] * bends[i + 1];
    }
    return bends;
}

/// The place on the segment from `a` to `b` that comes nearest to `point`.
CurvePoint NearestOn(const CurvePoint &a, const CurvePoint &b, const CurvePoint &point) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along =
        square > 0 ? std::clamp(((point.x - a.x) * dx + (point.y - a.y) * dy) / square, 0.0, 1.0)
                   : 0.0;
    return {a.x + along * dx, a.y + along * dy};
}

double Square(const CurvePoint &a, const CurvePoint &b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    return dx * dx + dy * dy;
}

/// Squares of places that may be as near as one of that square, however roots are rounded.
double Beyond(double square) {
    constexpr double kRounding = 1e-9;
    return square * (1 + kRounding) + std::numeric_limits<double>::min();
}

} // namespace

double Distance(const CurvePoint &a, const CurvePoint &b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

NearPolyline::NearPolyline(Curve line) : line_(std::move(line)) {
    std::erase_if(line_, [](const CurvePoint &point) { return !IsFinite(point); });
    if (line_.empty()) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    constexpr double kFar = std::numeric_limits<double>::infinity();
    leaves_ = std::bit_ceil((Segments() + kRun - 1) / kRun);
    boxes_.assign(2 * leaves_, {{kFar, kFar}, {-kFar, -kFar}});
    for (std::size_t first = 0; first < Segments(); ++first) {
        Box &box = boxes_[leaves_ + first / kRun];
        // The end as places on the segment are computed, which rounding may put beside the point:
        // a box has all places that OnSegment gives.
        const CurvePoint &from = line_[first];
        const CurvePoint &to = line_[std::min(first + 1, line_.size() - 1)];
        const CurvePoint end = {from.x + (to.x - from.x), from.y + (to.y - from.y)};
        box.low = {std::min({box.low.x, from.x, end.x}), std::min({box.low.y, from.y, end.y})};
        box.high = {std::max({box.high.x, from.x, end.x}), std::max({box.high.y, from.y, end.y})};
    }
    for (std::size_t i = leaves_; i-- > 1;) {
        const Box &one = boxes_[2 * i];
        const Box &other = boxes_[2 * i + 1];
        boxes_[i] = {{std::min(one.low.x, other.low.x), std::min(one.low.y, other.low.y)},
                     {std::max(one.high.x, other.high.x), std::max(one.high.y, other.high.y)}};
    }
}

/// A single point counts as one without length.
std::size_t NearPolyline::Segments() const {
    return std::max<std::size_t>(line_.size() - 1, 1);
}

CurvePoint NearPolyline::OnSegment(const CurvePoint &point, std::size_t first) const {
    return NearestOn(line_[first], line_[std::min(first + 1, line_.size() - 1)], point);
}

/// Roots take long: segments are compared by squares, and the distance is measured to those alone
/// that may be the nearest when both are rounded.
double NearPolyline::operator()(const CurvePoint &point, std::size_t &around) const {
    if (!IsFinite(point)) {
        return std::numeric_limits<double>::infinity();
    }
    Search search{point, {}};
    around = std::min(around, Segments() - 1);
    const double square_around = Square(point, OnSegment(point, around));
    if (!std::isnan(square_around)) {
        search.beyond = Beyond(square_around);
    }
    Look(search, 1);
    double nearest = std::numeric_limits<double>::infinity();
    for (const auto &[square, first] : search.candidates) {
        if (square <= search.beyond) {
            nearest = std::min(nearest, Distance(point, OnSegment(point, first)));
            around = first;
        }
    }
    return nearest;
}

double NearPolyline::operator()(const CurvePoint &point) const {
    std::size_t around = 0;
    return (*this)(point, around);
}

/// The square of the distance to a place near `point`, looked for along the line from its point
/// `around`, which becomes the one that is found. The nearest place may be a nearer one.
double NearPolyline::SquareAround(const CurvePoint &point, std::size_t &around) const {
    std::size_t here = std::min(around, line_.size() - 1);
    double square = Square(point, line_[here]);
    const auto moves_to = [&](std::size_t next) {
        const double further = Square(point, line_[next]);
        if (!(further <= square)) {
            return false;
        }
        square = further;
        here = next;
        return true;
    };
    const std::size_t last = std::min(here + kReach, line_.size() - 1);
    const std::size_t first = here - std::min(here, kReach);
    while (here < last && moves_to(here + 1)) {
    }
    while (here > first && moves_to(here - 1)) {
    }
    around = here;
    const std::size_t before = here - std::min<std::size_t>(here, 1);
    return std::min(Square(point, OnSegment(point, before)),
                    Square(point, OnSegment(point, std::min(here, Segments() - 1))));
}

/// A point needn't be measured where a place that is surely no nearer than its nearest one lies
/// within the farthest so far. What is likely the farthest comes first.
double NearPolyline::Farthest(const Curve &points, double least, double enough) const {
    struct Candidate {
        double square;
        std::size_t point;
        std::size_t around;
        bool operator<(const Candidate &other) const { return square < other.square; }
    };
    std::vector<Candidate> candidates;
    std::size_t around = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double square = SquareAround(points[i], around);
        if (!(Beyond(square) < least * least)) {
            constexpr double kFar = std::numeric_limits<double>::infinity();
            candidates.push_back({std::isnan(square) ? kFar : square, i, around});
        }
    }
    std::make_heap(candidates.begin(), candidates.end());
    double farthest = least;
    while (!candidates.empty() && farthest < enough &&
           !(Beyond(candidates.front().square) < farthest * farthest)) {
        Candidate &next = candidates.front();
        farthest = std::max(farthest, (*this)(points[next.point], next.around));
        std::pop_heap(candidates.begin(), candidates.end());
        candidates.pop_back();
    }
    return farthest;
}

void NearPolyline::Look(Search &search, std::size_t i) const {
    const CurvePoint &point = search.point;
    if (i >= leaves_) {
        const std::size_t first = (i - leaves_) * kRun;
        const std::size_t last = std::min(first + kRun, Segments());
        for (std::size_t segment = first; segment < last; ++segment) {
            const double square = Square(point, OnSegment(point, segment));
            if (square <= search.beyond) {
                search.beyond = std::min(search.beyond, Beyond(square));
                search.candidates.push_back({square, segment});
            }
        }
        return;
    }
    // No place in a box is nearer than its nearest side.
    const auto gap = [&](std::size_t box) {
        const auto &[low, high] = boxes_[box];
        const double wide =
            std::max({0.0, low.x - point.x, point.x - high.x, low.y - point.y, point.y - high.y});
        return wide * wide;
    };
    const double one = gap(2 * i);
    const double other = gap(2 * i + 1);
    const bool swapped = other < one;
    for (const bool second : {swapped, !swapped}) {
        if ((second ? other : one) <= search.beyond) {
            Look(search, 2 * i + (second ? 1 : 0));
        }
    }
}

NaturalSpline::NaturalSpline(Curve points) : points_(std::move(points)) {
    if (points_.size() < 2) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    std::vector<double> xs;
    std::vector<double> ys;
    for (const CurvePoint &point : points_) {
        const double step = xs.empty() ? 0.0 : Distance({xs.back(), ys.back()}, point);
        if (!IsFinite(point) || (!xs.empty() && !(step > 0))) {
            throw MakeFailure(kInvalidProcedureCall);
        }
        at_.push_back(at_.empty() ? 0.0 : at_.back() + step);
        xs.push_back(point.x);
        ys.push_back(point.y);
    }
    const std::vector<double> across = Bends(at_, xs);
    const std::vector<double> up = Bends(at_, ys);
    for (std::size_t i = 0; i < across.size(); ++i) {
        bends_.push_back({across[i], up[i]});
    }
}

CurvePoint NaturalSpline::operator()(double s) const {
    const auto behind = std::upper_bound(at_.begin() + 1, at_.end() - 1, s);
    return Behind(static_cast<std::size_t>(behind - at_.begin()) - 1, s);
}

/// The place at length `s`, which lies between point `lo` and the next.
CurvePoint NaturalSpline::Behind(std::size_t lo, double s) const {
    const std::size_t hi = lo + 1;
    const double h = at_[hi] - at_[lo];
    const double b = (s - at_[lo]) / h;
    const double a = 1.0 - b;
    const double fa = (a * a * a - a) * h * h / 6.0;
    const double fb = (b * b * b - b) * h * h / 6.0;
    return {a * points_[lo].x + b * points_[hi].x + fa * bends_[lo].x + fb * bends_[hi].x,
            a * points_[lo].y + b * points_[hi].y + fa * bends_[lo].y + fb * bends_[hi].y};
}

Curve NaturalSpline::Sampled(int steps) const {
    Curve line;
    line.reserve((points_.size() - 1) * static_cast<std::size_t>(steps) + 1);
    for (std::size_t i = 0; i + 1 < points_.size(); ++i) {
        line.push_back(points_[i]);
        for (int step = 1; step < steps; ++step) {
            const double s = at_[i] + (at_[i + 1] - at_[i]) * step / steps;
            // Rounding may bring a place between points that touch to the second one.
            line.push_back(s < at_[i + 1] ? Behind(i, s) : (*this)(s));
        }
    }
    line.push_back(points_.back());
    return line;
}

} // namespace loftwing
