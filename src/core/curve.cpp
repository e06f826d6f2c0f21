#include "core/curve.h"

#include "base/failure.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace loftwing {

namespace {

constexpr std::size_t kMostStrips = 512;

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

/// A square of distances above which none can be less than `distance`, however both are rounded.
double SquareBeyond(double distance) {
    constexpr double kRounding = 1e-9;
    return distance * distance * (1 + kRounding) + std::numeric_limits<double>::min();
}

} // namespace

double Distance(const CurvePoint &a, const CurvePoint &b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

NearPolyline::NearPolyline(const Curve &line) {
    std::copy_if(line.begin(), line.end(), std::back_inserter(line_), IsFinite);
    if (line_.empty()) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    const auto [low, high] =
        std::minmax_element(line_.begin(), line_.end(),
                            [](const CurvePoint &a, const CurvePoint &b) { return a.x < b.x; });
    left_ = low->x;
    strips_.resize(std::clamp<std::size_t>(line_.size() / 4, 1, kMostStrips));
    const double width = (high->x - left_) / static_cast<double>(strips_.size());
    width_ = width > 0 && std::isfinite(width) ? width : 1.0;
    const auto each_in_strip = [this](const auto &take) {
        for (std::size_t first = 0; first + 1 < line_.size() || first == 0; ++first) {
            const CurvePoint &a = line_[first];
            const CurvePoint &b = line_[std::min(first + 1, line_.size() - 1)];
            const std::size_t last = StripOf(std::max(a.x, b.x));
            for (std::size_t strip = StripOf(std::min(a.x, b.x)); strip <= last; ++strip) {
                take(strip, first);
            }
        }
    };
    // Counted before they are kept: most of the time would go into lists that grow.
    std::vector<std::size_t> counts(strips_.size(), 0);
    each_in_strip([&counts](std::size_t strip, std::size_t) { ++counts[strip]; });
    for (std::size_t strip = 0; strip < counts.size(); ++strip) {
        strips_[strip].reserve(counts[strip]);
    }
    each_in_strip(
        [this](std::size_t strip, std::size_t first) { strips_[strip].push_back(first); });
}

std::size_t NearPolyline::StripOf(double x) const {
    const double strip = (x - left_) / width_;
    const auto last = static_cast<double>(strips_.size() - 1);
    return static_cast<std::size_t>(std::clamp(strip, 0.0, last));
}

double NearPolyline::ToSegment(const CurvePoint &point, std::size_t first) const {
    return Distance(point,
                    NearestOn(line_[first], line_[std::min(first + 1, line_.size() - 1)], point));
}

double NearPolyline::operator()(const CurvePoint &point) const {
    double nearest = std::numeric_limits<double>::infinity();
    if (!IsFinite(point)) {
        return nearest;
    }
    double beyond = nearest;
    // The exact distance takes long, and few segments come near enough to need it.
    const auto look = [&](std::size_t strip) {
        for (const std::size_t first : strips_[strip]) {
            const CurvePoint &end = line_[std::min(first + 1, line_.size() - 1)];
            if (Square(point, NearestOn(line_[first], end, point)) <= beyond) {
                nearest = std::min(nearest, ToSegment(point, first));
                beyond = SquareBeyond(nearest);
            }
        }
    };
    const std::size_t home = StripOf(point.x);
    look(home);
    // A strip farther off by x than the nearest so far has nothing nearer.
    for (std::size_t strip = home;
         strip-- > 0 && point.x - (left_ + static_cast<double>(strip + 1) * width_) <= nearest;) {
        look(strip);
    }
    for (std::size_t strip = home + 1;
         strip < strips_.size() && left_ + static_cast<double>(strip) * width_ - point.x <= nearest;
         ++strip) {
        look(strip);
    }
    return nearest;
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
    const auto hi = static_cast<std::size_t>(behind - at_.begin());
    const std::size_t lo = hi - 1;
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
            line.push_back((*this)(at_[i] + (at_[i + 1] - at_[i]) * step / steps));
        }
    }
    line.push_back(points_.back());
    return line;
}

} // namespace loftwing
