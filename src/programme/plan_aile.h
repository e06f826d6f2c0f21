/// The building plan of a wing, seen from above, and its view from the front.
#pragma once

#include "core/messages.h"
#include "output/plan_dessin.h"
#include "programme/aile.h"

#include <string>
#include <vector>

namespace loftwing {

enum class CoteAile { droite, gauche };

/// The plan from above at true scale: leading edges up, the root of the right wing at the left,
/// that of the left one at the right. Its root's leading edge is at 0, 0, the wing's x is counted
/// to the right, or to the left. Dimension lines in front of it and beside its ends; below it,
/// where `face` says so, the view from the front, and the title block with the check line.
DessinPlan DessinePlan(const Aile &aile, CoteAile cote, bool face, const Messages &messages,
                       const std::string &Unite);

/// The view from the front alone: the board, every panel at its dihedral, the height under the tip
/// and the angle at each joint. The root's reference line is at 0, 0.
DessinPlan DessineFace(const Aile &aile, CoteAile cote, const Messages &messages,
                       const std::string &Unite);

/// Both wings, or the right one alone. The view from the front is below the plan where a panel has
/// dihedral.
std::vector<DessinPlan> DessinsDeLAile(const Aile &aile, bool deux_ailes, const Messages &messages,
                                       const std::string &Unite);

} // namespace loftwing
