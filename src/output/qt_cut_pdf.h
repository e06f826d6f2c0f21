/// Pieces for a cutter as PDF.
#pragma once

#include "output/cut_forms.h"

#include <string>
#include <vector>

namespace loftwing {

/// A page a drawing, at least one, at true scale, as large as PageDe says; order and colours as in
/// the SVG, the title that of the first. A piece is one path filled with nothing. Failure 57 where
/// no such page can be made.
std::string EcritDecoupePdf(const std::vector<DessinDecoupe> &pages,
                            const CouleursDecoupe &couleurs);

} // namespace loftwing
