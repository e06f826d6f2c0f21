#include "core/airfoil_layout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace loftwing {

namespace {

using Points = std::vector<ImportPoint>;

constexpr std::size_t kFewestPoints = 5;
constexpr std::size_t kFewestInList = 3;

constexpr double kJump = 0.8;          // of the chord, from one end of it to the other
constexpr double kTrailing = 0.0005;   // of the chord: points so near the end stand on it
constexpr double kShortOfEnd = 0.05;   // of the chord that a surface may be prolonged by
constexpr double kOpen = 0.5;          // of the chord that may be missing at the seam of a curve
constexpr double kSeam = 0.25;         // of the chord: ends of a closed curve lie nearer
constexpr double kHighest = 1.5;       // of the chord
constexpr double kBackAndForth = 0.25; // of the chord that a surface may run backwards altogether

struct Range {
    double low = 0;
    double high = 0;
    double Width() const { return high - low; }
};

Range RangeX(const Points &points) {
    const auto [low, high] = std::minmax_element(
        points.begin(), points.end(),
        [](const ImportPoint &a, const ImportPoint &b) { return a.at.x < b.at.x; });
    return {low->at.x, high->at.x};
}

bool IsWhole(double value) {
    return value == std::floor(value);
}

ImportPoint PointOf(const TableRow &row, std::size_t x, std::size_t y) {
    return {{row.values[x], row.values[y]}, row.texts[x], row.texts[y], row.line};
}

/// Lednicer's first line: how many points follow for each surface.
bool IsCounts(const std::vector<TableRow> &rows) {
    const TableRow &first = rows.front();
    const double upper = first.values[0];
    const double lower = first.values[1];
    if (first.values.size() != 2 || rows.size() < 5 || upper < 2 || lower < 2 || !IsWhole(upper) ||
        !IsWhole(lower)) {
        return false;
    }
    if (upper + lower == static_cast<double>(rows.size() - 1)) {
        return true;
    }
    // Counts that are wrong still stand far away from the points.
    return std::all_of(rows.begin() + 1, rows.end(), [](const TableRow &row) {
        return std::abs(row.values[0]) <= 1.5 && std::abs(row.values[1]) <= 1.5;
    });
}

/// Whether the rows begin with 0, 1, 2 ... or 1, 2, 3 ...: numbers of points.
bool AreNumbered(const std::vector<TableRow> &rows) {
    const double first = rows.front().values[0];
    if (first != 0 && first != 1) {
        return false;
    }
    double next = first;
    return std::all_of(rows.begin(), rows.end(), [&next](const TableRow &row) {
        return row.values.size() >= 3 && row.values[0] == next++;
    });
}

/// Whether there is a third column that tells something: x, upper, lower.
bool HasSurfaceColumns(const std::vector<TableRow> &rows) {
    if (!std::all_of(rows.begin(), rows.end(),
                     [](const TableRow &row) { return row.values.size() >= 3; })) {
        return false;
    }
    const auto by_x = [](const TableRow &a, const TableRow &b) {
        return a.values[0] < b.values[0];
    };
    const bool sorted = std::is_sorted(rows.begin(), rows.end(), by_x) ||
                        std::is_sorted(rows.rbegin(), rows.rend(), by_x);
    const double third = rows.front().values[2];
    const bool constant = std::all_of(
        rows.begin(), rows.end(), [third](const TableRow &row) { return row.values[2] == third; });
    return sorted && !constant;
}

/// Area to the left of the walk along the points: positive from the trailing edge over the upper
/// surface.
double Area(const Points &points) {
    double twice = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const CurvePoint &a = points[i].at;
        const CurvePoint &b = points[(i + 1) % points.size()].at;
        twice += a.x * b.y - b.x * a.y;
    }
    return twice / 2;
}

/// Between which points the curve jumps from one end of the chord to the other, with a list of
/// points on either side.
std::vector<std::size_t> Jumps(const Points &points) {
    const double limit = kJump * RangeX(points).Width();
    std::vector<std::size_t> jumps;
    for (std::size_t i = kFewestInList; i + kFewestInList <= points.size(); ++i) {
        if (std::abs(points[i].at.x - points[i - 1].at.x) > limit) {
            jumps.push_back(i);
        }
    }
    return jumps;
}

/// From the nose to the trailing edge.
void TurnToTrailingEdge(Points &surface) {
    if (surface.front().at.x > surface.back().at.x) {
        std::reverse(surface.begin(), surface.end());
    }
}

/// The height of a surface at x, straight between its points.
double HeightAt(const Points &surface, double x) {
    for (std::size_t i = 1; i < surface.size(); ++i) {
        const CurvePoint &a = surface[i - 1].at;
        const CurvePoint &b = surface[i].at;
        if (x <= b.x) {
            return b.x > a.x ? a.y + (b.y - a.y) * std::clamp((x - a.x) / (b.x - a.x), 0.0, 1.0)
                             : b.y;
        }
    }
    return surface.back().at.y;
}

constexpr int kProbes = 50;

/// At how many of the probes along the chord `upper` lies lower than `lower`.
int Crossings(const Points &upper, const Points &lower, const Range &chord) {
    int crossed = 0;
    for (int i = 1; i < kProbes; ++i) {
        const double x = chord.low + chord.Width() * i / kProbes;
        crossed += HeightAt(upper, x) < HeightAt(lower, x) ? 1 : 0;
    }
    return crossed;
}

/// One curve from two lists, whichever comes first and whichever way they run.
Points Join(Points one, Points other) {
    TurnToTrailingEdge(one);
    TurnToTrailingEdge(other);
    Points all = one;
    all.insert(all.end(), other.begin(), other.end());
    if (2 * Crossings(one, other, RangeX(all)) > kProbes) {
        std::swap(one, other);
    }
    std::reverse(one.begin(), one.end());
    if (one.back().at == other.front().at) {
        one.pop_back();
    }
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

Points FromColumns(const std::vector<TableRow> &rows) {
    Points upper;
    Points lower;
    for (const TableRow &row : rows) {
        upper.push_back(PointOf(row, 0, 1));
        lower.push_back(PointOf(row, 0, 2));
    }
    return Join(std::move(upper), std::move(lower));
}

/// Drops points that repeat the one before.
int DropRepeated(Points &points) {
    const auto end =
        std::unique(points.begin(), points.end(),
                    [](const ImportPoint &a, const ImportPoint &b) { return a.at == b.at; });
    const auto dropped = static_cast<int>(points.end() - end);
    points.erase(end, points.end());
    return dropped;
}

[[noreturn]] void Reject(ImportReason reason, int line = 0) {
    throw ImportRefusal{reason, line};
}

/// The end that a surface lacks: in the direction of its last two points where little is missing,
/// else that of the other surface.
ImportPoint MissingEnd(const CurvePoint &before, const CurvePoint &last, const CurvePoint &other,
                       const Range &chord) {
    const double gap = other.x - last.x;
    const double run = last.x - before.x;
    ImportPoint end;
    end.at = other;
    if (gap <= kShortOfEnd * chord.Width() && run > kTrailing * chord.Width()) {
        end.at.y = last.y + (last.y - before.y) * gap / run;
    }
    return end;
}

/// Prolongs the surface that doesn't reach the trailing edge where the other one ends.
void ProlongToTrailingEdge(AirfoilLoop &loop, bool upper) {
    Points &points = loop.points;
    const Range chord = RangeX(points);
    const std::size_t last = points.size() - 1;
    const ImportPoint &shorter = upper ? points.front() : points[last];
    const ImportPoint &before = upper ? points[1] : points[last - 1];
    const ImportPoint &other = upper ? points[last] : points.front();
    if (other.at.x - shorter.at.x > kOpen * chord.Width()) {
        Reject(ImportReason::one_surface, shorter.line);
    }
    const ImportPoint end = MissingEnd(before.at, shorter.at, other.at, chord);
    points.insert(upper ? points.begin() : points.end(), end);
    loop.added = 1;
}

/// Brings a closed curve that begins elsewhere to begin and end at the trailing edge: between the
/// two points that stand farthest apart on it, or at the one that does.
void Rotate(AirfoilLoop &loop) {
    Points &points = loop.points;
    const Range chord = RangeX(points);
    if (Distance(points.front().at, points.back().at) > kSeam * chord.Width()) {
        Reject(ImportReason::one_surface, points.back().line);
    }
    if (points.front().at == points.back().at) {
        points.pop_back();
    }
    const auto farthest = std::max_element(
        points.begin(), points.end(),
        [](const ImportPoint &a, const ImportPoint &b) { return a.at.x < b.at.x; });
    std::rotate(points.begin(), farthest, points.end());
    const double trailing = chord.high - kTrailing * chord.Width();
    std::size_t first = points.size(); // of those that stand on the edge, counted on past the end
    while (points[first - 1].at.x >= trailing && first > points.size() / 2) {
        --first;
    }
    std::size_t last = 0;
    while (last < points.size() / 2 && points[last + 1].at.x >= trailing) {
        ++last;
    }
    Points turned(points.begin() + static_cast<std::ptrdiff_t>(last), points.end());
    turned.resize(first - last);
    turned.push_back(points[first % points.size()]);
    loop.dropped += static_cast<int>(points.size() - std::min(points.size(), turned.size()));
    points = std::move(turned);
    loop.order = FileOrder::rotated;
}

void BeginAtTrailingEdge(AirfoilLoop &loop) {
    Points &points = loop.points;
    const Range chord = RangeX(points);
    const auto stands = [&chord](const ImportPoint &point) {
        return point.at.x >= chord.high - kTrailing * chord.Width();
    };
    if (!stands(points.front()) && !stands(points.back())) {
        Rotate(loop);
    } else if (!stands(points.front()) || !stands(points.back())) {
        ProlongToTrailingEdge(loop, !stands(points.front()));
    } else if (points.front().at == points.back().at && stands(points[points.size() - 2]) &&
               points.size() > 2) {
        points.pop_back(); // a blunt edge that was closed
        ++loop.dropped;
    }
}

/// One curve through all points, whichever way it runs.
void TakeCurve(AirfoilLoop &loop) {
    if (Area(loop.points) < 0) {
        std::reverse(loop.points.begin(), loop.points.end());
        loop.order = FileOrder::reversed;
    }
}

/// Some programs write the window of a plot in front: a row of more numbers than the points have.
bool IsWindow(const std::vector<TableRow> &rows) {
    const std::size_t columns = rows[1].values.size();
    return rows.front().values.size() > columns &&
           std::all_of(rows.begin() + 1, rows.end(),
                       [columns](const TableRow &row) { return row.values.size() == columns; });
}

void TakeRows(AirfoilLoop &loop, std::vector<TableRow> rows) {
    if (IsWindow(rows)) {
        rows.erase(rows.begin());
    }
    if (AreNumbered(rows)) {
        for (TableRow &row : rows) {
            row.values.erase(row.values.begin());
            row.texts.erase(row.texts.begin());
        }
    }
    if (HasSurfaceColumns(rows)) {
        loop.points = FromColumns(rows);
        loop.order = FileOrder::columns;
        return;
    }
    const bool counts = IsCounts(rows);
    for (auto row = rows.begin() + (counts ? 1 : 0); row != rows.end(); ++row) {
        loop.points.push_back(PointOf(*row, 0, 1));
    }
    loop.dropped += DropRepeated(loop.points);
    if (loop.points.size() < kFewestPoints) {
        return;
    }
    const std::vector<std::size_t> jumps = Jumps(loop.points);
    if (jumps.size() > 1) {
        Reject(ImportReason::several_curves, loop.points[jumps[1]].line);
    }
    if (jumps.size() == 1) {
        const auto second = loop.points.begin() + static_cast<std::ptrdiff_t>(jumps.front());
        loop.points = Join({loop.points.begin(), second}, {second, loop.points.end()});
        loop.order = FileOrder::lists;
        return;
    }
    TakeCurve(loop);
}

/// How far a surface runs back on its way along the chord. `to_nose` tells the way.
void CheckWay(const Points &points, std::size_t from, std::size_t to, bool to_nose, double limit) {
    double back = 0;
    for (std::size_t i = from + 1; i <= to; ++i) {
        const double step = points[i].at.x - points[i - 1].at.x;
        back += std::max(to_nose ? step : -step, 0.0);
        if (back > limit) {
            Reject(ImportReason::noise, points[i].line);
        }
    }
}

/// What could never be an airfoil.
void CheckShape(const AirfoilLoop &loop) {
    const Points &points = loop.points;
    const Range chord = RangeX(points);
    const auto by_y = [](const ImportPoint &a, const ImportPoint &b) { return a.at.y < b.at.y; };
    const auto [low, high] = std::minmax_element(points.begin(), points.end(), by_y);
    if (!(chord.Width() > 0) || high->at.y - low->at.y > kHighest * chord.Width()) {
        Reject(ImportReason::no_chord, high->line);
    }
    const std::size_t nose = NoseOf(points);
    CheckWay(points, 0, nose, true, kBackAndForth * chord.Width());
    CheckWay(points, nose, points.size() - 1, false, kBackAndForth * chord.Width());
    Points upper(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(nose) + 1);
    std::reverse(upper.begin(), upper.end());
    const Points lower(points.begin() + static_cast<std::ptrdiff_t>(nose), points.end());
    if (5 * Crossings(upper, lower, chord) > 2 * kProbes) {
        Reject(ImportReason::crossing, points[nose].line);
    }
}

} // namespace

std::size_t NoseOf(const std::vector<ImportPoint> &points) {
    return static_cast<std::size_t>(
        std::min_element(
            points.begin(), points.end(),
            [](const ImportPoint &a, const ImportPoint &b) { return a.at.x < b.at.x; }) -
        points.begin());
}

AirfoilLoop LayOutAirfoil(const CoordinateTable &table) {
    AirfoilLoop loop;
    if (table.rows.size() < kFewestPoints) {
        Reject(ImportReason::too_few_points);
    }
    if (table.rows.size() > kMostRows) {
        Reject(ImportReason::too_many_points);
    }
    TakeRows(loop, table.rows);
    loop.dropped += DropRepeated(loop.points);
    if (loop.points.size() < kFewestPoints) {
        Reject(ImportReason::too_few_points);
    }
    BeginAtTrailingEdge(loop);
    CheckShape(loop);
    return loop;
}

} // namespace loftwing
