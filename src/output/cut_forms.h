/// Pieces as files for a cutter: closed outlines, and marks beside them. In every form the marks
/// come first, then what is cut out of the wood, the outlines last, so that the wood lies still as
/// long as something is cut in it.
#pragma once

#include "core/app_settings.h"
#include "output/piece.h"
#include "output/plot_device.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// What a drawing for cutting is made of.
struct DessinDecoupe {
    std::vector<Piece> pieces; ///< where they lie in the drawing; see EnDessous
    std::string titre;
    /// A sheet of stock, in whose coordinates the pieces lie and which is the file's page: its
    /// upper right corner, the lower left one being 0,0. Without one the page goes round the
    /// pieces.
    std::optional<PointMm> planche = std::nullopt;
};

/// A line of a cut is as thin as a file can say: cutters take a hairline for a cut. mm.
inline constexpr double kTraitDeCoupe = 0.01;
/// Between two pieces, and around all, mm.
inline constexpr double kEcartPieces = 5.0;

/// The pieces with each below the one before. The first stays where it is, and all keep their x.
std::vector<Piece> EnDessous(std::vector<Piece> pieces);

/// The page of a drawing: its sheet, or all that is cut and marked and kEcartPieces all round.
BoitePiece PageDe(const DessinDecoupe &decoupe);

/// The box around all that is cut and marked, texts included; all 0 where there is nothing.
BoitePiece EtendueDe(const std::vector<Piece> &pieces);

/// Colours of the forms that have any.
struct CouleursDecoupe {
    Colour coupe = 0;
    Colour reference = 0;
    Colour station = 0;
    Colour axe = 0;
    Colour etiquette = 0;
    Colour talon = 0;

    Colour De(GenreMarque genre) const;
};

/// The contour's colour for what is cut; a mark has the colour of what it shows in the plot, the
/// label that of the stations.
CouleursDecoupe CouleursDe(const AppSettings &settings);

/// SVG in mm, y down; x and y count from the leading edge on the reference line as they do in a
/// piece, or from the upper left corner of the sheet. The group "marks", then the group "cut" with
/// a path a piece, whose circles are arcs.
std::string EcritDecoupeSvg(const DessinDecoupe &decoupe, const CouleursDecoupe &couleurs);

/// DXF in the unit given, y up: layers MARK and CUT. A sheet is the drawing's limits. Rings are
/// lines whose written ends meet, or closed polylines.
enum class AnneauxDxf { lignes, polylignes };
std::string EcritDecoupeDxf(const DessinDecoupe &decoupe, const std::string &Unite,
                            AnneauxDxf anneaux);

} // namespace loftwing
