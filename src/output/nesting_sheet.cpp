#include "output/nesting_sheet.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kJuste = 1e-6; // mm, by which a piece that fits exactly may miss it in digits
constexpr double kBande = 1e-5; // mm; what fits exactly would else have a place without an area

Anneau AnneauDe(const BoitePiece &box, double more) {
    const PointMm low{box.bas_gauche.x - more, box.bas_gauche.y - more};
    const PointMm high{box.haut_droite.x + more, box.haut_droite.y + more};
    return {low, {high.x, low.y}, high, {low.x, high.y}};
}

Anneau A(Anneau ring, const PointMm &de, double sign) {
    for (PointMm &point : ring) {
        point = {sign * point.x + de.x, sign * point.y + de.y};
    }
    return ring;
}

} // namespace

void Formes::Ajoute(const Piece &piece, double ecart) {
    const Encombrement upright = EncombrementDe(piece, ecart);
    formes_.push_back({{upright, DemiTour(upright)}, AirePiece(piece)});
}

/// For an upright fixed form; a turned one is the same picture turned.
const Surface &Formes::InterditDe(const FormeTournee &fixe, const FormeTournee &mobile) {
    const bool opposite = fixe.sens != mobile.sens;
    const auto [at, fresh] = interdits_.try_emplace(std::tuple(fixe.forme, mobile.forme, opposite));
    if (fresh) {
        at->second = Interdit(De({fixe.forme, 0}), De({mobile.forme, opposite ? 1U : 0U}));
    }
    return at->second;
}

std::optional<BoitePiece> PlancheEnCours::OriginesDe(const Encombrement &taken) const {
    const BoitePiece &box = taken.boite;
    const PointMm low{marge_ - box.bas_gauche.x, marge_ - box.bas_gauche.y};
    const PointMm high{format_.Longueur() - marge_ - box.haut_droite.x,
                       format_.Travers() - marge_ - box.haut_droite.y};
    if (high.x < low.x - kJuste || high.y < low.y - kJuste) {
        return std::nullopt;
    }
    return BoitePiece{low, {std::max(low.x, high.x), std::max(low.y, high.y)}};
}

std::vector<PointMm> PlancheEnCours::Libres(Formes &formes, const FormeTournee &forme) const {
    const auto origins = OriginesDe(formes.De(forme));
    if (!origins) {
        return {};
    }
    std::vector<Anneau> taken;
    for (const Posee &posee : posees_) {
        const double sign = posee.sens == 0 ? 1 : -1;
        for (const Anneau &ring : formes.InterditDe({posee.forme, posee.sens}, forme)) {
            taken.push_back(A(ring, posee.de, sign));
        }
    }
    std::vector<PointMm> points;
    for (const Anneau &ring : Reste({AnneauDe(*origins, kBande)}, taken)) {
        for (const PointMm &point : ring) {
            points.push_back({std::clamp(point.x, origins->bas_gauche.x, origins->haut_droite.x),
                              std::clamp(point.y, origins->bas_gauche.y, origins->haut_droite.y)});
        }
    }
    return points;
}

std::optional<PlancheEnCours::Place> PlancheEnCours::MeilleurePlace(Formes &formes,
                                                                    std::size_t forme) const {
    std::optional<Place> best;
    for (std::size_t sens = 0; sens < (demi_tour_ ? 2U : 1U); ++sens) {
        const BoitePiece &box = formes.De({forme, sens}).boite;
        for (const PointMm &de : Libres(formes, {forme, sens})) {
            const Place place{sens, de, de.x + box.haut_droite.x, de.y + box.haut_droite.y};
            if (!best ||
                std::tie(place.droite, place.dessus) < std::tie(best->droite, best->dessus)) {
                best = place;
            }
        }
    }
    return best;
}

bool PlancheEnCours::Pose(Formes &formes, std::size_t rang, std::size_t forme) {
    const double area = formes[forme].aire;
    const bool full = bois_ + area > format_.Longueur() * format_.Travers();
    if (full || sans_place_.contains(forme)) {
        return false;
    }
    const auto place = MeilleurePlace(formes, forme);
    if (!place) {
        sans_place_.insert(forme);
        return false;
    }
    posees_.push_back({rang, forme, place->sens, place->de});
    droite_ = std::max(droite_, place->droite);
    bois_ += area;
    return true;
}

} // namespace loftwing
