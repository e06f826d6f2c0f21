/// Runs of a plan as a file writes them.
#pragma once

#include "output/plan_dessin.h"
#include "output/written_ring.h"

namespace loftwing {

/// A run without points that are written like the one before. What a closed one encloses no more in
/// these digits is an open line: a rib that nobody gave a thickness is one.
struct TraitEcrit {
    std::vector<PointEcrit> points;
    bool ferme = false;
};

/// `ecrit` makes the PointEcrit of a PointMm. A run without length has no points.
template <class Ecrit>
TraitEcrit EcritTrait(const TraitPlan &trait, Ecrit ecrit) {
    TraitEcrit resultat;
    std::vector<PointEcrit> &points = resultat.points;
    points.reserve(trait.points.size());
    for (const PointMm &point : trait.points) {
        PointEcrit suivant = ecrit(point);
        if (points.empty() || suivant != points.back()) {
            points.push_back(std::move(suivant));
        }
    }
    const bool revient = points.size() > 2 && points.back() == points.front();
    if (trait.ferme && revient) {
        points.pop_back();
    }
    resultat.ferme = trait.ferme && points.size() > 2;
    if (points.size() < 2) {
        points.clear();
    }
    return resultat;
}

} // namespace loftwing
