#include "app/table_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "base/number_text.h"
#include "utilities/nervure.h"

#include <iostream>

namespace loftwing {

namespace {

/// A count may have a fraction, which is dropped, but is no length.
constexpr std::string_view kCountKeys = kTouchesPositif;

TextesNervure TypedPanel(const Arguments &arguments, const Programme &programme) {
    TextesNervure typed;
    const auto take_pair = [&](const char *option, int major, int minor) {
        const std::vector<std::string> pair = TypedLengths(arguments, option, programme);
        if (!pair.empty()) {
            At(typed, major) = At(pair, 0);
            At(typed, minor) = At(pair, 1);
        }
    };
    take_pair("--chords", kNervCordeMaj, kNervCordeMin);
    take_pair("--spar", kNervLongeronMaj, kNervLongeronMin);
    typed[kNervNbInter] = Typed(arguments, "--count", kCountKeys);
    typed[kNervLongPanneau] = TypedLength(arguments, "--length", programme);
    typed[kNervEpr] = TypedLength(arguments, "--thickness", programme);
    return typed;
}

void Print(const Nervures &panel, const std::string &unit) {
    std::cout << "spacing " << TexteEcart(panel, unit) << '\n';
    for (int number = 1; number <= NombreNervures(panel); ++number) {
        const RangNervure row = RangDe(panel, number, unit);
        std::cout << TrimLeft(row.numero) << '\t' << row.corde;
        if (!SansLongeron(panel)) {
            std::cout << '\t' << row.longeron;
        }
        std::cout << '\n';
    }
}

} // namespace

std::vector<OptionRule> TableOptions() {
    std::vector<OptionRule> rules = {
        {"--chords", "MAJOR MINOR", "chords at both ends", false, 2},
        {"--count", "N", "number of ribs between the two end ribs"},
        {"--length", "LENGTH", "length of the panel, for the spacing"},
        {"--thickness", "LENGTH", "thickness of each rib"},
        {"--spar", "MAJOR MINOR", "places of the spar on both chords", false, 2}};
    const std::vector<OptionRule> common = CommonOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

int RunTable(const Arguments &arguments) {
    if (!arguments.Has("--chords") || !arguments.Has("--count") || !arguments.Files().empty()) {
        throw UsageError("table wants --chords MAJOR MINOR and --count N, and no FILE");
    }
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    Nervures panel;
    const std::string title = programme.Text({"FrmNervure", "1"}) + " " + programme.settings.Unite;
    if (CalculeNervures(panel, TypedPanel(arguments, programme), programme.SaisieEnCours(),
                        title)) {
        return kRefused;
    }
    Print(panel, programme.settings.Unite);
    return kDone;
}

} // namespace loftwing
