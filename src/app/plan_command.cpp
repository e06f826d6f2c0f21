#include "app/plan_command.h"

#include "app/command_line.h"
#include "app/panel_plan.h"
#include "app/rib_options.h"
#include "base/file_name.h"
#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "programme/wing_file.h"
#include "programme/wing_steps.h"

#include <algorithm>
#include <iostream>

namespace loftwing {

namespace {

void VerifyUsage(const Arguments &arguments) {
    const std::vector<std::string> &files = arguments.Files();
    const bool saved = files.size() == 1 && EstAile(files.front());
    if (files.empty() || !(saved || std::all_of(files.begin(), files.end(), EstPanneau)) ||
        (!arguments.Has("--output") && !arguments.Has("--parts"))) {
        throw UsageError("plan wants panel files (.lfp) from the root to the tip or a wing file "
                         "(.lfa), and -o FILE or --parts FILE");
    }
    if (files.size() > kPanneauxMaxi) {
        throw UsageError("plan takes at most " + std::to_string(kPanneauxMaxi) + " panels");
    }
    VerifyPlanFiles(arguments, arguments.Has("--output")
                                   ? std::optional(arguments.Value("--output"))
                                   : std::nullopt);
}

/// The panels in a row, and the number of the first rib where that isn't the first file's.
struct WingAsked {
    std::vector<std::string> panels;
    std::optional<int> first;
};

WingAsked AskedOf(const Arguments &arguments) {
    WingAsked asked{arguments.Files(), std::nullopt};
    if (EstAile(asked.panels.front())) {
        FichierAile wing = LitAile(asked.panels.front());
        asked = {std::move(wing.panneaux), wing.premier};
    }
    if (arguments.Has("--first")) {
        asked.first = FirstRibOf(arguments);
    }
    return asked;
}

/// As of `panel`, where a file is in the other unit.
void VerifyUnits(const WingAsked &asked, const Programme &programme) {
    for (const std::string &file : asked.panels) {
        const std::string unit = IsThere(file) ? LitPanneau(file).unite : "";
        if (!unit.empty() && " " + unit != programme.settings.Unite) {
            std::string why = file;
            throw UsageError(why.append(" is in ").append(unit).append(": add --unit ") += unit);
        }
    }
}

/// The wing, and what there is to say of it. Throws Refused where a panel can't be made.
Aile WingOf(const Arguments &arguments, ConsoleProgram &program) {
    Programme &programme = program.Owner();
    const WingAsked asked = AskedOf(arguments);
    VerifyUnits(asked, programme);
    const std::vector<std::string> folders = arguments.Values("--airfoils");
    AileFaite made = FaitAile(programme, asked.panels, asked.first, [&](const std::string &path) {
        return std::optional(OpenPanelEnd(program, path, folders));
    });
    const std::string title = programme.Text({"Panel", "40"});
    for (const auto *all : {&made.refus, &made.avis}) {
        for (const std::string &line : *all) {
            programme.messages.Inform(line, title);
        }
    }
    if (!made.refus.empty()) {
        throw Refused{};
    }
    const std::string name = arguments.Value("--output", arguments.Files().front());
    made.aile.nom = ToUtf8(StemOf(name));
    return std::move(made.aile);
}

} // namespace

std::vector<OptionRule> PlanVerbOptions() {
    std::vector<OptionRule> rules = {
        {"--output", "FILE",
         "the plan at 1:1, also -o: pdf (one large page, sheets with --paper), svg, dxf"},
        {"--parts", "FILE", "list of parts: csv, pdf, txt"},
        {"--mirror", nullptr, "the plan of the other wing too"},
        {"--first", "N", "number of the first rib (default: that of the first file)"},
        {"--airfoils", "DIR",
         "where to search for the ribs' airfoils (may be repeated; default: the file's folder)",
         true}};
    for (const auto &more : {PaperOptions(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunPlan(const Arguments &arguments) {
    VerifyUsage(arguments);
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    ApplyPaperOptions(arguments, programme);
    const Aile wing = WingOf(arguments, program);
    const auto made = PlanFiles(arguments, programme, wing, arguments.Value("--output"), {});
    if (!made) {
        return kRefused;
    }
    WriteWholeFiles(made->files);
    for (const FileToWrite &file : made->files) {
        std::cout << file.path << '\n';
    }
    return kDone;
}

} // namespace loftwing
