/// From the points of a file to the dense contour and the two tables of 401 heights on which all
/// later geometry works.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"

namespace loftwing {

/// Six-point polynomial interpolation (Aitken's scheme) of `ys` over `xs` at `v`, from the points
/// centre - 2 to centre + 3. Failure 9 when the window leaves the list, 11 for equal abscissas.
double InterpoleAitken(const PointList &xs, const PointList &ys, long centre, double v);

/// Densifies ProfilX, ProfilY to ten samples a segment: ContourX, ContourY, NbContour. Around the
/// middle of the file, where the nose must lie, it samples along y. A failure leaves the contour
/// with the samples made so far and says in `faute` which points it comes from.
void Alocate(Profil &rib);

/// The smallest x of the contour's first part, and NbExtrados, which counts the new minima on the
/// way. Failure 9 for a contour shorter than the stretch it looks through.
void MiniX(Profil &rib);

/// Top of the upper and bottom of the lower surface, from the points of the file.
void CalculExtradosMaxi(Profil &rib);
void CalculIntradosMini(Profil &rib);

/// Copies the lower surface from the contour's end backwards.
void SepareIntrados(Profil &rib);

/// Fills TabExtrados and TabIntrados by linear interpolation; never fails.
void TableStations(Profil &rib);

/// Greatest thickness and camber with their running counts.
void CalculEpMaxi(Profil &rib);
void CalculCambrure(Profil &rib);

/// Everything from Alocate to CalculCambrure; the first failure passes on.
void FaitContour(Profil &rib);

/// How the preparation of a contour ended.
enum class Preparation {
    complete,
    incomplete, ///< reported; the tables stand on the contour as far as it came
    impossible  ///< reported; the caller clears the rib
};

/// The dense contour and its extremes, from Alocate to CalculIntradosMini, each failure reported
/// under its routine's label.
Preparation PrepareContourSeul(RibModel &rib, const Messages &messages);

/// Everything from Alocate to CalculCambrure, each failure reported under its routine's label.
Preparation PrepareContour(RibModel &rib, const Messages &messages);

} // namespace loftwing
