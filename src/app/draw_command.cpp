#include "app/draw_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/drawing_target.h"
#include "app/rib_options.h"
#include "core/contour.h"
#include "programme/modele.h"
#include "programme/rib_file.h"

namespace loftwing {

namespace {

const DrawingVerb kDraw = {"draw", kVueRib, 1, "a FILE"};
constexpr const char *kOn = "--on";

std::optional<std::string> DrawPrepared(ConsoleProgram &program, const DrawingTarget &target,
                                        Preparation prepared, bool &complete) {
    if (prepared == Preparation::impossible) {
        return std::nullopt;
    }
    program.WarnOfDeviation();
    complete = prepared == Preparation::complete;
    return Dessine(program.Owner(), target);
}

std::optional<std::string> DrawRib(const Arguments &arguments, const DrawingTarget &target,
                                   const std::string &file, bool &complete) {
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    if (!program.Ouvre(file, arguments.Values("--airfoils")) ||
        !ApplyRibOptions(arguments, programme)) {
        return std::nullopt;
    }
    return DrawPrepared(program, target, PrepareContour(programme.rib, programme.messages),
                        complete);
}

std::optional<std::string> DrawOn(const Arguments &arguments, const DrawingTarget &target,
                                  const Modele &modele, const std::string &airfoil,
                                  bool &complete) {
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    PrendModele(programme.rib, modele);
    if (!program.ChoisitProfil(airfoil)) {
        return std::nullopt;
    }
    MetSurProfil(programme.rib, programme.SaisieEnCours());
    if (!ApplyRibOptions(arguments, programme)) {
        return std::nullopt;
    }
    return DrawPrepared(program, target, FinitSurProfil(programme, modele), complete);
}

int RunDrawOn(const Arguments &arguments) {
    const std::vector<std::string> &files = arguments.Files();
    if (files.size() != 1 || !EstComposants(files.front())) {
        throw UsageError("--on wants one rib components file (.lfw) to put on airfoils");
    }
    const std::vector<std::string> airfoils = arguments.Values(kOn);
    TargetOf(arguments, kDraw, airfoils); // wrong usage is told before a file is read
    ConsoleProgram reader(arguments);
    const auto modele = LitModele(reader.Owner(), files.front());
    if (!modele) {
        return kRefused;
    }
    return DrawAll(
        arguments, kDraw, airfoils,
        [&](const DrawingTarget &target, const std::vector<std::string> &each, bool &complete) {
            return DrawOn(arguments, target, *modele, each.front(), complete);
        });
}

std::vector<OptionRule> AirfoilsOption() {
    return {{kOn, "FILE...",
             "put the features of a rib components file on these airfoils, a drawing each; "
             "a chord in an airfoil's title counts unless --chord is given",
             false, kAllWords}};
}

} // namespace

std::vector<OptionRule> DrawOptions() {
    std::vector<OptionRule> rules = DrawingOptions(kDraw);
    for (const auto &more : {AirfoilsOption(), RibOptions(), PageOptions(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunDraw(const Arguments &arguments) {
    if (arguments.Has(kOn)) {
        return RunDrawOn(arguments);
    }
    return DrawAll(arguments, kDraw, arguments.Files(),
                   [&arguments](const DrawingTarget &target, const std::vector<std::string> &files,
                                bool &complete) {
                       return DrawRib(arguments, target, files.front(), complete);
                   });
}

} // namespace loftwing
