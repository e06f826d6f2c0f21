#include "output/piece_place.h"

#include "output/piece_steps.h"

#include <algorithm>

namespace loftwing {

namespace {

/// Moves every point of what is cut and drawn; `deplace` changes a point.
template <class Move>
void PourChaquePoint(Piece &piece, Move deplace) {
    for (PartiePiece &partie : piece.parties) {
        std::for_each(partie.dehors.begin(), partie.dehors.end(), deplace);
        for (Anneau &anneau : partie.dedans) {
            std::for_each(anneau.begin(), anneau.end(), deplace);
        }
        for (CerclePiece &cercle : partie.cercles) {
            deplace(cercle.centre);
        }
    }
    for (TraitMarque &trait : piece.traits) {
        std::for_each(trait.points.begin(), trait.points.end(), deplace);
    }
    for (TexteMarque &texte : piece.textes) {
        deplace(texte.place);
    }
}

} // namespace

Piece Deplacee(Piece piece, const PointMm &de) {
    PourChaquePoint(piece, [&](PointMm &point) {
        point.x += de.x;
        point.y += de.y;
    });
    return piece;
}

Piece DemiTour(Piece piece) {
    piece = Opposee(std::move(piece));
    PourChaquePoint(piece, [](PointMm &point) { point.x = -point.x; });
    for (PartiePiece &partie : piece.parties) {
        std::reverse(partie.dehors.begin(), partie.dehors.end());
        for (Anneau &anneau : partie.dedans) {
            std::reverse(anneau.begin(), anneau.end());
        }
    }
    for (TexteMarque &texte : piece.textes) {
        texte.place.x -= LargeurReservee(texte); // its other end is the left one now
    }
    return piece;
}

Piece Opposee(Piece piece) {
    Retourne(piece);
    return piece;
}

} // namespace loftwing
