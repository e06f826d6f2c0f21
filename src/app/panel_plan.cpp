#include "app/panel_plan.h"

#include "app/command_line.h"
#include "app/rib_options.h"
#include "app/toolkit.h"
#include "app/typed_value.h"
#include "base/disk.h"
#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "programme/panel_typed.h"
#include "programme/plan_aile.h"
#include "programme/qt_plan_forms.h"
#include "programme/rib_file.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr const char *kPlan = "--plan";
constexpr const char *kParts = "--parts";

/// The plan's form: sheets where a paper was named, one large page otherwise.
FormePlan FormOf(const std::string &path, const Programme &programme, bool paper) {
    const FormePlan form = *FormeDuPlan(path);
    return form == FormePlan::pdf && paper && programme.settings.page.NumIndex != kPapierEntier
               ? FormePlan::feuilles
               : form;
}

std::optional<std::string> PlanBytes(const Arguments &arguments, const std::string &path,
                                     const Aile &wing, const Programme &programme) {
    const auto drawings = DessinsDeLAile(wing, arguments.Has("--mirror"), programme.messages,
                                         programme.settings.Unite);
    auto made =
        OctetsDuPlan(FormOf(path, programme, arguments.Has("--paper")), drawings, programme);
    if (const auto *refused = std::get_if<RefusFormePlan>(&made)) {
        programme.messages.Inform(refused->texte, path);
        return std::nullopt;
    }
    return std::move(std::get<std::string>(made));
}

bool NeedsToolkit(const std::string &path) {
    return LowerAscii(ExtensionOf(path)) == ".pdf";
}

bool WillBeOneFile(const std::string &one, const std::string &other) {
    std::error_code unknown;
    return RealPlace(PathOf(one), unknown) == RealPlace(PathOf(other), unknown);
}

/// Tells of weights that were asked for and can't be.
void WarnOfWeights(const Aile &wing, const Programme &programme) {
    const bool without =
        std::any_of(wing.panneaux.begin(), wing.panneaux.end(), [](const PanneauAile &panel) {
            return panel.reglage.densite > 0 &&
                   std::any_of(panel.nervures.begin(), panel.nervures.end(),
                               [](const NervureAile &rib) { return !(rib.epaisseur > 0); });
        });
    if (without) {
        programme.messages.Inform(programme.Text({"Plan", "33"}), programme.Text({"Panel", "40"}));
    }
}

} // namespace

std::optional<PanelFiles> PlanFiles(const Arguments &arguments, const Programme &programme,
                                    const Aile &wing, const std::string &plan,
                                    const FeuillesPieces &laid) {
    const std::string parts = arguments.Value(kParts);
    WarnOfWeights(wing, programme);
    const Toolkit toolkit(NeedsToolkit(plan) || NeedsToolkit(parts));
    PanelFiles out;
    if (!plan.empty()) {
        const auto bytes = PlanBytes(arguments, plan, wing, programme);
        if (!bytes) {
            return std::nullopt;
        }
        out.files.push_back({plan, *bytes});
    }
    if (!parts.empty()) {
        const auto tables =
            ListeDesPieces(wing, laid, programme.messages, programme.settings.Unite);
        out.files.push_back(
            {parts, OctetsDeLaListe(FormeDeLaListe(parts), TitreDeListe(wing, programme.messages),
                                    tables, programme.settings.page)});
    }
    return out;
}

namespace {

/// What was typed of a panel's place. Throws UsageError for what can't be.
ReglageAile PlaceOf(const FichierPanneau &wanted, const Programme &programme) {
    const auto place = ReglageDe(wanted, programme.SaisieEnCours());
    if (const auto *refused = std::get_if<RefusReglage>(&place)) {
        constexpr std::array<const char *, 4> kOptions = {"--length", "--sweep", "--dihedral",
                                                          "--density"};
        throw UsageError(std::string(kOptions.at(static_cast<std::size_t>(refused->champ))) + ": " +
                         refused->texte);
    }
    return std::get<ReglageAile>(place);
}

} // namespace

void VerifyPlanFiles(const Arguments &arguments, const std::optional<std::string> &plan) {
    std::vector<std::string> outputs;
    if (plan) {
        if (!FormeDuPlan(*plan)) {
            throw UsageError("a plan is a file .pdf, .svg or .dxf, not " + *plan);
        }
        outputs.push_back(*plan);
    }
    if (arguments.Has(kParts)) {
        const std::string parts = arguments.Value(kParts);
        if (!EstListe(parts) || parts == "-") {
            throw UsageError("a list of parts is a file .csv, .pdf or .txt, not " + parts);
        }
        outputs.push_back(parts);
    }
    if (outputs.size() > 1 && WillBeOneFile(outputs[0], outputs[1])) {
        throw UsageError("plan and list can't both be " + outputs[0]);
    }
    for (const std::string &file : arguments.Files()) {
        for (const std::string &out : outputs) {
            if (WillBeOneFile(out, file)) {
                throw UsageError(out + " would take the place of a file that is read");
            }
        }
    }
}

std::vector<OptionRule> PlaceOptions() {
    return {{"--sweep", "LENGTH", "how far the tip's leading edge lies behind the root's"},
            {"--dihedral", "DEG", "angle of the panel against the board, for the front view"},
            {"--density", "KG/M3",
             "density of the ribs' wood for their weight (lb/ft3 with lengths in inches)"}};
}

std::vector<OptionRule> PlanOptions() {
    std::vector<OptionRule> rules = {
        {kPlan, "FILE",
         "building plan at 1:1: pdf (one large page, sheets with --paper), svg, dxf; with "
         "--mirror that of the other wing too"},
        {kParts, "FILE", "list of parts: csv, pdf, txt"}};
    const std::vector<OptionRule> paper = PaperOptions();
    rules.insert(rules.end(), paper.begin(), paper.end());
    return rules;
}

bool WantsPlan(const Arguments &arguments) {
    VerifyPlanFiles(arguments,
                    arguments.Has(kPlan) ? std::optional(arguments.Value(kPlan)) : std::nullopt);
    return arguments.Has(kPlan) || arguments.Has(kParts);
}

int FirstRibOf(const Arguments &arguments) {
    const double number = LeadingNumber(Typed(arguments, "--first", kTouchesEntier));
    if (number < 1 || number > kPremierMaxi) {
        throw UsageError("--first takes 1 to " + std::to_string(kPremierMaxi));
    }
    return static_cast<int>(number);
}

PartiesRib OpenPanelEnd(ConsoleProgram &program, const std::string &file,
                        const std::vector<std::string> &folders) {
    if (!EstComposants(file)) {
        throw UsageError("panel wants rib components files (.lfw), not " + file);
    }
    Programme &programme = program.Owner();
    const PartieGardee<PartiesRib> fresh(programme.rib);
    if (!program.Ouvre(file, folders)) {
        NameRefused(file);
        throw Refused{};
    }
    program.WarnOfDeviation();
    return programme.rib.Partie<PartiesRib>();
}

void TakePlace(const Arguments &arguments, FichierPanneau &wanted) {
    const auto take = [&arguments](const char *option, std::string &text) {
        if (arguments.Has(option)) {
            text = arguments.Value(option);
        }
    };
    take("--sweep", wanted.recul);
    take("--dihedral", wanted.diedre);
    take("--density", wanted.densite);
}

std::optional<PanelFiles> PlanOfPanel(const Arguments &arguments, const Programme &programme,
                                      const PanelOfPlan &panel) {
    if (!WantsPlan(arguments)) {
        return PanelFiles{};
    }
    Aile wing;
    const std::string title =
        arguments.Files().size() == 1 ? arguments.Files().front() : panel.panel.bouts[0].NomProfil;
    wing.nom = ToUtf8(StemOf(title));
    const auto refused = AjoutePanneau(
        wing, {"", panel.panel, panel.made, panel.wanted.premier, PlaceOf(panel.wanted, programme)},
        programme.SaisieEnCours());
    if (refused) {
        programme.messages.Inform(TexteRefusAile(programme.messages, *refused),
                                  programme.Text({"Panel", "40"}));
        return std::nullopt;
    }
    return PlanFiles(arguments, programme, wing, arguments.Value(kPlan), panel.laid);
}

} // namespace loftwing
