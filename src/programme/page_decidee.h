/// How a page comes out for the view that is up, without a print run.
#pragma once

#include "programme/programme.h"

#include <optional>

namespace loftwing {

/// The page as a print run of the view would have it: sheets counted, rows and the size of the
/// drawing's own page decided. Nothing where it gives no sheets. Nobody is told or asked anything;
/// settings and plot state stay as they are, and so does the rib.
std::optional<MiseEnPage> PageDecidee(Programme &programme, const MiseEnPage &page);

} // namespace loftwing
