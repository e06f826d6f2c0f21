// The words on a piece, where there is wood for them.

#include "base/text_encoding.h"
#include "output/piece_steps.h"
#include "output/rib_measures.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMmParPoint = 25.4 / 72;
constexpr double kMoins = 1.5;      // mm, the smallest letters that a laser burns legibly
constexpr double kPlusPetit = 0.85; // from one size to the next
/// Of a letter, in heights of capitals: wide enough for stroke fonts too, and under the line.
constexpr double kLargeur = 1.0;
constexpr double kJambage = 0.3;
constexpr double kMarge = 0.3; // mm around the words
constexpr int kColonnes = 160;

/// Sizes of the words with capitals of some height.
struct Gabarit {
    double hauteur, largeur;

    Gabarit(double capitals, std::size_t letters)
        : hauteur(capitals), largeur(kLargeur * capitals * static_cast<double>(letters)) {}

    double Dessous() const { return kJambage * hauteur; }
    double Total() const { return hauteur + Dessous(); }
    BoitePiece Boite(const PointMm &place) const {
        return {{place.x - kMarge, place.y - Dessous() - kMarge},
                {place.x + largeur + kMarge, place.y + hauteur + kMarge}};
    }
};

/// A stretch of wood over one x.
struct Plage {
    double bas, haut;
};

/// What lies over each of ascending places.
std::vector<std::vector<Plage>> Plages(const Surface &wood, const std::vector<double> &xs) {
    std::vector<std::vector<double>> crossed(xs.size());
    for (const Anneau &ring : wood) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const PointMm &a = ring[i];
            const PointMm &b = Suivant(ring, i);
            const auto [left, right] = std::minmax(a.x, b.x);
            auto at = std::lower_bound(xs.begin(), xs.end(), left);
            for (; at != xs.end() && *at < right; ++at) {
                crossed[static_cast<std::size_t>(at - xs.begin())].push_back(
                    a.y + (b.y - a.y) * ((*at - a.x) / (b.x - a.x)));
            }
        }
    }
    std::vector<std::vector<Plage>> all;
    for (std::vector<double> &ys : crossed) {
        std::sort(ys.begin(), ys.end());
        all.emplace_back();
        for (std::size_t i = 0; i + 1 < ys.size(); i += 2) {
            all.back().push_back({ys[i], ys[i + 1]});
        }
    }
    return all;
}

/// The wood cut into columns, in which a place for a box is quickly found.
class Colonnes {
  public:
    explicit Colonnes(const Surface &wood) : wood_(wood) {
        const BoitePiece box = BoiteAutour(PointsDe(wood));
        x0_ = box.bas_gauche.x;
        step_ = (box.haut_droite.x - x0_) / kColonnes;
        std::vector<double> middles;
        middles.reserve(kColonnes);
        for (int i = 0; i < kColonnes; ++i) {
            middles.push_back(x0_ + (i + 0.5) * step_);
        }
        columns_ = Plages(wood, middles);
    }

    /// The place with most room above and below. The line at height 0 is kept clear where that is
    /// possible.
    std::optional<PointMm> Place(const Gabarit &words) const {
        const int wide = static_cast<int>(std::ceil((words.largeur + 2 * kMarge) / step_)) + 1;
        std::optional<PointMm> best;
        double room = 0;
        for (int i = 0; i + wide <= kColonnes; ++i) {
            for (const Plage &stretch : columns_[static_cast<std::size_t>(i)]) {
                Essaie(words, i, Commune(stretch, i, wide), room, best);
            }
        }
        return best;
    }

  private:
    const Surface &wood_;
    double x0_ = 0, step_ = 0;
    std::vector<std::vector<Plage>> columns_;

    /// What is left of a stretch over the columns behind it.
    Plage Commune(Plage stretch, int from, int count) const {
        for (int i = from + 1; i < from + count && stretch.bas < stretch.haut; ++i) {
            Plage best{0, 0};
            for (const Plage &other : columns_[static_cast<std::size_t>(i)]) {
                const Plage both{std::max(stretch.bas, other.bas),
                                 std::min(stretch.haut, other.haut)};
                if (both.haut - both.bas > best.haut - best.bas) {
                    best = both;
                }
            }
            stretch = best;
        }
        return stretch;
    }

    void Essaie(const Gabarit &words, int column, const Plage &stretch, double &room,
                std::optional<PointMm> &best) const {
        for (const Plage &part : {Plage{std::max(stretch.bas, 0.0), stretch.haut},
                                  Plage{stretch.bas, std::min(stretch.haut, 0.0)}, stretch}) {
            const double spare = part.haut - part.bas - words.Total() - 2 * kMarge;
            if (spare <= room) {
                continue;
            }
            const PointMm place{x0_ + (column + 0.5) * step_ + kMarge,
                                (part.bas + part.haut - words.Total()) / 2 + words.Dessous()};
            if (BoiteDans(wood_, words.Boite(place))) {
                room = spare;
                best = place;
                return;
            }
        }
    }
};

/// Where the user has put the text, left end of its base line.
std::optional<PointMm> PlaceDonnee(const TexteInsere &texte) {
    if (texte.InsTextX == 0.0F && texte.InsTextY == 0.0F) {
        return std::nullopt;
    }
    const double size = Wide(texte.TailleFont) * kMmParPoint;
    return PointMm{Wide(texte.InsTextX), Wide(texte.InsTextY) + kTexteAuDessus - kAscent * size};
}

/// Writes words where the user has put the inserted text, or where there is room; false where there
/// is none.
bool EcritMots(const Etabli &etabli, const std::string &words, const Surface &bois, Piece &piece) {
    const std::size_t letters = CharacterCount(words);
    const TexteInsere &texte = etabli.rib.texte;
    const double wanted = Wide(texte.TailleFont) * kMmParPoint * kCapitales;
    if (letters == 0 || !(wanted > 0)) {
        return false;
    }
    const auto write = [&](const PointMm &place, double height) {
        piece.textes.push_back({GenreMarque::etiquette, place, height, words});
        return true;
    };
    const auto given = PlaceDonnee(texte);
    if (given && BoiteDans(bois, Gabarit(wanted, letters).Boite(*given))) {
        return write(*given, wanted);
    }
    const Colonnes columns(bois);
    const double last = std::min(wanted, kMoins);
    for (double height = wanted; height >= last;
         height = height > last ? std::max(height * kPlusPetit, last) : 0) {
        if (const auto place = columns.Place(Gabarit(height, letters))) {
            return write(*place, height);
        }
    }
    return false;
}

} // namespace

std::string EtiquetteDuRib(const RibModel &rib, const std::string &Unite) {
    return !rib.texte.InsTexte.empty() ? rib.texte.InsTexte
                                       : rib.NomProfil + " " + rib.cordeAfich + Unite;
}

std::string TexteEtiquette(const Etabli &etabli, const DemandePiece &demande, GenrePiece genre) {
    const std::string words =
        demande.texte.empty() ? EtiquetteDuRib(etabli.rib, etabli.saisie.Unite) : demande.texte;
    const std::string &name = genre == GenrePiece::gabarit_extrados   ? demande.nom_extrados
                              : genre == GenrePiece::gabarit_intrados ? demande.nom_intrados
                                                                      : "";
    return name.empty() ? words : words + ", " + name;
}

bool MotsDansBois(const Surface &bois, const PointMm &place, double hauteur,
                  const std::string &words) {
    return BoiteDans(bois, Gabarit(hauteur, CharacterCount(words)).Boite(place));
}

double LargeurReservee(const TexteMarque &texte) {
    return Gabarit(texte.hauteur, CharacterCount(texte.texte)).largeur;
}

void PlaceEtiquette(const Etabli &etabli, const DemandePiece &demande, const Surface &bois,
                    Piece &piece) {
    if (!EcritMots(etabli, TexteEtiquette(etabli, demande, piece.genre), bois, piece)) {
        EcritMots(etabli, demande.texte_court, bois, piece);
    }
}

} // namespace loftwing
