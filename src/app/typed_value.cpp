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

namespace {

void CheckLength(const std::string &value, const char *option, const Programme &programme) {
    Typed(value, option, LengthKeys(programme));
    if (EstRefusee(value, programme.settings.Unite)) {
        NombreMm(value, programme.SaisieEnCours()); // says why
        throw Refused{};
    }
}

} // namespace

double LengthMm(const std::string &value, const char *option, const Programme &programme) {
    CheckLength(value, option, programme);
    return NombreMm(value, programme.SaisieEnCours());
}

double ToolWidthMm(const Arguments &arguments, const char *option, const Programme &programme) {
    constexpr int kWidest = 100;
    if (!arguments.Has(option)) {
        return 0;
    }
    const double mm = LengthMm(arguments.Value(option), option, programme);
    if (!(mm <= kWidest)) {
        throw UsageError(std::string(option) + " takes at most " + std::to_string(kWidest) + " mm");
    }
    return mm;
}

std::vector<std::string> TypedLengths(const Arguments &arguments, const char *option,
                                      const Programme &programme) {
    std::vector<std::string> values = arguments.Values(option);
    for (const std::string &value : values) {
        CheckLength(value, option, programme);
    }
    return values;
}

std::string TypedLength(const Arguments &arguments, const char *option,
                        const Programme &programme) {
    const std::vector<std::string> values = TypedLengths(arguments, option, programme);
    return values.empty() ? std::string() : values.front();
}

} // namespace loftwing
