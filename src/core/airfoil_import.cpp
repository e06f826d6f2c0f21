#include "core/airfoil_import.h"

#include "base/failure.h"
#include "core/contour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <numbers>
#include <utility>

namespace loftwing {

namespace {

using Points = std::vector<ImportPoint>;

/// Segments of the spline's polyline between two points. Their arrows are smaller than a hundredth
/// of the tolerance even around a nose of five points.
constexpr int kYardstickSteps = 40;

/// Points so dense that those segments would be more than that have fewer of them: between such
/// points there is nothing to see.
constexpr std::size_t kMostSegments = 1'000'000;

int StepsBetween(std::size_t points) {
    return static_cast<int>(std::clamp<std::size_t>(
        kMostSegments / std::max<std::size_t>(points, 1), 1, kYardstickSteps));
}

/// Numbers of points that are tried one after the other.
constexpr std::array<int, 6> kCounts = {160, 240, 320, 640, 1280, kMostLaid};

Curve CurveOf(const Points &points) {
    Curve curve;
    for (const ImportPoint &point : points) {
        curve.push_back(point.at);
    }
    return curve;
}

/// A value of a point has changed, and with it its text is gone.
void Place(ImportPoint &point, const CurvePoint &at) {
    point.at = at;
    point.x.clear();
    point.y.clear();
}

bool IsOff(double value, double wanted) {
    return std::abs(value - wanted) > kImportTolerance;
}

/// Moves and scales nose and trailing edge to 0 and 1 where one of them is off.
void Normalise(ImportedAirfoil &airfoil) {
    Points &points = airfoil.points;
    const double nose = points[NoseOf(points)].at.x;
    const double end = std::max(points.front().at.x, points.back().at.x);
    if (!(end > nose)) {
        throw ImportRefusal{ImportReason::no_chord, points.front().line};
    }
    airfoil.scaled = airfoil.scaled || IsOff(nose, 0) || IsOff(points.front().at.x, 1) ||
                     IsOff(points.back().at.x, 1);
    if (airfoil.scaled) {
        const double chord = end - nose;
        for (ImportPoint &point : points) {
            Place(point, {(point.at.x - nose) / chord, point.at.y / chord});
        }
    }
}

/// Drops points between the ends that lie where a point beside them does, by what a file tells
/// apart: no direction leads from one to the other, and a curve through both could take any.
int DropAtSamePlace(Points &points) {
    constexpr double kSamePlace = 1e-9; // of the chord
    const auto same = [](const ImportPoint &a, const ImportPoint &b) {
        return Distance(a.at, b.at) <= kSamePlace;
    };
    const ImportPoint end = points.back();
    const std::size_t before = points.size();
    points.pop_back();
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
    while (points.size() > 1 && same(points.back(), end)) {
        points.pop_back();
    }
    points.push_back(end);
    return static_cast<int>(before - points.size());
}

/// Ends at 1, and nothing that reaches it between them: a list of points ends at the first such x.
void EndAtOne(ImportedAirfoil &airfoil) {
    Points &points = airfoil.points;
    airfoil.file = CurveOf(points);
    for (ImportPoint *end : {&points.front(), &points.back()}) {
        if (end->at.x != 1) {
            end->at.x = 1;
            end->x = "1.000000";
        }
    }
    const auto inside = std::remove_if(points.begin() + 1, points.end() - 1,
                                       [](const ImportPoint &point) { return point.at.x >= 1; });
    airfoil.dropped += static_cast<int>(points.end() - 1 - inside);
    points.erase(inside, points.end() - 1);
    airfoil.dropped += DropAtSamePlace(points);
    if (points.size() < 5) {
        throw ImportRefusal{ImportReason::too_few_points, 0};
    }
}

/// Turns all around the nose until the middle of the trailing edge lies at its height 0.
void Level(ImportedAirfoil &airfoil) {
    Points &points = airfoil.points;
    const CurvePoint nose = points[NoseOf(points)].at;
    const double x = (points.front().at.x + points.back().at.x) / 2 - nose.x;
    const double y = (points.front().at.y + points.back().at.y) / 2;
    const double angle = -std::atan2(y, x);
    airfoil.turned = angle * 180 / std::numbers::pi;
    for (ImportPoint &point : points) {
        const double dx = point.at.x - nose.x;
        Place(point, {nose.x + dx * std::cos(angle) - point.at.y * std::sin(angle),
                      dx * std::sin(angle) + point.at.y * std::cos(angle)});
    }
    airfoil.scaled = true; // the chord is shorter or longer now
}

Profil ProfilOf(const Curve &points) {
    Profil profil;
    profil.NbPoints = ToInt16(static_cast<double>(points.size()));
    for (const CurvePoint &point : points) {
        profil.ProfilX.Append(point.x);
        profil.ProfilY.Append(point.y);
    }
    return profil;
}

Curve CurveOf(const PointList &x, const PointList &y, long count) {
    Curve curve;
    curve.reserve(static_cast<std::size_t>(count));
    for (long i = 1; i <= count; ++i) {
        curve.push_back({x(i), y(i)});
    }
    return curve;
}

Curve MadeContour(const Profil &made) {
    return CurveOf(made.ContourX, made.ContourY, made.NbContour);
}

/// The contour that the program makes of points; nothing where it can't.
std::optional<Curve> ContourOf(Profil profil) {
    try {
        Alocate(profil);
        MiniX(profil);
        CalculExtradosMaxi(profil);
        CalculIntradosMini(profil);
        SepareIntrados(profil);
    } catch (const Failure &) {
        return std::nullopt;
    }
    return MadeContour(profil);
}

constexpr double kAny = std::numeric_limits<double>::infinity();

/// What a contour is measured by.
struct Yardstick {
    NearPolyline curve;
    const Curve &points;

    /// How far the contour of `laid` leaves curve and points; some figure from `enough` on where
    /// that is more.
    std::optional<double> operator()(const Curve &laid, double enough = kAny) const {
        const auto contour = ContourOf(ProfilOf(laid));
        return contour ? Measure(*contour, {0, enough}) : std::nullopt;
    }

    /// What of a figure is of interest: `least` where it is smaller, some figure from `enough` on
    /// where it is larger.
    struct Interest {
        double least;
        double enough;
    };
    std::optional<double> Measure(const Curve &contour, const Interest &interest) const {
        double worst = curve.Farthest(contour, interest.least, interest.enough);
        if (worst < interest.enough) {
            worst = NearPolyline(contour).Farthest(points, worst, interest.enough);
        }
        return std::isfinite(worst) ? std::optional(worst) : std::nullopt;
    }
};

Curve PointsOf(const PointsLus &read) {
    return CurveOf(read.ProfilX, read.ProfilY, read.NbPoints);
}

/// How far a contour leaves the curve through the points that it was made of.
std::optional<double> Deviation(const Curve &points, const Curve &contour, double least) {
    const Yardstick yardstick{
        NearPolyline(NaturalSpline(points).Sampled(StepsBetween(points.size()))), points};
    return yardstick.Measure(contour, {least, kAny});
}

/// The length at which a spline comes nearest to x = 0: the best of many, then ever finer around
/// it.
double NoseAt(const NaturalSpline &spline) {
    double best = 0;
    double step = 0;
    const int steps = StepsBetween(spline.Count());
    for (std::size_t i = 0; i + 1 < spline.Count(); ++i) {
        const double width = (spline.KnotAt(i + 1) - spline.KnotAt(i)) / steps;
        for (int k = 0; k < steps; ++k) {
            const double s = spline.KnotAt(i) + width * k;
            if (spline(s).x < spline(best).x) {
                best = s;
                step = width;
            }
        }
    }
    for (; step > 1e-12 * spline.Length(); step /= 2) {
        for (const double s : {best - step, best + step}) {
            if (s > 0 && s < spline.Length() && spline(s).x < spline(best).x) {
                best = s;
            }
        }
    }
    return best;
}

/// The share of a surface at point k of n, dense at both ends.
double Cosine(int k, int n) {
    return (1 - std::cos(std::numbers::pi * k / n)) / 2;
}

void CloseAtOne(Curve &laid) {
    laid.front().x = 1;
    laid.back().x = 1;
}

/// `count` points, which are `upper` and `lower` at the shares of their surfaces, the nose among
/// them.
template <class Upper, class Lower>
Curve LaySurfaces(int count, Upper upper, Lower lower) {
    const int above = (count - 1) / 2;
    const int below = count - 1 - above;
    Curve laid;
    for (int k = 0; k < above; ++k) {
        laid.push_back(upper(Cosine(k, above)));
    }
    for (int k = 0; k <= below; ++k) {
        laid.push_back(lower(Cosine(k, below)));
    }
    CloseAtOne(laid);
    return laid;
}

/// On one spline, whose nose lies at that length.
Curve Lay(const NaturalSpline &spline, double nose, int count) {
    return LaySurfaces(
        count, [&](double share) { return spline(nose * share); },
        [&](double share) { return spline(nose + (spline.Length() - nose) * share); });
}

/// The same on a spline for each surface, which meet in the nose.
Curve Lay(const NaturalSpline &upper, const NaturalSpline &lower, int count) {
    return LaySurfaces(
        count, [&](double share) { return upper(upper.Length() * share); },
        [&](double share) { return lower(lower.Length() * share); });
}

/// Whether the reader takes points as they are: it counts them in 16 bits, and a list of them ends
/// at the first x of 1.
bool CanBeRead(const Curve &laid) {
    if (std::ssize(laid) > std::numeric_limits<std::int16_t>::max()) {
        return false;
    }
    for (std::size_t i = 1; i + 1 < laid.size(); ++i) {
        if (laid[i].x >= 1 || laid[i] == laid[i - 1]) {
            return false;
        }
    }
    return laid.front().x == 1 && laid.back().x == 1;
}

/// To what an airfoil file has of it.
double Written(double value) {
    return std::round(value * 1e9) / 1e9;
}

/// The best so far.
struct Laid {
    Curve points;
    double deviation = 0;
    bool by_surface = false;
};

class Layer {
  public:
    Layer(const Curve &points, const Yardstick &yardstick)
        : points_(points), yardstick_(yardstick) {}

    /// Points within the tolerance, or the nearest to it; nothing where no count gives a contour.
    std::optional<Laid> operator()(int wished) {
        const NaturalSpline whole(points_);
        const double nose = NoseAt(whole);
        Try(wished, false, yardstick_, [&](int n) { return Lay(whole, nose, n); });
        if (!Done()) {
            TryEachSurface(wished);
        }
        return best_;
    }

  private:
    const Curve &points_;
    const Yardstick &yardstick_;
    std::optional<Laid> best_;

    bool Done() const { return best_ && best_->deviation <= kImportTolerance; }

    template <class Make>
    void Try(int wished, bool by_surface, const Yardstick &yardstick, Make make) {
        for (const int n : kCounts) {
            Curve laid = make(wished > 0 ? std::clamp(wished, kFewestLaid, kMostLaid) : n);
            for (CurvePoint &point : laid) {
                point = {Written(point.x), Written(point.y)};
            }
            const auto deviation =
                CanBeRead(laid) ? yardstick(laid, best_ ? best_->deviation : kAny) : std::nullopt;
            if (deviation && (!best_ || *deviation < best_->deviation)) {
                best_ = Laid{std::move(laid), *deviation, by_surface};
            }
            if (Done() || wished > 0) {
                return;
            }
        }
    }

    void TryEachSurface(int wished) {
        const auto nose =
            std::min_element(points_.begin(), points_.end(),
                             [](const CurvePoint &a, const CurvePoint &b) { return a.x < b.x; });
        if (nose == points_.begin() || nose == points_.end() - 1) {
            return;
        }
        const NaturalSpline upper(Curve(points_.begin(), nose + 1));
        const NaturalSpline lower(Curve(nose, points_.end()));
        const int steps = StepsBetween(points_.size());
        Curve both = upper.Sampled(steps);
        const Curve behind = lower.Sampled(steps);
        both.insert(both.end(), behind.begin() + 1, behind.end());
        const Yardstick yardstick{NearPolyline(both), points_};
        Try(wished, true, yardstick, [&](int n) { return Lay(upper, lower, n); });
    }
};

void TakeLaid(ImportedAirfoil &airfoil, const Laid &laid) {
    airfoil.points.clear();
    for (const CurvePoint &at : laid.points) {
        airfoil.points.push_back({at, {}, {}, 0});
    }
    airfoil.laid = static_cast<int>(laid.points.size());
    airfoil.by_surface = laid.by_surface;
    airfoil.after = laid.deviation;
}

std::string Decimals(double value) {
    std::array<char, 40> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.9f", value);
    std::string decimals(text.data(), static_cast<std::size_t>(length));
    std::replace(decimals.begin(), decimals.end(), ',', '.'); // whatever the locale writes
    return decimals;
}

} // namespace

std::optional<double> ContourDeviation(const PointsLus &read, double least) {
    const Curve points = PointsOf(read);
    try {
        const auto contour = ContourOf(ProfilOf(points));
        return contour ? Deviation(points, *contour, least) : std::nullopt;
    } catch (const Failure &) {
        return std::nullopt;
    }
}

std::optional<double> MadeContourDeviation(const Profil &made, double least) {
    try {
        return Deviation(PointsOf(made), MadeContour(made), least);
    } catch (const Failure &) {
        return std::nullopt;
    }
}

ImportedAirfoil ImportAirfoil(std::string_view bytes, const ImportWishes &wishes) {
    const CoordinateTable table = ReadCoordinateTable(bytes);
    AirfoilLoop loop = LayOutAirfoil(table);
    ImportedAirfoil airfoil;
    airfoil.title = table.title;
    airfoil.points = std::move(loop.points);
    airfoil.order = loop.order;
    airfoil.dropped = loop.dropped;
    airfoil.added = loop.added;
    const int nose_line = airfoil.points[NoseOf(airfoil.points)].line;
    if (wishes.level) {
        Level(airfoil);
    }
    Normalise(airfoil);
    EndAtOne(airfoil);
    const Curve points = CurveOf(airfoil.points);
    const Yardstick yardstick{
        NearPolyline(NaturalSpline(points).Sampled(StepsBetween(points.size()))), airfoil.file};
    airfoil.before = CanBeRead(points) ? yardstick(points) : std::nullopt;
    if (wishes.points == 0 && airfoil.before && *airfoil.before <= kImportTolerance) {
        airfoil.after = *airfoil.before;
        return airfoil;
    }
    const std::optional<Laid> laid = Layer(points, yardstick)(wishes.points);
    if (!laid) {
        throw ImportRefusal{ImportReason::noise, nose_line};
    }
    TakeLaid(airfoil, *laid);
    return airfoil;
}

std::string AirfoilTitle(const ImportedAirfoil &airfoil, const std::string &name) {
    std::string title = airfoil.title;
    const auto letter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    const std::size_t colon = title.find(':');
    const std::string behind = colon == std::string::npos ? "" : title.substr(colon + 1);
    if (behind.find_first_not_of("0123456789. ") != std::string::npos ||
        behind.find_first_of("123456789") == std::string::npos) {
        std::replace(title.begin(), title.end(), ':', ' ');
    }
    if (std::none_of(title.begin(), title.end(), letter)) {
        title = title.empty() ? name : name + " " + title;
    }
    return std::none_of(title.begin(), title.end(), letter) ? "airfoil " + title : title;
}

std::string AirfoilFile(const ImportedAirfoil &airfoil, const std::string &name) {
    std::string file = AirfoilTitle(airfoil, name) + "\r\n";
    for (const ImportPoint &point : airfoil.points) {
        file += " " + (point.x.empty() ? Decimals(point.at.x) : point.x) + "  " +
                (point.y.empty() ? Decimals(point.at.y) : point.y) + "\r\n";
    }
    return file;
}

} // namespace loftwing
