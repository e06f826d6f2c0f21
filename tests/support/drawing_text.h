/// Drawings as lines of text, and their comparison.
#pragma once

#include "output/recording.h"
#include "support/naive_rib.h"

#include <gtest/gtest.h>

#include <string>

namespace loftwing {

/// A recording in the form of the naive computation.
std::vector<naive::Drawn> Drawn(const Recording &recording);

/// One line for each operation, coordinates in device units with `decimals` decimals.
std::string DrawingText(const std::vector<naive::Drawn> &drawing, int decimals);

/// Compares two drawings operation by operation: coordinates to 1e-9 of their size, the rest
/// exactly. What differs is written to two files, whose paths the failure tells.
testing::AssertionResult SameDrawing(const std::string &name, const Recording &got,
                                     const std::vector<naive::Drawn> &wanted);

/// Compares `got` with the file tests/golden/`name`. With LOFTWING_WRITE_GOLDENS=1 in the
/// environment it writes that file instead, which somebody then has to look at.
testing::AssertionResult SameAsGolden(const std::string &name, const std::string &got);

} // namespace loftwing
