#include "picture_ribs.h"

#include "features/longeron.h"
#include "features/trou.h"

namespace loftwing {

void AddFeatures(Programme &programme) {
    const bool inches = programme.settings.Unite == kUniteIn;
    const std::string width = inches ? "3/8" : "10";
    const std::string depth = inches ? "3/16" : "5";
    RibModel &rib = programme.rib;
    const Saisie typed = programme.SaisieEnCours();
    const Refus nobody = [](Regle, float) {};
    StockeLongeron(rib.longeron[0], {{"12%", width, depth, ""}, 2, 2, kLongeronSurface, 0},
                   rib.corde, typed, nobody);
    StockeLongeron(rib.longeron[1], {{"30%", depth, "0", depth}, 1, 0, kLongeronRond, 0}, rib.corde,
                   typed, nobody);
    rib.NbLongeron = 1;
    StockeTrou(rib.trou[0], {{"50%", width, "0"}, "0", true, 0, kTrouRond}, rib.corde, typed,
               nobody);
    StockeTrou(rib.trou[1], {{"35%", width, depth}, depth, false, 1, kTrouRectangle}, rib.corde,
               typed, nobody);
    rib.NbTrou = 1;
}

void DressAsInTheTour(Programme &programme) {
    RibModel &rib = programme.rib;
    const Saisie typed = programme.SaisieEnCours();
    const Refus nobody = [](Regle, float) {};
    StockeLongeron(rib.longeron[0], {{"30%", "8", "3", ""}, 1, 1, kLongeronSurface, 0}, rib.corde,
                   typed, nobody);
    StockeLongeron(rib.longeron[1], {{"60", "5", "3", ""}, 1, 1, kLongeronSurface, 1}, rib.corde,
                   typed, nobody);
    rib.NbLongeron = 1;
    StockeTrou(rib.trou[0], {{"50%", "12", "0"}, "0", true, 0, kTrouRond}, rib.corde, typed,
               nobody);
    rib.NbTrou = 0;
}

} // namespace loftwing
