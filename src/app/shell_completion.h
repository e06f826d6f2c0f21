/// The completion of the command line in bash, made from its tables.
#pragma once

#include <string>

namespace loftwing {

/// The script that the shell loads. It needs nothing but bash.
std::string BashCompletion();

} // namespace loftwing
