/// From a table of coordinates to the points of one airfoil in the program's order.
#pragma once

#include "core/coordinate_table.h"
#include "core/curve.h"

#include <cstddef>
#include <string>
#include <vector>

namespace loftwing {

/// Why a file is no airfoil.
enum class ImportReason {
    too_few_points,  ///< fewer than five, or none at all
    too_many_points, ///< more than kMostRows
    one_surface,     ///< the points don't lead from the trailing edge to the nose and back
    several_curves,  ///< more than two lists of points
    noise,           ///< the points go back and forth along a surface
    crossing,        ///< the lower surface lies above the upper one along the chord
    no_chord,        ///< all points lie at one x, or reach higher than long
};

/// Thrown where a file can't be an airfoil. `line` is that of the file where it shows, from 1; 0
/// where no line is to blame.
struct ImportRefusal {
    ImportReason reason;
    int line = 0;
};

/// A point of the file.
struct ImportPoint {
    CurvePoint at;
    std::string x; ///< as the file writes it, with a point; empty where it was put in
    std::string y;
    int line = 0; ///< of the file; 0 where it was put in
};

/// The order that a file had.
enum class FileOrder {
    selig,    ///< from the trailing edge over the upper surface to the nose and back
    reversed, ///< the same the other way round
    lists,    ///< one list for each surface
    columns,  ///< x, upper and lower heights
    rotated,  ///< a closed curve that begins elsewhere
};

/// The points from the upper end of the trailing edge over the nose to its lower end.
struct AirfoilLoop {
    std::vector<ImportPoint> points;
    FileOrder order = FileOrder::selig;
    int dropped = 0; ///< points that repeat their neighbour or lie on the blunt trailing edge
    int added = 0;   ///< points that were missing at the trailing edge
};

/// The point with the smallest x, of points that are not empty.
std::size_t NoseOf(const std::vector<ImportPoint> &points);

/// Finds the order of a table. Failure: ImportRefusal.
AirfoilLoop LayOutAirfoil(const CoordinateTable &table);

} // namespace loftwing
