// The notches for spars.

#include "features/longeron.h"
#include "output/piece_steps.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kContactAire = 1e-4; // mm2 that two notches must share to meet

/// One surface of the rib at a spar.
struct Cote {
    const Silhouette &faces; ///< that the notch counts from
    bool dessus;
    double vers_dedans; ///< the way into the rib in heights
};

class Entaille {
  public:
    Entaille(const Etabli &etabli, const Longeron &spar, int numero, double place, Cote cote)
        : etabli_(etabli), numero_(numero), place_(place), w_(Wide(spar.LargLong)),
          h_(Wide(spar.HautLong)), d_(Wide(spar.DistLong)), cote_(cote) {}

    std::optional<Decoupe> DeGenre(std::uint8_t TypeLong) const {
        if (!(w_ > 0)) {
            return std::nullopt;
        }
        switch (TypeLong) {
        case kLongeronSurface:
            return SuitSurface();
        case kLongeronDroit:
        case kLongeronDistance:
            return Droit();
        case kLongeronRond:
            return Rond();
        default:
            return std::nullopt;
        }
    }

  private:
    const Etabli &etabli_;
    int numero_;
    double place_, w_, h_, d_;
    Cote cote_;

    double Y(double x) const {
        const auto heights = cote_.faces.A(x);
        if (!heights) {
            throw RefusPiece{RefusDePiece::longeron_sans_surface, numero_};
        }
        return cote_.dessus ? heights->haut : heights->bas;
    }

    Decoupe Droit() const {
        const double surface = Y(place_);
        const double outer = d_ == 0 ? -etabli_.loin : d_;
        return {numero_, Rectangle(place_ - w_ / 2, surface + cote_.vers_dedans * outer,
                                   place_ + w_ / 2, surface + cote_.vers_dedans * (d_ + h_))};
    }

    Decoupe Rond() const {
        const PointMm centre{place_, Y(place_) + cote_.vers_dedans * (d_ + h_)};
        return {numero_, AnneauRond(centre, w_ / 2), CerclePiece{centre, w_ / 2}};
    }

    /// A stick of this width and depth lies in it, whatever the slope of the surface.
    std::optional<Decoupe> SuitSurface() const {
        if (!(h_ > 0)) {
            return std::nullopt;
        }
        const PointMm a{place_ - w_ / 2, Y(place_ - w_ / 2)};
        const PointMm b{place_ + w_ / 2, Y(place_ + w_ / 2)};
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        const PointMm along{(b.x - a.x) / length, (b.y - a.y) / length};
        const PointMm inward{-along.y * cote_.vers_dedans, along.x * cote_.vers_dedans};
        const PointMm middle{(a.x + b.x) / 2, (a.y + b.y) / 2};
        const auto corner = [&](double sideways, double deep) {
            return PointMm{middle.x + along.x * sideways + inward.x * deep,
                           middle.y + along.y * sideways + inward.y * deep};
        };
        Anneau ring{corner(-w_ / 2, -etabli_.loin), corner(w_ / 2, -etabli_.loin),
                    corner(w_ / 2, h_), corner(-w_ / 2, h_)};
        if (Aire(ring) < 0) {
            std::reverse(ring.begin(), ring.end());
        }
        return Decoupe{numero_, ring};
    }
};

/// The notch in one surface, where `option` asks for one.
void AjouteEntaille(const Etabli &etabli, int numero, double place, bool dessus,
                    std::vector<Decoupe> &notches) {
    const Longeron &spar = At(etabli.rib.longeron, numero - 1);
    const std::uint8_t option = dessus ? spar.OptLongExt : spar.OptLongInt;
    if (option != kEncocheCoffrage && option != kEncocheContour) {
        return;
    }
    const Silhouette &faces = option == kEncocheContour ? etabli.faces : etabli.faces_internes;
    const Entaille notch(etabli, spar, numero, place, {faces, dessus, dessus ? -1.0 : 1.0});
    if (auto cut = notch.DeGenre(spar.TypeLong)) {
        notches.push_back(*std::move(cut));
    }
}

bool BoitesSeTouchent(const Anneau &a, const Anneau &b) {
    const BoitePiece p = BoiteAutour(a);
    const BoitePiece q = BoiteAutour(b);
    return p.bas_gauche.x <= q.haut_droite.x && q.bas_gauche.x <= p.haut_droite.x &&
           p.bas_gauche.y <= q.haut_droite.y && q.bas_gauche.y <= p.haut_droite.y;
}

bool SeTouchent(const Etabli &etabli, const Decoupe &a, const Decoupe &b) {
    if (!BoitesSeTouchent(a.aire, b.aire)) {
        return false;
    }
    const Surface common = Commun({a.aire}, {b.aire});
    // Outside the airfoil there is nothing that they could share.
    return Aire(common) > kContactAire && Aire(Commun(common, etabli.contour)) > kContactAire;
}

} // namespace

std::vector<double> PlacesLongerons(const RibModel &rib, const Saisie &saisie) {
    std::vector<double> places;
    for (int slot = 0; slot <= rib.NbLongeron; ++slot) {
        const Longeron &spar = At(rib.longeron, slot);
        const float place =
            PlaceDepuis(TexteOuZero(spar.PosLongAfich, saisie), spar.RefLong, rib.corde, saisie);
        if (place == 0.0F) {
            break;
        }
        places.push_back(Wide(place));
    }
    return places;
}

std::vector<Decoupe> Encoches(const Etabli &etabli) {
    std::vector<Decoupe> notches;
    int numero = 0;
    for (const double place : PlacesLongerons(etabli.rib, etabli.saisie)) {
        ++numero;
        AjouteEntaille(etabli, numero, place, true, notches);
        AjouteEntaille(etabli, numero, place, false, notches);
    }
    return notches;
}

std::vector<int> EncochesQuiSeTouchent(const Etabli &etabli, const std::vector<Decoupe> &notches) {
    std::vector<int> numbers;
    for (auto here = notches.begin(); here != notches.end(); ++here) {
        const bool told = !numbers.empty() && numbers.back() == here->numero;
        if (!told && std::any_of(notches.begin(), here, [&](const Decoupe &before) {
                return SeTouchent(etabli, before, *here);
            })) {
            numbers.push_back(here->numero);
        }
    }
    return numbers;
}

} // namespace loftwing
