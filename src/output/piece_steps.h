/// The steps by which a piece is made, each in the unit of what it makes. Those that can refuse the
/// rib throw a RefusPiece, which FaitPieces answers with.
#pragma once

#include "core/units.h"
#include "output/piece.h"
#include "output/piece_outline.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Parts and holes below that are no wood and no cut.
inline constexpr double kMiette = 0.01; // mm2

/// The rib and what its steps build on.
struct Etabli {
    const RibModel &rib;
    const Saisie &saisie;
    double corde;
    Surface contour;           ///< P, the airfoil's outline at its chord
    Surface corps;             ///< without the sheeting
    Silhouette faces;          ///< of P
    Silhouette faces_internes; ///< of the body
    double loin;               ///< farther than anything of the rib reaches
};

/// Something that is cut out, as a ring that runs anticlockwise.
struct Decoupe {
    int numero = 0; ///< of its spar or hole, from 1
    Anneau aire;
    std::optional<CerclePiece> cercle = {}; ///< where it is one
};

/// A text that is a length, or "0".
std::string TexteOuZero(const std::string &afich, const Saisie &saisie);

// Body
Etabli PrepareEtabli(const RibModel &rib, const Saisie &saisie);
/// The body between the stocks.
Surface EntreBords(const Etabli &etabli);
/// What a V-notch takes away at the leading edge; nothing without one.
Surface EncocheBA(const Etabli &etabli);

// Spars
/// Places in mm of the spars in use, those behind the first at place 0 not among them.
std::vector<double> PlacesLongerons(const RibModel &rib, const Saisie &saisie);
std::vector<Decoupe> Encoches(const Etabli &etabli);
/// The numbers of spars whose notches meet each other or those of one before them.
std::vector<int> EncochesQuiSeTouchent(const Etabli &etabli, const std::vector<Decoupe> &notches);

// Holes
std::vector<Decoupe> Percages(const Etabli &etabli);

// Heel
struct TalonPiece {
    Surface aire;                  ///< what is added; it laps over the body by a hair
    std::vector<Ligne> separation; ///< where it is cut off again
    bool vide = false;             ///< it has no length
};
/// `corps` is the body between the stocks. Nothing but an empty heel where the rib has none.
TalonPiece FaitTalon(const Etabli &etabli, const Surface &corps,
                     const std::vector<Decoupe> &encoches);

// Wood
/// A piece on its way: the wood, and the circles in it that nothing else cuts.
struct Bois {
    Surface aire;
    std::vector<CerclePiece> cercles;

    /// The wood with its circles as rings, exact enough for marks and looks at it.
    Surface Tout() const;
};
/// All cut out of the body, the heel added. Tells of holes that open it.
Bois TailleBois(const Etabli &etabli, std::vector<Avis> &avis, std::vector<Ligne> &separation);
/// Whether a box lies in the wood with nothing cut out of it.
bool BoiteDans(const Surface &surface, const BoitePiece &box);

// Marks
/// `etendue` is how far upright marks reach.
void TraceMarques(const Etabli &etabli, const DemandePiece &demande, const BoitePiece &etendue,
                  const Surface &bois, Piece &piece);
/// Where station lines stand, mm from the leading edge; none where the rib has none.
std::vector<double> PlacesStations(const RibModel &rib);
/// The label of a rib's piece, or of one of its templates.
std::string TexteEtiquette(const Etabli &etabli, const DemandePiece &demande, GenrePiece genre);
/// The label where the user has put the inserted text, or where there is room; the short one where
/// there is room for that only.
void PlaceEtiquette(const Etabli &etabli, const DemandePiece &demande, const Surface &bois,
                    Piece &piece);
/// Whether words lie in the wood, `place` being the left end of the line that they stand on.
bool MotsDansBois(const Surface &bois, const PointMm &place, double hauteur,
                  const std::string &words);
/// How much room words are given along their line, whatever their letters: stroke fonts are wide.
double LargeurReservee(const TexteMarque &texte);

// Foam template
/// The block below the wire's path on one surface of the airfoil, a single ring.
Surface FaitBloc(const Etabli &etabli, double fil, GenrePiece genre);
/// The numbers of the station lines at the foot of a template.
void NumeroteStations(const Etabli &etabli, const Surface &bois, Piece &piece);

// End
/// Parts of the wood with its kerf.
std::vector<PartiePiece> FaitParties(const Bois &bois, double saignee);
/// Tells of wood that falls apart or is thin.
void RegardeBois(const Surface &bois, std::vector<Avis> &avis);
/// Upside down, rings in the same direction as before.
void Retourne(Piece &piece);

} // namespace loftwing
