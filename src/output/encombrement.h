/// The room that a piece takes among others.
#pragma once

#include "output/piece.h"

#include <vector>

namespace loftwing {

/// Rings without concave corners which together cover a piece and half the gap around it, so that
/// two pieces whose rings have nothing in common keep the gap. They may overlap each other.
struct Encombrement {
    std::vector<Anneau> parties;
    BoitePiece boite; ///< of the wood alone

    double Longueur() const { return boite.haut_droite.x - boite.bas_gauche.x; }
    double Hauteur() const { return boite.haut_droite.y - boite.bas_gauche.y; }
};

/// All parts of the piece are one thing, and what is cut out of it is no room for others. A curved
/// outline takes some hundredths of a millimetre more than it needs, a pocket narrower than 8 mm is
/// taken whole; a piece of few corners takes what it needs and no more.
Encombrement EncombrementDe(const Piece &piece, double ecart);

/// Of the piece turned by 180 degrees.
Encombrement DemiTour(const Encombrement &encombrement);

/// Where the second one must not have its origin while the first one has its own at 0,0.
Surface Interdit(const Encombrement &fixe, const Encombrement &mobile);

} // namespace loftwing
