#include "app/draw_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/drawing_target.h"
#include "app/rib_options.h"
#include "app/stack_command.h"
#include "core/contour.h"
#include "programme/modele.h"
#include "programme/rib_file.h"

namespace loftwing {

namespace {

const DrawingVerb kDraw = {"draw", kVueRib, 1, "a FILE"};
constexpr const char *kOn = "--on";

/// Opens a FILE with the options' values.
Preparation PrepareRib(const Arguments &arguments, ConsoleProgram &program,
                       const std::string &file) {
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    if (!program.Ouvre(file, arguments.Values("--airfoils")) ||
        !ApplyRibOptions(arguments, programme)) {
        return Preparation::impossible;
    }
    return PrepareContour(programme.rib, programme.messages);
}

/// Puts a rib's features on an airfoil, with the options' values.
Preparation PrepareOn(const Arguments &arguments, const Modele &modele, ConsoleProgram &program,
                      const std::string &airfoil) {
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    PrendModele(programme.rib, modele);
    if (!program.ChoisitProfil(airfoil)) {
        return Preparation::impossible;
    }
    MetSurProfil(programme.rib, programme.SaisieEnCours());
    if (!ApplyRibOptions(arguments, programme)) {
        return Preparation::impossible;
    }
    return FinitSurProfil(programme, modele);
}

/// The same with the warning of a contour that leaves its points.
PrepareFile Warning(const PrepareFile &prepare) {
    return [prepare](ConsoleProgram &program, const std::string &file) {
        const Preparation prepared = prepare(program, file);
        program.WarnOfDeviation(prepared);
        return prepared;
    };
}

/// Draws all `files`, each for itself or on shared pages.
int DrawFiles(const Arguments &arguments, const std::vector<std::string> &files,
              const PrepareFile &prepare_only) {
    const PrepareFile prepare = Warning(prepare_only);
    if (arguments.Has(kStacked)) {
        return DrawStacked(arguments, kDraw, files, prepare);
    }
    return DrawAll(arguments, kDraw, files,
                   [&](const FileRun &run, const DrawingTarget &target,
                       const std::vector<std::string> &each,
                       bool &complete) -> std::optional<std::string> {
                       ConsoleProgram program(run);
                       const Preparation prepared = prepare(program, each.front());
                       if (prepared == Preparation::impossible) {
                           return std::nullopt;
                       }
                       complete = prepared == Preparation::complete;
                       return Dessine(program.Owner(), target);
                   });
}

void CheckTarget(const Arguments &arguments, const std::vector<std::string> &files) {
    if (arguments.Has(kStacked)) {
        TargetOfStack(arguments, kDraw, files);
    } else {
        TargetOf(arguments, kDraw, files);
    }
}

int RunDrawOn(const Arguments &arguments) {
    const std::vector<std::string> &files = arguments.Files();
    if (files.size() != 1 || !EstComposants(files.front())) {
        throw UsageError("--on wants one rib components file (.lfw) to put on airfoils");
    }
    const std::vector<std::string> airfoils = arguments.Values(kOn);
    CheckTarget(arguments, airfoils); // wrong usage is told before a file is read
    ConsoleProgram reader(arguments);
    const auto modele = LitModele(reader.Owner(), files.front());
    if (!modele) {
        return kRefused;
    }
    return DrawFiles(arguments, airfoils, [&](ConsoleProgram &program, const std::string &airfoil) {
        return PrepareOn(arguments, *modele, program, airfoil);
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
    for (const auto &more :
         {AirfoilsOption(), StackOptions(), RibOptions(), PageOptions(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunDraw(const Arguments &arguments) {
    if (arguments.Has(kOn)) {
        return RunDrawOn(arguments);
    }
    return DrawFiles(arguments, arguments.Files(),
                     [&arguments](ConsoleProgram &program, const std::string &file) {
                         return PrepareRib(arguments, program, file);
                     });
}

} // namespace loftwing
