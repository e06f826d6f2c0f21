/// The two DXF forms: the interchange form that the trade's old programs know, and a clean one for
/// cutters.
#pragma once

#include "output/dxf_entities.h"

#include <string>

namespace loftwing {

/// Appends the rib in the interchange form, a mixture of two versions of DXF that is kept byte for
/// byte: header of the older, markers and handles of the later, no blocks. Failures as EntitesDxf;
/// `out` then holds what came before.
void EcritDxf(const DxfSource &source, std::string &out);

/// The rib as a clean R12 file of lines and circles, at the file's scale throughout, with its
/// station lines and its inserted text. Notches and rectangular holes are whole outlines. Upside
/// down as the view is. Things without extent are left out. Failures as EntitesDxf.
std::string EcritDxfSimple(const DxfSource &source);

} // namespace loftwing
