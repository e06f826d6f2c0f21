// The body of the rib: the airfoil without sheeting, between the stocks.

#include "output/piece_steps.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

/// The largest connected part of the closed contour. Most files that cross themselves do it at the
/// trailing edge, where a small loop is left over.
Surface ContourFerme(const RibModel &rib) {
    const double corde = Wide(rib.corde);
    Anneau ring;
    for (long i = 1; i <= rib.NbContour; ++i) {
        ring.push_back({rib.ContourX(i) * corde, rib.ContourY(i) * corde});
    }
    std::vector<Surface> parts = Morceaux(Impair({ring}));
    if (parts.empty()) {
        throw RefusPiece{RefusDePiece::sans_bois};
    }
    return *std::max_element(parts.begin(), parts.end(),
                             [](const Surface &a, const Surface &b) { return Aire(a) < Aire(b); });
}

/// Farther than the outline and a heel under it are long.
double Loin(const RibModel &rib, const BoitePiece &box) {
    const double length = box.haut_droite.x - box.bas_gauche.x;
    const double height = box.haut_droite.y - box.bas_gauche.y;
    return 2 * (length + height + std::abs(rib.talon.TalonIntra) + std::abs(rib.talon.TalonExtra)) +
           10;
}

} // namespace

std::string TexteOuZero(const std::string &afich, const Saisie &saisie) {
    return !afich.ends_with('%') && EstRefusee(afich, saisie.Unite) ? "0" : afich;
}

Etabli PrepareEtabli(const RibModel &rib, const Saisie &saisie) {
    const Surface contour = ContourFerme(rib);
    const double sheeting = Wide(rib.EpCoffrage);
    const Surface body = sheeting == 0 ? contour : Deplace(contour, -sheeting, Coins::ronds);
    const Silhouette faces(contour);
    return {rib,  saisie, Wide(rib.corde),  contour,
            body, faces,  Silhouette(body), Loin(rib, faces.Boite())};
}

Surface EntreBords(const Etabli &etabli) {
    const RibModel &rib = etabli.rib;
    const BoitePiece &box = etabli.faces.Boite();
    const double front = rib.TypeBA == 1 ? Wide(rib.EpBA) : box.bas_gauche.x - etabli.loin;
    const double rear = etabli.corde - Wide(rib.EpBF);
    if (front >= rear) {
        return {};
    }
    return Commun(etabli.corps, {Rectangle(front, box.bas_gauche.y - etabli.loin, rear,
                                           box.haut_droite.y + etabli.loin)});
}

Surface EncocheBA(const Etabli &etabli) {
    const CarreBord &carre = etabli.rib.carre;
    if (etabli.rib.TypeBA == 1 || !(carre.CarreBA > 0.0F)) {
        return {};
    }
    const double x = Wide(carre.CarreBAX);
    const double y = Wide(carre.CarreBAY);
    const double half = Wide(carre.CarreBA) / std::sqrt(2.0);
    const BoitePiece &box = etabli.faces.Boite();
    const double front = std::min(box.bas_gauche.x, x) - etabli.loin;
    return Rempli(
        {{{x, y - half}, {x + half, y}, {x, y + half}, {x - half, y}},
         Rectangle(front, box.bas_gauche.y - etabli.loin, x, box.haut_droite.y + etabli.loin)});
}

} // namespace loftwing
