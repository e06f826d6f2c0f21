/// `cut` with sheets: the pieces of all FILEs together.
#pragma once

#include "app/arguments.h"

namespace loftwing {

/// Writes all sheets or, where anything is refused, none. Gives the exit status.
int CutOnSheets(const Arguments &arguments);

} // namespace loftwing
