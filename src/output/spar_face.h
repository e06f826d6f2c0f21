/// One surface of the rib at a spar, as plot and DXF cut into it.
#pragma once

#include "output/plot_state.h"

namespace loftwing {

struct Face {
    double f, r, c; ///< heights at the front edge, the rear edge and the centre
    double inward; ///< the way into the rib in heights: -1 on the upper surface, 1 on the lower one
};

inline Face FaceExtrados(const PlaceTracee &place) {
    return {place.Uf, place.Ur, place.Uc, -1};
}

inline Face FaceIntrados(const PlaceTracee &place) {
    return {place.Lf, place.Lr, place.Lc, 1};
}

} // namespace loftwing
