/// `cut` with sheets: the pieces of all FILEs together.
#pragma once

#include "app/arguments.h"
#include "output/nesting.h"

#include <string>

namespace loftwing {

/// Writes all sheets or, where anything is refused, none. Gives the exit status.
int CutOnSheets(const Arguments &arguments);

/// "sheet 1: 100 x 1000 mm, 12 pieces, 63.4 %", whatever the language: scripts read it.
std::string LineOfSheet(const Planche &sheet, std::size_t number, const std::string &Unite);

} // namespace loftwing
