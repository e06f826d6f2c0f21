#include "app/view_commands.h"

#include "app/console_program.h"
#include "app/drawing_target.h"
#include "app/rib_options.h"
#include "programme/rib_file.h"
#include "programme/special_views.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <string_view>

namespace loftwing {

namespace {

const DrawingVerb kPlot = {"plot", kVueCouple, 1, "a FILE"};
const DrawingVerb kCompare = {"compare", kVueCompare, 2, "FILE1 FILE2"};

/// The options of a view: those of its drawing, some of the rib's, page and common ones.
std::vector<OptionRule> ViewOptions(const DrawingVerb &verb,
                                    std::initializer_list<std::string_view> of_rib) {
    std::vector<OptionRule> rules = DrawingOptions(verb);
    for (const OptionRule &rule : RibOptions()) {
        if (std::find(of_rib.begin(), of_rib.end(), rule.name) != of_rib.end()) {
            rules.push_back(rule);
        }
    }
    for (const auto &more : {PageOptions(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

std::optional<std::string> DrawPlot(const Arguments &arguments, const FileRun &run,
                                    const DrawingTarget &target, const std::string &file) {
    ConsoleProgram program(run);
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    if (!program.Ouvre(file, arguments.Values("--airfoils"))) {
        return std::nullopt;
    }
    programme.rib.ModeCouple = true;
    programme.rib.TypeGabarit = kSansGabarit; // its length would count on paper
    // A rib components file has its own chord, whatever the airfoil's title says.
    if (EstComposants(file)) {
        MesureTraceSimple(programme.rib);
    } else {
        PrepareTraceSimple(programme);
    }
    if (!ApplyRibOptions(arguments, programme)) {
        return std::nullopt;
    }
    return Dessine(programme, target);
}

/// Reads an airfoil of a comparison: its points alone, as the window takes them. Of a rib
/// components file the chord comes too, unless `keep_chord`.
bool OpenFor(ConsoleProgram &program, const Arguments &arguments, const std::string &file,
             bool keep_chord) {
    RibModel &rib = program.Owner().rib;
    if (!EstComposants(file)) {
        rib.ProfilCharge = program.ChoisitProfil(file).has_value();
        return rib.ProfilCharge;
    }
    const float corde = rib.corde;
    const std::string shown = rib.cordeAfich;
    if (!program.Ouvre(file, arguments.Values("--airfoils"))) {
        return false;
    }
    if (keep_chord) {
        rib.corde = corde;
        rib.cordeAfich = shown;
    }
    return true;
}

/// Opens an airfoil of a comparison and has it taken; one that can't be had is named.
Preparation Take(ConsoleProgram &program, const Arguments &arguments, const Console &console,
                 const std::string &file, bool keep_chord,
                 const std::function<Preparation()> &prend) {
    const Preparation taken =
        OpenFor(program, arguments, file, keep_chord) ? prend() : Preparation::impossible;
    if (taken == Preparation::impossible) {
        NameRefused(console, file);
    }
    return taken;
}

std::optional<std::string> DrawCompare(const Arguments &arguments, const FileRun &run,
                                       const DrawingTarget &target,
                                       const std::vector<std::string> &files, bool &complete) {
    ConsoleProgram program(run);
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    const Preparation first = Take(program, arguments, run.console, files[0], false,
                                   [&programme] { return PrendProfil1(programme); });
    if (first == Preparation::impossible) {
        return std::nullopt;
    }
    const double haut1 = programme.rib.ExtradosMaxi;
    const Preparation second = Take(program, arguments, run.console, files[1], true,
                                    [&programme, haut1] { return PrendProfil2(programme, haut1); });
    if (second == Preparation::impossible) {
        return std::nullopt;
    }
    complete = first == Preparation::complete && second == Preparation::complete;
    programme.rib.ModeCompare = true;
    if (!ApplyRibOptions(arguments, programme)) {
        return std::nullopt;
    }
    return Dessine(programme, target);
}

} // namespace

std::vector<OptionRule> PlotOptions() {
    return ViewOptions(kPlot, {"--chord", "--invert", "--no-reference-line"});
}

int RunPlot(const Arguments &arguments) {
    return DrawAll(arguments, kPlot, arguments.Files(),
                   [&arguments](const FileRun &run, const DrawingTarget &target,
                                const std::vector<std::string> &files, bool &complete) {
                       complete = true;
                       return DrawPlot(arguments, run, target, files.front());
                   });
}

std::vector<OptionRule> CompareOptions() {
    return ViewOptions(kCompare, {"--chord", "--no-reference-line"});
}

int RunCompare(const Arguments &arguments) {
    return DrawAll(arguments, kCompare, arguments.Files(),
                   [&arguments](const FileRun &run, const DrawingTarget &target,
                                const std::vector<std::string> &files, bool &complete) {
                       return DrawCompare(arguments, run, target, files, complete);
                   });
}

} // namespace loftwing
