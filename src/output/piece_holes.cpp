// Lightening and tube holes.

#include "features/trou.h"
#include "output/piece_steps.h"

namespace loftwing {

namespace {

double HauteurTrou(const Etabli &etabli, const Trou &trou, double place) {
    double base = 0;
    if (trou.ChkCentre == 1.0F) {
        const HauteursA faces = etabli.faces.Pres(place);
        base = (faces.haut + faces.bas) / 2;
    }
    return base + Wide(trou.DecalTrou);
}

/// A hole without a size, or of a kind that isn't known, is none.
std::optional<Decoupe> Percage(const Etabli &etabli, int numero) {
    const Trou &trou = At(etabli.rib.trou, numero - 1);
    const double width = Wide(trou.DiaTrou);
    if (!(width > 0)) {
        return std::nullopt;
    }
    const std::string afich = TexteOuZero(trou.PosTrouAfich, etabli.saisie);
    const double x = Wide(PlaceDepuis(afich, trou.RefTrou, etabli.rib.corde, etabli.saisie));
    const PointMm centre{x, HauteurTrou(etabli, trou, x)};
    if (trou.TypeTrou == kTrouRond) {
        return Decoupe{numero, AnneauRond(centre, width / 2), CerclePiece{centre, width / 2}};
    }
    const double height = Wide(trou.HautTrou);
    if (trou.TypeTrou != kTrouRectangle || !(height > 0)) {
        return std::nullopt;
    }
    return Decoupe{numero, Rectangle(centre.x - width / 2, centre.y - height / 2,
                                     centre.x + width / 2, centre.y + height / 2)};
}

} // namespace

std::vector<Decoupe> Percages(const Etabli &etabli) {
    std::vector<Decoupe> holes;
    for (int numero = 1; numero <= etabli.rib.NbTrou + 1; ++numero) {
        if (auto hole = Percage(etabli, numero)) {
            holes.push_back(*std::move(hole));
        }
    }
    return holes;
}

} // namespace loftwing
