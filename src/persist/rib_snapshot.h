/// A snapshot of a rib that loses nothing: what recovery after a crash reads. Unlike the rib
/// components file, which other programs know and which names its airfoil only, it is for this
/// program's own use and holds everything to the bit.
#pragma once

#include "core/rib_model.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace loftwing {

/// The largest snapshot that is read: an airfoil of all the points that can be counted takes half a
/// megabyte.
inline constexpr std::size_t kInstantaneMaxi = std::size_t{8} * 1024 * 1024;

/// What a snapshot holds. The contour isn't in it: it is made of the points again.
struct Instantane {
    PartiesRib parties;
    std::string Unite; ///< in which its texts are
};

/// The rib and its unit as bytes, the same for the same rib.
std::string EcritInstantane(const PartiesRib &parties, const std::string &Unite);

/// The rib of a snapshot; nothing where a byte of it is wrong or missing, where it is no snapshot,
/// or one of another version of the format.
std::optional<Instantane> LitInstantane(std::string_view bytes);

/// Whether these are the bytes of a later version of the program: they can't be read, but that one
/// will.
bool InstantanePlusRecent(std::string_view bytes);

} // namespace loftwing
