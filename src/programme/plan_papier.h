/// The sheets of a building plan, from the page's settings.
#pragma once

#include "core/app_settings.h"
#include "output/page_setup.h"
#include "output/plan_feuilles.h"

#include <optional>
#include <vector>

namespace loftwing {

/// The settings' paper. The printer's own, whose size isn't known, and a page as large as the
/// drawing count as the first of the list.
Papier PapierDuPlan(const MiseEnPage &page);

/// Sheets of that paper, turned so that the drawings take fewer of them; the smaller one
/// of its margins all round, its overlap or, where that is 0, 10 mm. Nothing where there is no
/// room.
std::optional<ReglageFeuillesPlan> ReglageFeuillesDe(const MiseEnPage &page,
                                                     const std::vector<DessinPlan> &dessins);

} // namespace loftwing
