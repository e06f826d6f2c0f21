#include "output/stack_layout.h"

#include <algorithm>
#include <numeric>

namespace loftwing {

namespace {

constexpr double kAuBord = 0.1; // mm
constexpr double kBruit = 1E-6;

/// Drawings side by side.
struct Rang {
    double y = 0;
    double hauteur = 0;
    double fin = 0; ///< the right edge of its last drawing
};

/// In which way sheets are filled.
enum class Maniere {
    colonne, ///< under each other, no sheet is gone back to
    rangees  ///< side by side too, wherever there is room
};

/// A sheet that is being filled.
class Feuille {
  public:
    Feuille(const TailleDessin &place, const FeuilleAdmise &admise, Maniere maniere)
        : place_(place), admise_(admise), maniere_(maniere) {}

    /// Lays a drawing beside others or under them; false where there is no room for it.
    bool Prend(std::size_t dessin, const TailleDessin &taille) {
        if (maniere_ == Maniere::rangees &&
            std::any_of(rangs_.begin(), rangs_.end(),
                        [&](Rang &rang) { return PrendDans(rang, dessin, taille); })) {
            return true;
        }
        const double y = rangs_.empty() ? 0.0 : Bas(rangs_.back()) + kEcartPile;
        if (!Tient({taille.longueur, y + taille.hauteur}, place_) || !Admet({dessin, 0, y})) {
            return false;
        }
        rangs_.push_back({y, taille.hauteur, taille.longueur});
        return true;
    }
    const FeuilleEmpilee &Dessins() const { return dessins_; }

  private:
    const TailleDessin &place_;
    const FeuilleAdmise &admise_;
    Maniere maniere_;
    std::vector<Rang> rangs_;
    FeuilleEmpilee dessins_;

    static double Bas(const Rang &rang) { return rang.y + rang.hauteur; }

    /// Only the last row has nothing under it and may become higher.
    bool PrendDans(Rang &rang, std::size_t dessin, const TailleDessin &taille) {
        const double x = rang.fin + kEcartPile;
        const bool last = &rang == &rangs_.back();
        if ((taille.hauteur > rang.hauteur + kBruit && !last) ||
            !Tient({x + taille.longueur, rang.y + taille.hauteur}, place_) ||
            !Admet({dessin, x, rang.y})) {
            return false;
        }
        rang.fin = x + taille.longueur;
        rang.hauteur = std::max(rang.hauteur, taille.hauteur);
        return true;
    }
    bool Admet(const PlaceDessin &place) {
        dessins_.push_back(place);
        if (dessins_.size() == 1 || admise_(dessins_)) {
            return true;
        }
        dessins_.pop_back();
        return false;
    }
};

/// The drawings in an order, on a room, as it admits.
struct Travail {
    std::vector<std::size_t> ordre;
    const std::vector<TailleDessin> &dessins;
    const TailleDessin &place;
    const FeuilleAdmise &admise;

    std::vector<FeuilleEmpilee> Empile(Maniere maniere) const;
};

std::vector<FeuilleEmpilee> Travail::Empile(Maniere maniere) const {
    std::vector<Feuille> feuilles;
    for (const std::size_t i : ordre) {
        const auto from = maniere == Maniere::colonne && !feuilles.empty() ? feuilles.end() - 1
                                                                           : feuilles.begin();
        const bool laid = std::any_of(
            from, feuilles.end(), [&](Feuille &feuille) { return feuille.Prend(i, dessins[i]); });
        if (!laid) {
            feuilles.emplace_back(place, admise, maniere).Prend(i, dessins[i]);
        }
    }
    std::vector<FeuilleEmpilee> filled;
    filled.reserve(feuilles.size());
    for (const Feuille &feuille : feuilles) {
        filled.push_back(feuille.Dessins());
    }
    return filled;
}

/// The least sheets, the first of as many.
std::vector<FeuilleEmpilee> MoinsDeFeuilles(Travail travail) {
    std::vector<FeuilleEmpilee> best = travail.Empile(Maniere::colonne);
    const auto tries = [&] {
        auto other = travail.Empile(Maniere::rangees);
        if (other.size() < best.size()) {
            best = std::move(other);
        }
    };
    if (best.size() > 1) {
        tries();
        std::stable_sort(travail.ordre.begin(), travail.ordre.end(),
                         [&](std::size_t a, std::size_t b) {
                             return travail.dessins[a].hauteur > travail.dessins[b].hauteur;
                         });
        tries();
    }
    return best;
}

} // namespace

bool Tient(const TailleDessin &dessin, const TailleDessin &place) {
    return dessin.longueur <= place.longueur + kAuBord && dessin.hauteur <= place.hauteur + kAuBord;
}

Empilage Empile(const std::vector<TailleDessin> &dessins, const TailleDessin &place,
                const FeuilleAdmise &admise) {
    Empilage empilage;
    std::vector<std::size_t> ordre(dessins.size());
    std::iota(ordre.begin(), ordre.end(), std::size_t{0});
    const auto hors = std::stable_partition(
        ordre.begin(), ordre.end(), [&](std::size_t i) { return Tient(dessins[i], place); });
    empilage.hors.assign(hors, ordre.end());
    ordre.erase(hors, ordre.end());
    empilage.feuilles = MoinsDeFeuilles({ordre, dessins, place, admise});
    return empilage;
}

double HauteurPrise(const FeuilleEmpilee &feuille, const std::vector<TailleDessin> &dessins) {
    double most = 0;
    for (const PlaceDessin &place : feuille) {
        most = std::max(most, place.y + dessins[place.dessin].hauteur);
    }
    return most;
}

} // namespace loftwing
