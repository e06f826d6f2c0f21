/// What of a drawing lies under the pointer. Places and distances are in the drawing's units.
#pragma once

#include "output/recording.h"

#include <memory>
#include <optional>

namespace loftwing {

/// A place in a drawing.
struct LieuTrace {
    double x = 0;
    double y = 0;
    bool operator==(const LieuTrace &) const = default;
};

/// The part of the rib whose line is nearest, at most `reach` away; where there is none, the
/// smallest hole, spar or text around the place. Nothing elsewhere.
SujetTrace SujetAu(const Recording &drawing, const LieuTrace &place, double reach);

/// The nearest end of a line or centre of a circle, at most `reach` away.
std::optional<LieuTrace> Accroche(const Recording &drawing, const LieuTrace &place, double reach);

/// The lines of one part alone, in another colour and as broad as lines get.
std::unique_ptr<Recording> Souligne(const Recording &drawing, const SujetTrace &sujet,
                                    Colour colour);

} // namespace loftwing
