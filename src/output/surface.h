/// Areas of the plane: what is added, taken away and moved outward when wood is cut. Rings are made
/// of straight lines; coordinates count to 1e-6 mm. A coordinate that isn't finite or is beyond a
/// thousand kilometres is failure 6; rings without an area count as none.
#pragma once

#include <vector>

namespace loftwing {

struct PointMm {
    double x = 0;
    double y = 0;

    bool operator==(const PointMm &) const = default;
};

/// A closed ring: its last point joins the first, which isn't repeated.
using Anneau = std::vector<PointMm>;

/// The point behind the one at `i`, which is the first for the last.
inline const PointMm &Suivant(const Anneau &ring, std::size_t i) {
    return ring[i + 1 == ring.size() ? 0 : i + 1];
}

/// Outlines anticlockwise and the holes in them clockwise; no ring crosses itself or another one.
using Surface = std::vector<Anneau>;

/// What rings of any direction enclose, crossings resolved: a place counts that lies in an odd
/// number of them, or in at least one.
Surface Impair(const std::vector<Anneau> &rings);
Surface Rempli(const std::vector<Anneau> &rings);

/// Of areas; rings of `b` may overlap each other where they run anticlockwise.
Surface Union(const Surface &a, const Surface &b);
Surface Moins(const Surface &a, const Surface &b);
Surface Commun(const Surface &a, const Surface &b);

/// How far a line may leave its arc. A fifth of what is promised: a hole's area is wanted too.
inline constexpr double kEcartArc = 0.0001; // mm

enum class Coins { ronds, vifs }; ///< joins: round, or mitred with a limit of 2

/// The area grown by `mm` all round, shrunk where that is negative. Round joins deviate at most
/// `ecart` from their arcs.
Surface Deplace(const Surface &surface, double mm, Coins coins, double ecart = kEcartArc);

/// Of areas too, but quicker: what is left of `a` without the rings of `b`, which run anticlockwise
/// and may overlap. A ring of the result may touch itself.
Surface Reste(const Surface &a, const std::vector<Anneau> &b);

/// With fewer points, none of those left out farther than `ecart` from the lines that stay.
Surface Allege(const Surface &surface, double ecart);

/// Without parts and holes smaller than `mm2`.
Surface SansMiettes(const Surface &surface, double mm2);

/// The connected parts, the outline first in each and the holes in it behind; an island in a hole
/// is a part of its own. From the front to the rear.
std::vector<Surface> Morceaux(const Surface &surface);

/// An open run of lines.
using Ligne = std::vector<PointMm>;
/// What of a run lies in an area.
std::vector<Ligne> Dedans(const Ligne &ligne, const Surface &surface);
/// Whether a point lies in an area; on its edge either answer may come.
bool Contient(const Surface &surface, const PointMm &point);

/// All corners of its rings.
std::vector<PointMm> PointsDe(const Surface &surface);

/// Signed area of a ring, mm2: above 0 where it runs anticlockwise.
double Aire(const Anneau &ring);
/// Of an area, holes taken off.
double Aire(const Surface &surface);

/// The smallest ring without a concave corner around some points, anticlockwise; fewer than three
/// points where they lie in a line.
Anneau Enveloppe(std::vector<PointMm> points);

/// All sums of a point of `a` and one of `b`, both anticlockwise and without a concave corner. With
/// the one turned by 180 degrees it is their no-fit polygon: what both would cover in common.
Anneau SommeConvexe(const Anneau &a, const Anneau &b);

/// A circle as a ring that deviates at most `ecart`, its corners on the circle.
Anneau AnneauRond(const PointMm &centre, double rayon, double ecart = kEcartArc);

} // namespace loftwing
