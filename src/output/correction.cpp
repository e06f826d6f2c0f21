#include "output/correction.h"

#include "base/number_text.h"
#include "output/page_setup.h"
#include "output/sheet_marks.h"

#include <cmath>

namespace loftwing {

namespace {

std::string Pourcent(double factor) {
    return NumberText(std::round(factor * 1E4) / 1E2) + " %";
}

/// The factor after one of `before`; nothing where the measure is refused, which a box has told.
std::optional<double> Facteur(double before, const std::string &typed, const Saisie &saisie,
                              const std::string &titre) {
    const double measured = NombreMm(typed, saisie);
    if (EstRefusee(typed, saisie.Unite)) {
        return std::nullopt;
    }
    const double factor = measured > 0 ? before * LongueurTemoin(saisie.Unite) / measured : 0;
    if (CorrectionAdmise(factor)) {
        return factor;
    }
    saisie.messages.Tell(saisie.messages.Text({"FrmPrint", "284"}), titre, BoxIcon::stop);
    return std::nullopt;
}

} // namespace

std::string MesureJuste(const std::string &Unite) {
    return DepuisMm(LongueurTemoin(Unite), Unite);
}

FinMesure CorrigeParMesure(const CorrectionImprimante &avant, const TextesMesure &typed,
                           const Saisie &saisie, const std::string &titre) {
    const auto x = Facteur(avant.x, typed[kChampLong], saisie, titre);
    if (!x) {
        return {avant, kChampLong};
    }
    const auto y = Facteur(avant.y, typed[kChampTravers], saisie, titre);
    if (!y) {
        return {avant, kChampTravers};
    }
    return {{*x, *y}, std::nullopt};
}

std::string TexteCorrection(const CorrectionImprimante &correction, const LngIni &language) {
    return language.LngText({"FrmPrint", "280"}) + " : " + Pourcent(correction.x) + " " +
           language.LngText({"FrmPrint", "281"}) + ", " + Pourcent(correction.y) + " " +
           language.LngText({"FrmPrint", "282"});
}

} // namespace loftwing
