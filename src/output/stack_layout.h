/// Drawings of different sizes on as few sheets as they need.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace loftwing {

/// Clear distance between two drawings of a stack, mm.
inline constexpr double kEcartPile = 5.0;

/// How large a drawing is, or the room on a sheet, mm.
struct TailleDessin {
    double longueur = 0; ///< along the rib
    double hauteur = 0;
};

/// Where a drawing lies: its upper left corner, mm from that of the sheet's room.
struct PlaceDessin {
    std::size_t dessin = 0; ///< which one, from 0
    double x = 0;
    double y = 0;

    bool operator==(const PlaceDessin &) const = default;
};

/// The drawings of one sheet, in the order in which they were laid.
using FeuilleEmpilee = std::vector<PlaceDessin>;

struct Empilage {
    std::vector<FeuilleEmpilee> feuilles;
    std::vector<std::size_t> hors; ///< those that no sheet has room for
};

/// Whether a sheet may be so full; one drawing may always be.
using FeuilleAdmise = std::function<bool(const FeuilleEmpilee &)>;

/// Whether a drawing fits into that room. A line on the very edge is not lost.
bool Tient(const TailleDessin &dessin, const TailleDessin &place);

/// Lays the drawings under each other in their order. Only where that takes fewer sheets they stand
/// side by side and later ones fill the places that those before them have left; and only where
/// that isn't enough the highest ones come first.
Empilage Empile(const std::vector<TailleDessin> &dessins, const TailleDessin &place,
                const FeuilleAdmise &admise);

/// How far down the drawings of a sheet reach, mm.
double HauteurPrise(const FeuilleEmpilee &feuille, const std::vector<TailleDessin> &dessins);

} // namespace loftwing
