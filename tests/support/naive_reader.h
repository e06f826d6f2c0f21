/// A second reader of airfoil files, written straight from the rules: one buffer, cut from the
/// front, and regular expressions for the numbers.
#pragma once

#include "support/naive_contour.h"

#include <string>

namespace loftwing {

enum class NaiveReading { read, no_title, first_x, double_point, last_x, failure };

struct NaiveFile {
    NaiveReading reading = NaiveReading::read;
    NaiveAirfoil points;
    std::string title;
};

NaiveFile ReadNaively(const std::string &bytes);

} // namespace loftwing
