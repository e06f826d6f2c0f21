/// The surfaces of an area over the chord: how high it reaches at an x, and how low.
#pragma once

#include "output/piece.h"

#include <optional>

namespace loftwing {

struct HauteursA {
    double bas = 0;
    double haut = 0;
};

/// From one x to another an area's outermost edges, each a straight line.
struct TrancheContour {
    double x0 = 0, x1 = 0;
    HauteursA debut, fin;
};

class Silhouette {
  public:
    explicit Silhouette(const Surface &surface);

    /// Least and greatest height at `x`; nothing where the area has no point.
    std::optional<HauteursA> A(double x) const;
    /// The same at the nearest x that has one. The area must not be empty.
    HauteursA Pres(double x) const;
    /// From `x0` to `x1`, as far as the area goes, in order.
    std::vector<TrancheContour> Tranches(double x0, double x1) const;

    const BoitePiece &Boite() const { return boite_; }
    bool Vide() const { return aretes_.empty(); }

  private:
    struct Arete {
        PointMm a, b; ///< a.x <= b.x

        double A(double x) const;
    };
    std::vector<Arete> aretes_; ///< by their front ends
    BoitePiece boite_;

    std::vector<double> Abscisses(double x0, double x1) const;
};

/// A box around points.
BoitePiece BoiteAutour(const std::vector<PointMm> &points);
/// A rectangle as a ring.
Anneau Rectangle(double x0, double y0, double x1, double y1);

} // namespace loftwing
