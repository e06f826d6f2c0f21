/// Any table of coordinates as an airfoil that the program can open.
#pragma once

#include "core/airfoil_layout.h"
#include "core/rib_parts.h"

#include <optional>
#include <string>
#include <string_view>

namespace loftwing {

/// How far, in chords, a contour may leave the curve through the points of its file.
inline constexpr double kImportTolerance = 0.0005;

/// What an import may be asked for.
struct ImportWishes {
    int points = 0;     ///< the points are laid anew, as many as that; 0: only where they must be
    bool level = false; ///< turned until the trailing edge lies on the reference line
};

/// Fewest and most points that can be asked for.
inline constexpr int kFewestLaid = 40;
inline constexpr int kMostLaid = 2560;

/// What came of an import. Lengths are fractions of the chord.
struct ImportedAirfoil {
    std::string title; ///< of the file; empty where it has none
    /// In the program's order, x from 1 to 1.
    std::vector<ImportPoint> points;
    Curve file; ///< the points of the file, moved and scaled alike
    // What was done.
    FileOrder order = FileOrder::selig;
    int dropped = 0;
    int added = 0;
    bool scaled = false;
    double turned = 0;       ///< degrees, positive where the trailing edge was lifted
    int laid = 0;            ///< points that were laid anew, 0 where they were kept
    bool by_surface = false; ///< each surface by a curve of its own
    /// How far the contour of the file's own points leaves the curve; nothing where none could be
    /// made of them.
    std::optional<double> before;
    double after = 0; ///< how far the contour leaves curve and points now
};

/// Imports the bytes of a file. Failure: ImportRefusal.
ImportedAirfoil ImportAirfoil(std::string_view bytes, const ImportWishes &wishes = {});

/// The title of its file: that of the file read, `name` in front where it has no letter, without
/// the ":" that a chord would stand behind unless one does.
std::string AirfoilTitle(const ImportedAirfoil &airfoil, const std::string &name);

/// The airfoil file of an import, lines ending in CR LF. `name` is its title where the file has
/// none.
std::string AirfoilFile(const ImportedAirfoil &airfoil, const std::string &name);

/// How far the contour of an airfoil as read leaves the natural spline through its points, or the
/// points themselves, in chords; `least` where that is more. Nothing where there is no contour.
std::optional<double> ContourDeviation(const PointsLus &read, double least = 0);

/// The same where the contour has been made of the points, the whole of it.
std::optional<double> MadeContourDeviation(const Profil &made, double least = 0);

} // namespace loftwing
