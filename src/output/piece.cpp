#include "output/piece.h"

#include "output/piece_steps.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMince = 0.5;        // mm of wood around an edge
constexpr double kEcartMince = 0.005; // and how exactly that is looked at

/// Numbers of outlines and of holes.
struct Compte {
    int dehors = 0;
    int dedans = 0;

    bool operator==(const Compte &) const = default;
};

Compte CompteDe(const Surface &surface) {
    Compte count;
    for (const Anneau &ring : surface) {
        ++(Aire(ring) > 0 ? count.dehors : count.dedans);
    }
    return count;
}

double Longueur(const Anneau &ring) {
    double sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PointMm &a = ring[i];
        const PointMm &b = Suivant(ring, i);
        sum += std::hypot(b.x - a.x, b.y - a.y);
    }
    return sum;
}

/// The same ring upside down, in its own direction.
void RetourneAnneau(Anneau &ring) {
    for (PointMm &point : ring) {
        point.y = -point.y;
    }
    std::reverse(ring.begin(), ring.end());
}

/// The label, and the piece as the view has it.
void Acheve(const Etabli &etabli, const DemandePiece &demande, const Surface &wood, Piece &piece) {
    if (demande.etiquette) {
        PlaceEtiquette(etabli, demande, wood, piece);
    }
    if (etabli.rib.AffHaut) {
        Retourne(piece);
    }
}

Piece FaitNervure(const Etabli &etabli, const DemandePiece &demande) {
    Piece piece;
    std::vector<Avis> avis;
    std::vector<Ligne> separation;
    const Bois bois = TailleBois(etabli, avis, separation);
    piece.parties = FaitParties(bois, demande.saignee);
    if (piece.parties.empty()) {
        throw RefusPiece{RefusDePiece::sans_bois};
    }
    const Surface wood = bois.Tout();
    RegardeBois(wood, piece.avis);
    piece.avis.insert(piece.avis.end(), avis.begin(), avis.end());
    TraceMarques(etabli, demande, etabli.faces.Boite(), wood, piece);
    if (demande.talon) {
        for (Ligne &line : separation) {
            piece.traits.push_back({GenreMarque::talon, std::move(line)});
        }
    }
    Acheve(etabli, demande, wood, piece);
    return piece;
}

Piece FaitGabarit(const Etabli &etabli, const DemandePiece &demande, GenrePiece genre) {
    Piece piece;
    piece.genre = genre;
    const Surface wood = FaitBloc(etabli, demande.fil, genre);
    piece.parties = FaitParties({wood, {}}, demande.saignee);
    RegardeBois(wood, piece.avis);
    TraceMarques(etabli, demande, BoiteAutour(wood.front()), wood, piece);
    if (demande.stations) {
        NumeroteStations(etabli, wood, piece);
    }
    Acheve(etabli, demande, wood, piece);
    return piece;
}

std::vector<Piece> FaitTout(const Etabli &etabli, const DemandePiece &demande) {
    if (etabli.rib.TypeGabarit != kGabaritMousse) {
        return {FaitNervure(etabli, demande)};
    }
    return {FaitGabarit(etabli, demande, GenrePiece::gabarit_extrados),
            FaitGabarit(etabli, demande, GenrePiece::gabarit_intrados)};
}

} // namespace

std::vector<PartiePiece> FaitParties(const Bois &bois, double saignee) {
    const bool moved = saignee != 0;
    const Surface wood =
        moved ? SansMiettes(Deplace(bois.aire, saignee / 2, Coins::vifs), kMiette) : bois.aire;
    std::vector<PartiePiece> parts;
    for (Surface &part : Morceaux(wood)) {
        PartiePiece next;
        next.dehors = std::move(part.front());
        next.dedans.assign(std::make_move_iterator(part.begin() + 1),
                           std::make_move_iterator(part.end()));
        for (const CerclePiece &circle : bois.cercles) {
            const double radius = circle.rayon - saignee / 2;
            if (radius > 0 && Contient({next.dehors}, circle.centre)) {
                next.cercles.push_back({circle.centre, radius});
            }
        }
        parts.push_back(std::move(next));
    }
    return parts;
}

void RegardeBois(const Surface &bois, std::vector<Avis> &avis) {
    const Compte count = CompteDe(bois);
    if (count.dehors > 1) {
        avis.push_back({AvisPiece::en_morceaux, count.dehors});
    }
    if (CompteDe(SansMiettes(Deplace(bois, -kMince, Coins::ronds, kEcartMince), kMiette)) !=
        count) {
        avis.push_back({AvisPiece::bois_mince});
    }
}

void Retourne(Piece &piece) {
    constexpr double kJambage = 0.3; // letters reach below their line by that part of their height
    for (PartiePiece &part : piece.parties) {
        RetourneAnneau(part.dehors);
        std::for_each(part.dedans.begin(), part.dedans.end(), RetourneAnneau);
        for (CerclePiece &circle : part.cercles) {
            circle.centre.y = -circle.centre.y;
        }
    }
    for (TraitMarque &mark : piece.traits) {
        for (PointMm &point : mark.points) {
            point.y = -point.y;
        }
    }
    for (TexteMarque &text : piece.textes) {
        // The same wood, but letters that can be read.
        text.place.y = -text.place.y - (1 - kJambage) * text.hauteur;
    }
}

std::variant<std::vector<Piece>, RefusPiece>
FaitPieces(const RibModel &rib, const DemandePiece &demande, const Saisie &saisie) {
    try {
        return FaitTout(PrepareEtabli(rib, saisie), demande);
    } catch (const RefusPiece &refusal) {
        return refusal;
    }
}

double AirePiece(const Piece &piece) {
    double sum = 0;
    for (const PartiePiece &part : piece.parties) {
        sum += Aire(part.dehors) + Aire(part.dedans);
        for (const CerclePiece &circle : part.cercles) {
            sum -= std::acos(-1.0) * circle.rayon * circle.rayon;
        }
    }
    return sum;
}

double LongueurCoupe(const Piece &piece) {
    double sum = 0;
    for (const PartiePiece &part : piece.parties) {
        sum += Longueur(part.dehors);
        for (const Anneau &hole : part.dedans) {
            sum += Longueur(hole);
        }
        for (const CerclePiece &circle : part.cercles) {
            sum += 2 * std::acos(-1.0) * circle.rayon;
        }
    }
    return sum;
}

BoitePiece BoiteDe(const Piece &piece) {
    std::vector<PointMm> all;
    for (const PartiePiece &part : piece.parties) {
        all.insert(all.end(), part.dehors.begin(), part.dehors.end());
    }
    return BoiteAutour(all);
}

} // namespace loftwing
