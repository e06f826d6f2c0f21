#include "app/typed_value.h"

namespace loftwing {

std::string Typed(const std::string &value, const char *option, std::string_view keys) {
    if (value.empty() || value.find_first_not_of(keys) != std::string::npos) {
        throw UsageError(std::string(option) + " doesn't take \"" + value + "\"");
    }
    return value;
}

std::string Typed(const Arguments &arguments, const char *option, std::string_view keys) {
    return Typed(arguments.Value(option), option, keys);
}

std::string_view LengthKeys(const Programme &programme) {
    return TouchesSelonUnite(programme.settings.Unite, kTouchesPositif, kTouchesFraction);
}

} // namespace loftwing
