/// Lengths as they are typed, looked at without a box: the text may not be whole yet.
#pragma once

#include "core/units.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// The length in mm of a text whose characters a field for lengths admits; nothing for another one,
/// for the empty text and for one beyond what a number holds.
std::optional<double> LongueurLue(const std::string &text, const Saisie &saisie);

/// The words of a line, which blanks, tabs, line ends or semicolons part, as they come out of a
/// table. A comma in a word is its point, one behind it parts.
std::vector<std::string> ListeLue(const std::string &line);

/// A whole number from 1 to `most`; nothing for another text.
std::optional<int> NombreLu(const std::string &text, int most);

} // namespace loftwing
