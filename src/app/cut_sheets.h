/// `cut` with sheets: the pieces of all FILEs together.
#pragma once

#include "app/arguments.h"
#include "output/nesting.h"
#include "programme/programme.h"

#include <optional>
#include <string>
#include <variant>

namespace loftwing {

/// Writes all sheets or, where anything is refused, none. Gives the exit status.
int CutOnSheets(const Arguments &arguments);

/// The sheets of a nesting that was tried; nothing when it was refused, which is told.
std::optional<Imbrication> ToldIfRefused(const Programme &programme,
                                         std::variant<Imbrication, RefusPlanche> made);

/// "sheet 1: 100 x 1000 mm, 12 pieces, 63.4 %", whatever the language: scripts read it.
std::string LineOfSheet(const Planche &sheet, std::size_t number, const std::string &Unite);

} // namespace loftwing
