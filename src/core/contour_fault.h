/// Which points of an airfoil keep its contour from being made.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"

namespace loftwing {

/// A segment of the file that is sampled along x or y.
struct SegmentEchantillonne {
    long i;      ///< it runs from point i to point i + 1
    long centre; ///< of the six points that the interpolation takes
    bool selon_y;
};

/// What failed in sampling a segment. The rib is as the failure left it.
FauteContour ChercheFaute(const Profil &rib, const SegmentEchantillonne &segment,
                          const Failure &failure);

/// Coordinates are parts of a chord; from here on it is their size that computing fails on.
inline constexpr double kTropGrand = 1e6;

/// Names the airfoil's largest coordinate as what nothing can be drawn of. The rib has points.
void AccuseLePlusGrand(RibModel &rib);

/// The file of the rib's airfoil and what is wrong with its points, in the user's words.
std::string TexteFaute(const RibModel &rib, const Messages &messages);

/// The same for a contour of which nothing can be drawn.
std::string TexteSansContour(const RibModel &rib, const Messages &messages);

} // namespace loftwing
