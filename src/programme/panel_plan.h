/// A wing panel from above: its ribs side by side, with what runs from one to the next.
#pragma once

#include "output/surface.h"
#include "programme/panel_steps.h"

#include <array>
#include <vector>

namespace loftwing {

/// One rib of the plan.
struct NervurePlan {
    double x = 0;     ///< from the root along the span, mm
    double corde = 0; ///< mm
    int numero = 0;   ///< as labels have it
};

/// The plan in mm: x from the root along the span, y from the leading edges, which lie on one
/// straight line, to the trailing ones.
struct PlanPanneau {
    double longueur = 0;            ///< of the span; 0 where there is no plan yet
    std::array<double, 2> cordes{}; ///< root and tip
    std::vector<NervurePlan> nervures;
    std::vector<std::vector<PointMm>> longerons; ///< each over the ribs in which it stands
    std::vector<std::vector<PointMm>> baguettes; ///< inner edges of the stocks, likewise
};

/// What the plan of a panel shows. Without a length it is as long as one and a half times the root
/// chord. A rib that couldn't be made has its line and nothing on it. Failures as PosDepuisBA.
PlanPanneau FaitPlan(const Panneau &panneau, const PanneauFait &fait, double longueur, int premier,
                     const Saisie &saisie);

} // namespace loftwing
