/// Pieces laid on sheets of stock. A sheet's grain runs along its longer side, and so do the chords
/// of the pieces: x of a sheet counts along it from the lower left corner, y across it.
#pragma once

#include "output/piece.h"

#include <algorithm>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace loftwing {

/// A size of stock as it was given, in either order, mm.
struct FormatPlanche {
    double largeur = 0;
    double hauteur = 0;

    double Longueur() const { return std::max(largeur, hauteur); } ///< along the grain
    double Travers() const { return std::min(largeur, hauteur); }  ///< across it

    bool operator==(const FormatPlanche &) const = default;
};

/// Whether there can be such a sheet.
bool EstFormat(const FormatPlanche &format);

struct PieceNommee {
    std::string nom; ///< for whoever is told of it
    Piece piece;
};

/// No longer than a page of a PDF may be.
inline constexpr double kPlancheMaxi = 5000; // mm
inline constexpr double kEcartMaxi = 500;    // mm, of gap and margin
inline constexpr std::size_t kPiecesMaxi = 5000;
inline constexpr int kCopiesMaxi = 1000;

struct ReglageImbrication {
    std::vector<FormatPlanche> formats; ///< the one that is taken first in front
    double ecart = 2;                   ///< between two pieces, mm
    double marge = 3;                   ///< to the edges of a sheet, mm
    bool demi_tour = false;             ///< pieces may be turned by 180 degrees
    /// Hears how far the work has come, from 0 to 1, and says whether to go on. May be empty.
    std::function<bool(double part)> avance = {};
};

struct PiecePlacee {
    std::size_t rang = 0; ///< among the pieces that were given
    bool tournee = false;
    Piece piece; ///< where it lies on its sheet
};

struct Planche {
    FormatPlanche format;
    std::vector<PiecePlacee> pieces; ///< in the order in which they were given
    double aire = 0;                 ///< of their wood, mm2
    double longueur = 0;             ///< of the sheet that is used; all of it but on the last one
    /// How much of the sheet becomes wood, in percent; the last one's as far as it is used.
    double Taux() const { return 100 * aire / (longueur * format.Travers()); }
};

using Imbrication = std::vector<Planche>;

enum class RefusDePlanche {
    trop_grande,    ///< piece `nom` is longer or higher than every sheet, its margins taken off
    trop_de_pieces, ///< more than kPiecesMaxi
    sans_format,    ///< no sheet, or one without an area or beyond kPlancheMaxi
    abandonnee,     ///< `avance` said so
};
struct RefusPlanche {
    RefusDePlanche cause = RefusDePlanche::trop_grande;
    std::string nom = {};
    double longueur = 0; ///< of the piece, mm
    double hauteur = 0;
};

/// `copies` of all pieces. With `opposees` every second copy of a piece is that of the other wing.
std::vector<PieceNommee> EnCopies(const std::vector<PieceNommee> &pieces, int copies,
                                  bool opposees);

/// Lays the pieces on as few sheets as it finds, the same pieces always in the same way. A piece
/// goes to the first sheet that has room, else to a new one of the first size that holds it; the
/// last sheet is the smallest that holds what lies on it. Gap and margin hold for all that is cut.
std::variant<Imbrication, RefusPlanche> Imbrique(const std::vector<PieceNommee> &pieces,
                                                 const ReglageImbrication &reglage);

} // namespace loftwing
