#include "programme/plan_papier.h"

#include <algorithm>
#include <limits>

namespace loftwing {

namespace {

/// How many sheets all drawings take; nothing where one can't.
std::optional<int> FeuillesPrises(const std::vector<DessinPlan> &dessins,
                                  const ReglageFeuillesPlan &reglage) {
    int sheets = 0;
    for (const DessinPlan &dessin : dessins) {
        if (!QuadrillageDe(dessin, reglage)) {
            return std::nullopt;
        }
        sheets += static_cast<int>(FeuillesDuPlan(dessin, reglage).size());
    }
    return sheets;
}

} // namespace

Papier PapierDuPlan(const MiseEnPage &page) {
    MiseEnPage usual = page;
    if (page.NumIndex == kPapierImprimante || page.NumIndex == kPapierEntier) {
        usual.NumIndex = 0;
    }
    return PapierDe(usual);
}

std::optional<ReglageFeuillesPlan> ReglageFeuillesDe(const MiseEnPage &page,
                                                     const std::vector<DessinPlan> &dessins) {
    constexpr double kUsuel = 10; // overlap, mm
    const Papier paper = PapierDuPlan(page);
    ReglageFeuillesPlan sheets;
    sheets.marge = std::min(Wide(page.MargeHaut), Wide(page.MargeBas));
    sheets.recouvrement = page.recouvrement > 0.0F ? Wide(page.recouvrement) : kUsuel;
    std::optional<ReglageFeuillesPlan> best;
    int least = std::numeric_limits<int>::max();
    for (const bool turned : {false, true}) {
        sheets.largeur = turned ? paper.largeur : paper.tailleFeuille;
        sheets.hauteur = turned ? paper.tailleFeuille : paper.largeur;
        const auto count = FeuillesPrises(dessins, sheets);
        if (count && *count < least) {
            least = *count;
            best = sheets;
        }
    }
    return best;
}

} // namespace loftwing
