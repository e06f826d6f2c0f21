/// The piece of wood itself: closed outlines that can be cut, and what is drawn on them. It stands
/// beside the plot, which shows lines, and takes nothing from it: nothing is rounded to stations
/// here. Lengths in mm, x from the leading edge, y up from the reference line.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"
#include "output/surface.h"

#include <string>
#include <variant>
#include <vector>

namespace loftwing {

/// A circle that nothing cuts and that so stays one.
struct CerclePiece {
    PointMm centre;
    double rayon = 0;
};

/// A connected part of the wood: its outline, anticlockwise, and what is cut out of it, clockwise.
struct PartiePiece {
    Anneau dehors;
    std::vector<Anneau> dedans;
    std::vector<CerclePiece> cercles; ///< cut out too
};

/// What a mark shows. Marks are drawn or engraved, never cut.
enum class GenreMarque { reference, station, axe, etiquette, talon };

struct TraitMarque {
    GenreMarque genre = GenreMarque::reference;
    std::vector<PointMm> points; ///< an open run of lines, two points or more
};

struct TexteMarque {
    GenreMarque genre = GenreMarque::etiquette;
    PointMm place;      ///< left end of the line that the letters stand on
    double hauteur = 0; ///< of the capital letters
    std::string texte;
};

/// What the user should know of a piece that is made all the same.
enum class AvisPiece {
    en_morceaux, ///< the wood falls apart; `numero` is the number of parts
    trou_ouvert, ///< hole `numero` leaves the body and opens it
    encoches,    ///< notches of spar `numero` meet each other or those of one before it
    bois_mince,  ///< shrunk by 0.5 mm the wood has another number of parts or holes
    talon_vide,  ///< the heel has no length
};

struct Avis {
    AvisPiece genre = AvisPiece::en_morceaux;
    int numero = 0; ///< of a spar or hole from 1, a count of parts, or 0

    bool operator==(const Avis &) const = default;
};

/// Why no piece can be made.
enum class RefusDePiece {
    longeron_sans_surface, ///< the outline has no height where spar `numero` stands
    talon_dans_profil,     ///< the heel's foot isn't wholly outside the airfoil
    sans_bois,             ///< nothing is left
    hors_bloc,             ///< the wire's path leaves the block of the foam template
};

struct RefusPiece {
    RefusDePiece cause = RefusDePiece::sans_bois;
    int numero = 0; ///< of a spar from 1, or 0

    bool operator==(const RefusPiece &) const = default;
};

enum class GenrePiece { nervure, gabarit_extrados, gabarit_intrados };

struct Piece {
    GenrePiece genre = GenrePiece::nervure;
    std::vector<PartiePiece> parties;
    std::vector<TraitMarque> traits;
    std::vector<TexteMarque> textes;
    std::vector<Avis> avis;
};

/// What a piece is asked for beside its rib.
struct DemandePiece {
    double saignee = 0;    ///< kerf: outlines move outward and holes inward by half of it
    double fil = 0;        ///< what a hot wire melts: a template's path is lowered by half of it
    bool reference = true; ///< each kind of mark can be left out
    bool stations = true;
    bool axes = true;
    bool etiquette = true;
    bool talon = true;
    std::string texte;            ///< the label; empty: that of EtiquetteDuRib
    std::string texte_court = {}; ///< stands in for a label that no wood is left for; may be empty
    /// What the label of a foam template ends with, so that nobody takes one for the other.
    std::string nom_extrados, nom_intrados;

    bool operator==(const DemandePiece &) const = default;
};

/// The piece of the rib as it is; where it has a foam template, that one's two pieces instead, the
/// upper one first. The contour must have been prepared. Places of spars and holes
/// and heel margins are taken from their texts; one that is no length counts as 0, of which the
/// plot has told. Failures as the plot's conversions, and 6 for a rib too large to be cut.
std::variant<std::vector<Piece>, RefusPiece>
FaitPieces(const RibModel &rib, const DemandePiece &demande, const Saisie &saisie);

/// The rib's own label: its inserted text, or airfoil and chord with the unit.
std::string EtiquetteDuRib(const RibModel &rib, const std::string &Unite);

/// A box around all that is cut.
struct BoitePiece {
    PointMm bas_gauche;
    PointMm haut_droite;
};

double AirePiece(const Piece &piece);     ///< of the wood, mm2
double LongueurCoupe(const Piece &piece); ///< of all that is cut, mm
BoitePiece BoiteDe(const Piece &piece);   ///< all 0 for a piece without parts

} // namespace loftwing
