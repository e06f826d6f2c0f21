/// Plane curves: points, polylines and how near one comes to them, splines.
#pragma once

#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace loftwing {

struct CurvePoint {
    double x = 0;
    double y = 0;

    bool operator==(const CurvePoint &) const = default;
};

using Curve = std::vector<CurvePoint>;

double Distance(const CurvePoint &a, const CurvePoint &b);

/// Distances from points to one polyline. Runs of its segments have boxes around them, these in
/// turn, and so on, so that a question looks at a few segments only, however the line winds.
class NearPolyline {
  public:
    /// `line` has one point at least; points that are not finite are left out.
    explicit NearPolyline(Curve line);

    /// The distance from `point` to the nearest place on the polyline.
    double operator()(const CurvePoint &point) const;
    /// The same for one of many points that follow each other: `around` is the segment where it is
    /// looked for first, any number, and then the one that is nearest.
    double operator()(const CurvePoint &point, std::size_t &around) const;

    /// The greatest distance from any of `points` to the polyline, and `least` where that is more.
    /// From `enough` on any figure that is no smaller will do. Points that follow each other along
    /// the polyline cost little: few of them can be the farthest, and those alone are measured.
    double Farthest(const Curve &points, double least, double enough) const;

  private:
    struct Box {
        CurvePoint low;
        CurvePoint high;
    };
    Curve line_;
    /// A binary tree: the whole at 1, the halves of box i at 2 i and 2 i + 1, the last `leaves_` of
    /// them around single runs.
    std::vector<Box> boxes_;
    std::size_t leaves_ = 1;

    std::size_t Segments() const;
    CurvePoint OnSegment(const CurvePoint &point, std::size_t first) const;
    double SquareAround(const CurvePoint &point, std::size_t &around) const;

    /// What a question has found so far.
    struct Search {
        CurvePoint point;
        std::vector<std::pair<double, std::size_t>> candidates; ///< squares of distances, segments
        double beyond =
            std::numeric_limits<double>::infinity(); ///< no larger square is of interest
    };
    void Look(Search &search, std::size_t i) const;
};

/// The natural cubic spline (second derivatives 0 at both ends) through points, x and y each over
/// the length of the polygon through them.
class NaturalSpline {
  public:
    /// At least two points; neighbours differ. Failure 5 otherwise.
    explicit NaturalSpline(Curve points);

    /// The length of the polygon, at which the last point lies.
    double Length() const { return at_.back(); }
    std::size_t Count() const { return points_.size(); }
    /// The length at which point `index`, 0 to Count() - 1, lies.
    double KnotAt(std::size_t index) const { return at_[index]; }
    /// The place at length `s`, 0 to Length().
    CurvePoint operator()(double s) const;
    /// The spline as a polyline with `steps` segments from each point to the next, points included.
    Curve Sampled(int steps) const;

  private:
    Curve points_;
    std::vector<double> at_;
    Curve bends_; ///< second derivatives at the points

    CurvePoint Behind(std::size_t lo, double s) const;
};

} // namespace loftwing
