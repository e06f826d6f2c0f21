/// A second computation of a rib's piece: for each point of the plane the rules say by themselves
/// whether there is wood. It shares nothing with the program but the rib's record.
#pragma once

#include "core/rib_model.h"

#include <utility>
#include <vector>

namespace loftwing::naive {

using Stretch = std::pair<double, double>; ///< of heights
using Stretches = std::vector<Stretch>;

/// Lengths are in mm, places are numbers or percentages from the leading edge, margins numbers.
class NaivePiece {
  public:
    explicit NaivePiece(const RibModel &rib);

    bool Wood(double x, double y) const;
    /// Millimetres of wood over `x`, of a rib without sheeting.
    double WoodOver(double x) const;

  private:
    struct Notch {
        double cx, cy; ///< origin
        double ux, uy; ///< along the surface
        double vx, vy; ///< into the wood
        double half;   ///< of its width
        double from, to;
        bool round;
    };
    struct Hole {
        double x, y, half, half_height;
        bool round;
    };
    const RibModel &rib_;
    double corde_, e_;
    std::vector<double> xs_, ys_;
    std::vector<Notch> notches_;
    std::vector<Hole> holes_;

    bool InP(double x, double y) const;
    double DistanceToP(double x, double y) const;
    bool InBody(double x, double y) const;
    bool BetweenStocks(double x) const;
    Stretches POver(double x) const;
    Stretch PFaces(double x) const;
    double BodyFace(double x, bool above) const;
    double Foot(double x) const;
    bool InHeel(double x, double y) const;
    bool InVNotch(double x, double y) const;
    bool InNotch(double x, double y) const;
    bool InHole(double x, double y) const;
    void AddNotches(const Longeron &spar);
    Stretches Cuts(double x) const;
    Stretches NotchesOver(double x) const;
};

} // namespace loftwing::naive
