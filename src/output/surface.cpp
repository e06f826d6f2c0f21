#include "output/surface.h"

#include "base/failure.h"
#include "output/surface_parallel.h"

#include <polyclipping/clipper.hpp>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace loftwing {

namespace {

using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;

constexpr double kParMm = 1e6;    // whole numbers of one millimetre
constexpr double kPlusLoin = 1e9; // mm; its products stay within the library's range
constexpr double kRayonMaxi = 1e6;

ClipperLib::cInt Entier(double mm) {
    if (!(std::abs(mm) <= kPlusLoin)) {
        throw MakeFailure(kOverflow);
    }
    return std::llround(mm * kParMm);
}

Path Chemin(const std::vector<PointMm> &points) {
    Path path;
    path.reserve(points.size());
    for (const PointMm &point : points) {
        const IntPoint next(Entier(point.x), Entier(point.y));
        if (path.empty() || path.back() != next) {
            path.push_back(next);
        }
    }
    return path;
}

/// Those rings that enclose something.
Paths Chemins(const Surface &rings) {
    Paths paths;
    paths.reserve(rings.size());
    for (const Anneau &ring : rings) {
        Path path = Chemin(ring);
        while (path.size() > 1 && path.front() == path.back()) {
            path.pop_back();
        }
        if (path.size() > 2) {
            paths.push_back(std::move(path));
        }
    }
    return paths;
}

std::vector<PointMm> Points(const Path &path) {
    std::vector<PointMm> points;
    points.reserve(path.size());
    for (const IntPoint &point : path) {
        points.push_back(
            {static_cast<double>(point.X) / kParMm, static_cast<double>(point.Y) / kParMm});
    }
    return points;
}

Surface DeChemins(const Paths &paths) {
    Surface surface;
    surface.reserve(paths.size());
    for (const Path &path : paths) {
        if (path.size() > 2) {
            surface.push_back(Points(path));
        }
    }
    return surface;
}

/// Runs the library. What it throws of its own is about numbers too large for it.
template <class Work>
auto Execute(Work work) {
    try {
        return work();
    } catch (const ClipperLib::clipperException &exception) {
        throw MakeFailure(kOverflow, exception.what());
    }
}

/// Whether a ring comes twice through the same place. Every result is looked at, so that sorting
/// the points would cost as much as the work itself: a table with open addressing.
bool SeTouche(const Path &path) {
    const std::size_t mask = std::bit_ceil(2 * path.size() + 1) - 1;
    std::vector<std::uint32_t> table(mask + 1, 0); // numbers of points from 1
    for (std::size_t i = 0; i < path.size(); ++i) {
        std::uint64_t hash = static_cast<std::uint64_t>(path[i].X) * 0x9E3779B97F4A7C15U +
                             static_cast<std::uint64_t>(path[i].Y);
        hash *= 0xC2B2AE3D27D4EB4FU;
        for (std::size_t at = (hash >> 32) & mask;; at = (at + 1) & mask) {
            if (table[at] == 0) {
                table[at] = static_cast<std::uint32_t>(i + 1);
                break;
            }
            if (path[table[at] - 1] == path[i]) {
                return true;
            }
        }
    }
    return false;
}

struct Remplissage {
    ClipperLib::PolyFillType sujet = ClipperLib::pftNonZero;
    ClipperLib::PolyFillType coupe = ClipperLib::pftNonZero;
};

Paths Passe(ClipperLib::ClipType type, const Paths &a, const Paths &b, Remplissage fill,
            bool strictly_simple) {
    ClipperLib::Clipper clipper;
    clipper.StrictlySimple(strictly_simple);
    clipper.AddPaths(a, ClipperLib::ptSubject, true);
    clipper.AddPaths(b, ClipperLib::ptClip, true);
    Paths solution;
    clipper.Execute(type, solution, fill.sujet, fill.coupe);
    return solution;
}

Surface Combine(ClipperLib::ClipType type, const Paths &a, const Paths &b, Remplissage fill = {}) {
    return Execute([&] {
        Paths solution = Passe(type, a, b, fill, false);
        // Simple rings cost the library the square of their points, and hardly a rib needs them.
        if (std::any_of(solution.begin(), solution.end(), SeTouche)) {
            solution = Passe(type, a, b, fill, true);
        }
        return DeChemins(solution);
    });
}

/// The outline and holes of a node; islands in the holes go into `parts` by themselves.
void Recueille(const ClipperLib::PolyNode &outline, std::vector<Surface> &parts) {
    Surface part{Points(outline.Contour)};
    std::vector<const ClipperLib::PolyNode *> islands;
    for (const ClipperLib::PolyNode *hole : outline.Childs) {
        part.push_back(Points(hole->Contour));
        islands.insert(islands.end(), hole->Childs.begin(), hole->Childs.end());
    }
    parts.push_back(std::move(part));
    for (const ClipperLib::PolyNode *island : islands) {
        Recueille(*island, parts);
    }
}

/// Whether a shift inwards goes beyond the middle of all that there is. Nothing is left then, which
/// the library would find out in time that grows with the square of the points and with the shift.
bool DepasseLeMilieu(const Surface &surface, double mm) {
    PointMm least{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    PointMm most{-least.x, -least.y};
    for (const Anneau &ring : surface) {
        for (const PointMm &point : ring) {
            least = {std::min(least.x, point.x), std::min(least.y, point.y)};
            most = {std::max(most.x, point.x), std::max(most.y, point.y)};
        }
    }
    return -2 * mm > std::min(most.x - least.x, most.y - least.y);
}

double BordAvant(const Surface &part) {
    return std::min_element(part.front().begin(), part.front().end(),
                            [](const PointMm &a, const PointMm &b) { return a.x < b.x; })
        ->x;
}

} // namespace

Surface Impair(const std::vector<Anneau> &rings) {
    return Combine(ClipperLib::ctUnion, Chemins(rings), {}, {ClipperLib::pftEvenOdd});
}

Surface Rempli(const std::vector<Anneau> &rings) {
    Paths paths = Chemins(rings);
    for (Path &path : paths) {
        // All the same way, or what two of them cover would cancel out.
        if (!ClipperLib::Orientation(path)) {
            ClipperLib::ReversePath(path);
        }
    }
    return Combine(ClipperLib::ctUnion, paths, {});
}

Surface Union(const Surface &a, const Surface &b) {
    return Combine(ClipperLib::ctUnion, Chemins(a), Chemins(b));
}

Surface Moins(const Surface &a, const Surface &b) {
    return Combine(ClipperLib::ctDifference, Chemins(a), Chemins(b));
}

Surface Commun(const Surface &a, const Surface &b) {
    return Combine(ClipperLib::ctIntersection, Chemins(a), Chemins(b));
}

Surface Reste(const Surface &a, const std::vector<Anneau> &b) {
    return Execute([&] {
        return DeChemins(Passe(ClipperLib::ctDifference, Chemins(a), Chemins(b), {}, false));
    });
}

Surface Deplace(const Surface &surface, double mm, Coins coins, double ecart) {
    if (!(mm <= kRayonMaxi)) {
        throw MakeFailure(kOverflow); // its arcs would have more points than a machine has room for
    }
    Entier(mm);
    const Paths paths = Chemins(surface);
    if (DepasseLeMilieu(surface, mm)) {
        return {};
    }
    Paths moved;
    for (const Path &path : paths) {
        moved.push_back(Chemin(Parallele(Points(path), mm, coins, ecart)));
    }
    // What the shift has turned inside out runs clockwise and so counts for nothing.
    return Combine(ClipperLib::ctUnion, moved, {}, {ClipperLib::pftPositive});
}

Surface SansMiettes(const Surface &surface, double mm2) {
    Surface left;
    std::copy_if(surface.begin(), surface.end(), std::back_inserter(left),
                 [&](const Anneau &ring) { return std::abs(Aire(ring)) >= mm2; });
    return left;
}

std::vector<Surface> Morceaux(const Surface &surface) {
    const auto outline = [](const Anneau &ring) { return Aire(ring) > 0; };
    if (std::count_if(surface.begin(), surface.end(), outline) == 1) {
        Surface part = surface;
        std::stable_partition(part.begin(), part.end(), outline);
        return {part};
    }
    ClipperLib::PolyTree tree;
    Execute([&] {
        ClipperLib::Clipper clipper;
        clipper.StrictlySimple(true);
        clipper.AddPaths(Chemins(surface), ClipperLib::ptSubject, true);
        return clipper.Execute(ClipperLib::ctUnion, tree, ClipperLib::pftNonZero,
                               ClipperLib::pftNonZero);
    });
    std::vector<Surface> parts;
    for (const ClipperLib::PolyNode *node : tree.Childs) {
        Recueille(*node, parts);
    }
    std::stable_sort(parts.begin(), parts.end(), [](const Surface &a, const Surface &b) {
        return BordAvant(a) < BordAvant(b);
    });
    return parts;
}

std::vector<Ligne> Dedans(const Ligne &ligne, const Surface &surface) {
    const Path path = Chemin(ligne);
    std::vector<Ligne> lines;
    if (path.size() < 2) {
        return lines;
    }
    return Execute([&] {
        ClipperLib::Clipper clipper;
        clipper.AddPath(path, ClipperLib::ptSubject, false);
        clipper.AddPaths(Chemins(surface), ClipperLib::ptClip, true);
        ClipperLib::PolyTree tree;
        clipper.Execute(ClipperLib::ctIntersection, tree, ClipperLib::pftNonZero,
                        ClipperLib::pftNonZero);
        Paths open;
        ClipperLib::OpenPathsFromPolyTree(tree, open);
        for (const Path &run : open) {
            if (run.size() > 1) {
                lines.push_back(Points(run));
            }
        }
        return lines;
    });
}

bool Contient(const Surface &surface, const PointMm &point) {
    bool inside = false;
    for (const Anneau &ring : surface) {
        if (ring.empty()) {
            continue;
        }
        const PointMm *before = &ring.back();
        for (const PointMm &here : ring) {
            if ((here.y > point.y) != (before->y > point.y) &&
                point.x <
                    here.x + (before->x - here.x) * (point.y - here.y) / (before->y - here.y)) {
                inside = !inside;
            }
            before = &here;
        }
    }
    return inside;
}

std::vector<PointMm> PointsDe(const Surface &surface) {
    std::vector<PointMm> all;
    for (const Anneau &ring : surface) {
        all.insert(all.end(), ring.begin(), ring.end());
    }
    return all;
}

double Aire(const Anneau &ring) {
    double twice = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PointMm &a = ring[i];
        const PointMm &b = Suivant(ring, i);
        // From the first point, so that a small ring far out loses no digits.
        twice += (a.x - ring[0].x) * (b.y - ring[0].y) - (b.x - ring[0].x) * (a.y - ring[0].y);
    }
    return twice / 2;
}

double Aire(const Surface &surface) {
    double sum = 0;
    for (const Anneau &ring : surface) {
        sum += Aire(ring);
    }
    return sum;
}

Anneau AnneauRond(const PointMm &centre, double rayon, double ecart) {
    if (!(rayon <= kRayonMaxi)) {
        throw MakeFailure(kOverflow);
    }
    Anneau ring;
    if (!(rayon > 0)) {
        return ring;
    }
    constexpr int kMoins = 12; // corners of the smallest
    const double pi = std::acos(-1.0);
    const double share = std::acos(std::max(0.0, 1 - ecart / rayon));
    const int corners = std::max(kMoins, static_cast<int>(std::ceil(pi / share)));
    ring.reserve(static_cast<std::size_t>(corners));
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * pi * i / corners;
        ring.push_back({centre.x + rayon * std::cos(angle), centre.y + rayon * std::sin(angle)});
    }
    return ring;
}

} // namespace loftwing
