/// The manual page, made from the command line's tables.
#pragma once

#include <string>

namespace loftwing {

/// The page as the source of man.
std::string ManPage();

} // namespace loftwing
