#include "app/angle_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "utilities/angle.h"
#include "utilities/inclinaison.h"
#include "utilities/tool_files.h"

#include <iostream>

namespace loftwing {

namespace {

constexpr const char *kGabarit = "--template-chord";
constexpr const char *kInterne = "--internal-chord";

std::vector<OptionRule> WithCommon(std::vector<OptionRule> rules) {
    const std::vector<OptionRule> common = ReadingOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

void CheckUsage(const Arguments &arguments, const std::string &verb) {
    if (arguments.Files().size() != 1 || arguments.Value("--output").empty()) {
        throw UsageError(verb + " wants a FILE and -o OUT.dat");
    }
    if (!arguments.Has("--angle")) {
        throw UsageError(verb + " wants --angle A");
    }
}

/// The rib that the options ask for, nothing when it was refused.
std::optional<NervureOblique> Calcule(const Arguments &arguments, const Programme &programme) {
    NervureOblique oblique;
    TextesOblique typed;
    oblique.OptionCorde = arguments.Has(kInterne) ? kInterneDonnee : kGabaritDonne;
    const bool internal = oblique.OptionCorde == kInterneDonnee;
    const std::string_view keys = LengthKeys(programme);
    At(typed, internal ? kChampInterne : kChampExterne) =
        Typed(arguments, internal ? kInterne : kGabarit, keys);
    typed[kChampAngle] = Typed(arguments, "--angle", keys);
    const std::string title = programme.Text({"FrmAngle", "1"}) + " " + programme.settings.Unite;
    if (CalculeOblique(oblique, typed, programme.SaisieEnCours(), title)) {
        return std::nullopt;
    }
    return oblique;
}

} // namespace

std::vector<OptionRule> ObliqueOptions() {
    return WithCommon({{"--output", "OUT.dat", "file to write, also -o; - is standard output"},
                       {kGabarit, "LENGTH", "the template chord, along the rib"},
                       {kInterne, "LENGTH", "the internal chord, square to the span"},
                       {"--angle", "DEGREES", "angle between rib and span line"}});
}

int RunOblique(const Arguments &arguments) {
    CheckUsage(arguments, "oblique");
    if (arguments.Has(kGabarit) == arguments.Has(kInterne)) {
        throw UsageError("oblique wants --template-chord or --internal-chord, and not both");
    }
    ConsoleProgram program(arguments);
    const Programme &programme = program.Owner();
    const auto oblique = Calcule(arguments, programme);
    if (!oblique) {
        return kRefused;
    }
    const auto profil = program.ChoisitProfil(arguments.Files().front());
    if (!profil) {
        return kRefused;
    }
    const std::string out = arguments.Value("--output");
    Deliver(out, TexteOblique(*oblique, *profil, programme.SaisieEnCours()));
    // The chord must not end up among the coordinates.
    (out == "-" ? std::cerr : std::cout) << CordeCalculee(*oblique) << '\n';
    return std::cout ? kDone : kRefused;
}

std::vector<OptionRule> InclineOptions() {
    return WithCommon({{"--output", "OUT.dat", "file to write, also -o; - is standard output"},
                       {"--angle", "DEGREES", "dihedral"}});
}

int RunIncline(const Arguments &arguments) {
    CheckUsage(arguments, "incline");
    ConsoleProgram program(arguments);
    const Programme &programme = program.Owner();
    const auto angle =
        PrendAngleDiedre(Typed(arguments, "--angle", kTouchesPositif), programme.messages,
                         programme.Text({"FrmInclinaisonNervure", "1"}));
    if (!angle) {
        return kRefused;
    }
    const auto profil = program.ChoisitProfil(arguments.Files().front());
    if (!profil) {
        return kRefused;
    }
    Deliver(arguments.Value("--output"), TexteIncline(*angle, *profil));
    return std::cout ? kDone : kRefused;
}

} // namespace loftwing
