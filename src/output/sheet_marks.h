/// What stands on a sheet beside its drawing: crosses to lay it on the next one, and the check
/// line, which shows on paper whether it was printed at true scale.
#pragma once

#include "output/etendue.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Arms of the crosses by which sheets are laid together, mm.
inline constexpr double kBras = 5.0;
/// One cross around a point, in device units, with the pen that is set.
void TraceCroisee(PlotDevice &device, double x, double y, Colour colour);

/// A sheet as its check line sees it, mm from the upper left corner.
struct FeuilleTemoin {
    double longueur = 0; ///< along the rib
    double hauteur = 0;
    Etendue utile; ///< where the line may stand: the sheet without its margins
};

/// No line stands nearer to a sheet's edge: printers leave a rim white.
inline constexpr double kBordTemoin = 8.0; // mm

/// The sheet with these margins at its left and its right edge. Across the rib it has none of its
/// own; the smaller of the two counts.
FeuilleTemoin FeuilleAvecMarges(double longueur, double hauteur, double avant, double apres);

/// The note beside a line: what to do, to which its length is added, then a line for the name,
/// which is shortened where it is too long, and one for the rest.
struct NoteTemoin {
    std::string consigne;
    std::string nom;
    std::string details;
    std::string Unite;
};

inline constexpr double kTailleNote = 8.0; // of the note's letters, points

/// A line in letters of that size, shortened to "..." where it is longer than `width` mm.
std::string Raccourci(const std::string &text, double width);

/// Where a check line stands: an L, whose arms go from a corner along the rib and across it.
struct PlaceTemoin {
    double x = 0; ///< the corner of the L, mm
    double y = 0;
    int sens_x = 1; ///< 1: the arm goes to the right
    int sens_y = 1; ///< 1: the arm goes downwards
    double longueur = 0;
    Etendue note;                    ///< the place of the note, within the angle of the L
    std::vector<std::string> lignes; ///< the note, line by line
};

/// Length of a check line, and of the one that stands where no corner has room for that, mm.
double LongueurTemoin(const std::string &Unite);
double LongueurPetitTemoin(const std::string &Unite);

/// How much a page needs for a check line below everything drawn, mm, less the rim that a page has
/// there anyway; and how long it must at least be.
double HauteurPourTemoin(double bord, const std::string &Unite);
double LongueurPourTemoin(double avant, double apres, const std::string &Unite);

/// The place of a sheet's check line: the lower left, lower right, upper left or upper right
/// corner, the first one where neither the arms nor the note come near to what is drawn (`encres`),
/// at first for the long line. Nothing where there is no such corner.
std::optional<PlaceTemoin> PlaceLibre(const FeuilleTemoin &feuille, const NoteTemoin &note,
                                      const std::vector<Etendue> &encres);

/// Draws the line with a tick at every 10 mm or half inch, and its note. The device is afterwards
/// as it was: the next sheet's drawing begins with what this one has left.
void TraceTemoin(PlotDevice &device, const PlaceTemoin &place, const std::string &Unite);

} // namespace loftwing
