/// A building plan by hand: 400 mm wide; its texts reach from 13.62 mm above 0 to 181.475 below.
#pragma once

#include "output/plan_feuilles.h"

namespace loftwing {

/// Every layer has a colour of its own.
inline constexpr CouleursPlan kPlanColours = {1, 2, 3, 4, 5, 6, 7, 8, 9};

/// A leading edge, a rib with and one without thickness, a line of holes, letters 4 and 5 mm high
/// with all that Arial has around capitals of 2.864 and 3.58 mm.
inline DessinPlan PlanByHand() {
    DessinPlan plan;
    plan.titre = "Wing <1>";
    plan.traits = {
        {CouchePlan::contour, {{0, 0}, {400, -20}}, false},
        {CouchePlan::nervure, {{100, -5}, {103, -5}, {103, -155}, {100, -155}}, true},
        {CouchePlan::nervure, {{200, -10}, {200, -10}, {200, -150}, {200, -150}}, true},
        {CouchePlan::trou, {{100, -60}, {200, -62.5}, {300, -64.00004}}, false},
    };
    plan.textes = {
        {CouchePlan::cote, {150, 10}, 2.864, "100 mm", AppuiTexte::milieu},
        {CouchePlan::cadre, {0, -180}, 3.58, "R\xC3\xA9 & Co", AppuiTexte::gauche},
    };
    return plan;
}

inline DessinPlan OneLine(const PointMm &from, const PointMm &to) {
    return {"", {{CouchePlan::contour, {from, to}, false}}, {}};
}

} // namespace loftwing
