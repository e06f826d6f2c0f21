/// Lengths as the small calculators show them.
#pragma once

#include <string>
#include <string_view>

namespace loftwing {

/// A computed length in mm as shown in `Unite` under a picture; in inches a fraction stays one.
/// What the picture leaves no digit of reads 0. Failure 6 for a value beyond 64 bits.
std::string LongueurSousImage(double mm, const std::string &Unite, std::string_view picture);

} // namespace loftwing
