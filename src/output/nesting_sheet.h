/// A sheet that is being filled, and what it knows of the pieces' forms.
#pragma once

#include "output/encombrement.h"
#include "output/nesting.h"

#include <array>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

namespace loftwing {

/// What pieces of one outline have in common: their room upright and turned, and their area.
struct FormeDePiece {
    std::array<Encombrement, 2> sens;
    double aire = 0;
};

/// A form in one of its two ways to lie.
struct FormeTournee {
    std::size_t forme = 0;
    std::size_t sens = 0;
};

/// All forms of a job, and the no-fit polygons of those that have met.
class Formes {
  public:
    void Ajoute(const Piece &piece, double ecart);
    const FormeDePiece &operator[](std::size_t i) const { return formes_[i]; }
    const Encombrement &De(const FormeTournee &forme) const {
        return formes_[forme.forme].sens[forme.sens];
    }
    const Surface &InterditDe(const FormeTournee &fixe, const FormeTournee &mobile);

  private:
    std::vector<FormeDePiece> formes_;
    std::map<std::tuple<std::size_t, std::size_t, bool>, Surface> interdits_;
};

/// A piece on a sheet: first turned as its `sens` says, then moved.
struct Posee {
    std::size_t rang = 0; ///< of the piece
    std::size_t forme = 0;
    std::size_t sens = 0;
    PointMm de;
};

class PlancheEnCours {
  public:
    PlancheEnCours(const FormatPlanche &format, double marge, bool demi_tour)
        : format_(format), marge_(marge), demi_tour_(demi_tour) {}

    /// Whether the empty sheet holds a piece of these sizes.
    bool Tient(const Encombrement &taken) const { return OriginesDe(taken).has_value(); }
    /// Lays a piece as far to the left as it goes, there as low as it goes. False when there is no
    /// room.
    bool Pose(Formes &formes, std::size_t rang, std::size_t forme);

    const FormatPlanche &Format() const { return format_; }
    const std::vector<Posee> &Posees() const { return posees_; }
    /// From the left edge to the margin behind the last piece.
    double LongueurPrise() const { return std::min(droite_ + marge_, format_.Longueur()); }

  private:
    struct Place {
        std::size_t sens;
        PointMm de;
        double droite; ///< how far the piece reaches
        double dessus;
    };

    FormatPlanche format_;
    double marge_;
    bool demi_tour_;
    std::vector<Posee> posees_;
    std::set<std::size_t> sans_place_; ///< forms that have been refused: no room comes back
    double droite_ = 0;
    double bois_ = 0;

    std::optional<BoitePiece> OriginesDe(const Encombrement &taken) const;
    std::vector<PointMm> Libres(Formes &formes, const FormeTournee &forme) const;
    std::optional<Place> MeilleurePlace(Formes &formes, std::size_t forme) const;
};

} // namespace loftwing
