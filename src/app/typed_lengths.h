/// Lengths on the command line, typed as in the windows' fields.
#pragma once

#include "app/arguments.h"
#include "programme/programme.h"

namespace loftwing {

/// All values of an option, each a length as a field admits it. Throws UsageError for another
/// character; a text that is no length in inches is told, and Refused thrown.
std::vector<std::string> TypedLengths(const Arguments &arguments, const char *option,
                                      const Programme &programme);

/// The only one, empty when the option isn't there.
std::string TypedLength(const Arguments &arguments, const char *option, const Programme &programme);

} // namespace loftwing
