/// Pieces for a cutter as PDF.
#pragma once

#include "output/cut_forms.h"

#include <string>

namespace loftwing {

/// One page at true scale, as large as the drawing and kEcartPieces all round; order and colours as
/// in the SVG. A piece is one path filled with nothing. Failure 57 where no such page can be made.
std::string EcritDecoupePdf(const DessinDecoupe &decoupe, const CouleursDecoupe &couleurs);

} // namespace loftwing
