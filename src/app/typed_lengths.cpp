#include "app/typed_lengths.h"

#include "app/rib_options.h"

namespace loftwing {

std::vector<std::string> TypedLengths(const Arguments &arguments, const char *option,
                                      const Programme &programme) {
    const std::vector<std::string> values = arguments.Values(option);
    const std::string_view keys = LengthKeys(programme);
    for (const std::string &value : values) {
        if (value.empty() || value.find_first_not_of(keys) != std::string::npos) {
            throw UsageError(std::string(option) + " doesn't take \"" + value + "\"");
        }
        if (EstRefusee(value, programme.settings.Unite)) {
            NombreMm(value, programme.SaisieEnCours()); // says why
            throw Refused{};
        }
    }
    return values;
}

std::string TypedLength(const Arguments &arguments, const char *option,
                        const Programme &programme) {
    const std::vector<std::string> values = TypedLengths(arguments, option, programme);
    return values.empty() ? std::string() : values.front();
}

} // namespace loftwing
