/// Values of options as the dialogs' fields admit them.
#pragma once

#include "app/arguments.h"
#include "programme/programme.h"

#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// `value` of an option, whose characters a field with these keys must admit. Throws UsageError for
/// another one and for the empty text.
std::string Typed(const std::string &value, const char *option, std::string_view keys);
/// The value of an option that is there.
std::string Typed(const Arguments &arguments, const char *option, std::string_view keys);

/// The keys of a length in the unit in force.
std::string_view LengthKeys(const Programme &programme);

/// `value` of an option as a length in mm. One that is no length in inches is told, and Refused
/// thrown; UsageError for other characters.
double LengthMm(const std::string &value, const char *option, const Programme &programme);

/// The width that a tool takes away, in mm, 0 where the option isn't there. Throws as LengthMm, and
/// UsageError for a width that no tool has: outlines shifted as far would cross themselves without
/// end.
double ToolWidthMm(const Arguments &arguments, const char *option, const Programme &programme);

/// All values of an option, each a length. One that is no length in inches is told, and Refused
/// thrown.
std::vector<std::string> TypedLengths(const Arguments &arguments, const char *option,
                                      const Programme &programme);
/// The only one, empty when the option isn't there.
std::string TypedLength(const Arguments &arguments, const char *option, const Programme &programme);

} // namespace loftwing
