/// Values of options as the dialogs' fields admit them.
#pragma once

#include "app/arguments.h"
#include "programme/programme.h"

#include <string>
#include <string_view>

namespace loftwing {

/// `value` of an option, whose characters a field with these keys must admit. Throws UsageError for
/// another one and for the empty text.
std::string Typed(const std::string &value, const char *option, std::string_view keys);
/// The value of an option that is there.
std::string Typed(const Arguments &arguments, const char *option, std::string_view keys);

/// The keys of a length in the unit in force.
std::string_view LengthKeys(const Programme &programme);

} // namespace loftwing
