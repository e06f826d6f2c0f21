#include "output/cut_forms.h"

#include "output/piece_place.h"
#include "output/recording.h"
#include "output/rib_measures.h"
#include "output/styles.h"

#include <algorithm>
#include <limits>

namespace loftwing {

namespace {

class Boite {
  public:
    void Prend(const PointMm &point) {
        boite_.bas_gauche = {std::min(boite_.bas_gauche.x, point.x),
                             std::min(boite_.bas_gauche.y, point.y)};
        boite_.haut_droite = {std::max(boite_.haut_droite.x, point.x),
                              std::max(boite_.haut_droite.y, point.y)};
    }
    void Prend(const std::vector<PointMm> &points) {
        for (const PointMm &point : points) {
            Prend(point);
        }
    }
    void Prend(const Piece &piece);

    BoitePiece Prise() const {
        return boite_.bas_gauche.x > boite_.haut_droite.x ? BoitePiece{} : boite_;
    }

  private:
    static constexpr double kLoin = std::numeric_limits<double>::max();
    BoitePiece boite_{{kLoin, kLoin}, {-kLoin, -kLoin}};
};

double LargeurDe(const TexteMarque &texte) {
    const double points = texte.hauteur / kCapitales * kUnitsPerMm / kUnitsPerPoint;
    return MeasuredAdvance(texte.texte, {"Arial", points}) / kUnitsPerMm;
}

/// What is cut out of a part lies within its outline.
void Boite::Prend(const Piece &piece) {
    for (const PartiePiece &partie : piece.parties) {
        Prend(partie.dehors);
    }
    for (const TraitMarque &trait : piece.traits) {
        Prend(trait.points);
    }
    for (const TexteMarque &texte : piece.textes) {
        Prend(texte.place);
        Prend({texte.place.x + LargeurDe(texte), texte.place.y + texte.hauteur});
    }
}

} // namespace

BoitePiece EtendueDe(const std::vector<Piece> &pieces) {
    Boite boite;
    for (const Piece &piece : pieces) {
        boite.Prend(piece);
    }
    return boite.Prise();
}

BoitePiece PageDe(const DessinDecoupe &decoupe) {
    if (decoupe.planche) {
        return {{0, 0}, *decoupe.planche};
    }
    const BoitePiece box = EtendueDe(decoupe.pieces);
    return {{box.bas_gauche.x - kEcartPieces, box.bas_gauche.y - kEcartPieces},
            {box.haut_droite.x + kEcartPieces, box.haut_droite.y + kEcartPieces}};
}

std::vector<Piece> EnDessous(std::vector<Piece> pieces) {
    for (std::size_t i = 1; i < pieces.size(); ++i) {
        const double foot = EtendueDe({pieces[i - 1]}).bas_gauche.y;
        const double top = EtendueDe({pieces[i]}).haut_droite.y;
        pieces[i] = Deplacee(std::move(pieces[i]), {0, (foot - kEcartPieces) - top});
    }
    return pieces;
}

Colour CouleursDecoupe::De(GenreMarque genre) const {
    switch (genre) {
    case GenreMarque::reference:
        return reference;
    case GenreMarque::station:
        return station;
    case GenreMarque::axe:
        return axe;
    case GenreMarque::etiquette:
        return etiquette;
    case GenreMarque::talon:
        return talon;
    }
    return coupe;
}

CouleursDecoupe CouleursDe(const AppSettings &settings) {
    const Colour axe = CouleurDe(settings, Element::axe);
    const Colour station = CouleurDe(settings, Element::rep);
    return {CouleurDe(settings, Element::profil), axe, station, axe, station,
            CouleurDe(settings, Element::bloc)};
}

} // namespace loftwing
