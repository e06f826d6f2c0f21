#include "app/panel_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/panel_outputs.h"
#include "app/panel_plan.h"
#include "app/rib_options.h"
#include "app/sheet_options.h"
#include "app/typed_value.h"
#include "base/number_text.h"
#include "programme/panel_file.h"
#include "programme/panel_steps.h"
#include "programme/panel_typed.h"
#include "programme/panel_words.h"
#include "programme/rib_file.h"
#include "utilities/rib_set_files.h"
#include "utilities/tool_files.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

const char *const kUsage =
    "panel wants ROOT.lfw TIP.lfw -o DIR and either --count N or --gaps G1 ... --thickness T0 ..., "
    "or a panel file (.lfp)";

/// "spar2=1-5".
std::pair<ElementPanneau, PorteePanneau> PorteeDe(const std::string &word) {
    const std::size_t equals = word.find('=');
    if (equals != std::string::npos) {
        const auto element = ElementNomme(word.substr(0, equals));
        const auto range = PorteeLue(word.substr(equals + 1));
        if (element && range) {
            return {*element, *range};
        }
    }
    throw UsageError("--range wants an element and its ribs, as spar2=1-5, not " + word);
}

/// What of the words needs no file.
void VerifieUsage(const Arguments &arguments) {
    const std::vector<std::string> &files = arguments.Files();
    const bool saved = files.size() == 1 && EstPanneau(files.front());
    const bool variable = arguments.Has("--gaps");
    const bool spaced = variable != arguments.Has("--count");
    const std::string folder = arguments.Value("--output");
    if ((files.size() != 2 && !saved) || (variable && arguments.Has("--count")) ||
        (!saved && !spaced) || (variable && !arguments.Has("--thickness")) || folder == "-" ||
        (folder.empty() && !arguments.Has("--dry-run") && !arguments.Has("--save") &&
         !arguments.Has("--drawings") && !WantsPlan(arguments))) {
        throw UsageError(kUsage);
    }
    if (WantsSheets(arguments) && folder.empty() && !arguments.Has("--dry-run")) {
        throw UsageError("--sheet wants -o DIR");
    }
}

/// The panel of the words, or of its file where they name one; further words go before the file's.
FichierPanneau DemandeDe(const Arguments &arguments, const Programme &programme) {
    const std::vector<std::string> &files = arguments.Files();
    FichierPanneau wanted;
    if (files.size() == 1) {
        wanted = LitPanneau(files.front());
        if (" " + wanted.unite != programme.settings.Unite) {
            throw UsageError(files.front() + " is in " + wanted.unite + ": add --unit " +
                             wanted.unite);
        }
    } else {
        wanted.bouts = {files[0], files[1]};
        wanted.unite = std::string(Trim(programme.settings.Unite));
    }
    if (arguments.Has("--count")) {
        wanted.nombre = Typed(arguments, "--count", kTouchesPositif);
        wanted.ecarts.clear();
    }
    if (arguments.Has("--gaps")) {
        wanted.nombre.clear();
        wanted.ecarts = TypedLengths(arguments, "--gaps", programme);
    }
    if (arguments.Has("--thickness")) {
        wanted.epaisseurs = TypedLengths(arguments, "--thickness", programme);
    }
    if (arguments.Has("--length")) {
        wanted.longueur = TypedLength(arguments, "--length", programme);
    }
    if (arguments.Has("--first")) {
        wanted.premier = FirstRibOf(arguments);
    }
    TakePlace(arguments, wanted);
    for (const std::string &word : arguments.Values("--range")) {
        const auto [element, range] = PorteeDe(word);
        wanted.portees.insert_or_assign(element, range);
    }
    return wanted;
}

/// Whether all that counts or measures does: a panel file may come out of an editor. What doesn't
/// is told.
bool NombresLisibles(const FichierPanneau &wanted, const Programme &programme) {
    const auto bad = TexteIllisible(wanted, programme.SaisieEnCours());
    if (bad) {
        programme.messages.Inform(programme.Text({"Panel", "184"}) + " " + *bad,
                                  programme.Text({"Panel", "40"}));
    }
    return !bad;
}

/// The clear width between two ribs of a panel of that length in equal steps.
void DitEcart(const FichierPanneau &wanted, const PanneauFait &made, const Programme &programme) {
    if (wanted.longueur.empty() || !wanted.ecarts.empty() || made.jeu.nervures.empty()) {
        return;
    }
    const Saisie saisie = programme.SaisieEnCours();
    const int count = static_cast<int>(made.jeu.nervures.size()) - 2;
    const double thick =
        wanted.epaisseurs.empty() ? 0 : NombreMm(wanted.epaisseurs.front(), saisie);
    const double gap = EcartRegulier(NombreMm(wanted.longueur, saisie), count, thick);
    if (gap < 0) {
        programme.messages.Inform(programme.Text({"Panel", "130"}),
                                  programme.Text({"Panel", "40"}));
        return;
    }
    std::cout << programme.Text({"FrmNervure", "3"}) << ": "
              << LongueurDePanneau(gap, programme.settings.Unite) << '\n';
}

void Dit(const PanneauFait &made, const Programme &programme, int first) {
    for (std::size_t i = 0; i < made.nervures.size(); ++i) {
        std::cout << LigneNervure(programme.messages, At(made.nervures, static_cast<long>(i)),
                                  first + static_cast<int>(i), programme.settings.Unite)
                  << '\n';
    }
    for (const Fleche &bow : made.fleches) {
        std::cout << TexteFleche(programme.messages, bow, programme.settings.Unite) << '\n';
    }
}

/// Says all that stands against the panel; whether it may be written.
bool Admis(const PanneauFait &made, const Arguments &arguments, const Messages &messages) {
    const std::string title = messages.Text({"Panel", "40"});
    for (const std::vector<AvisPanneau> *all : {&made.refus, &made.avis}) {
        for (const AvisPanneau &each : *all) {
            messages.Inform(LigneAvis(messages, each), title);
        }
    }
    if (!made.refus.empty()) {
        return false;
    }
    if (made.avis.empty() || arguments.Has("--yes") || arguments.Has("--dry-run")) {
        return true;
    }
    messages.Inform(messages.Text({"Panel", "41"}), title);
    return false;
}

/// Asks about files that are there; the console says No unless all is answered with Yes.
bool RemplaceSiVoulu(const std::vector<FileToWrite> &files, const Messages &messages) {
    const FichiersEcrits there = FichiersDejaLa(PathsOf(files), {});
    return there.empty() ||
           messages.Confirm(TexteRemplacement(there, messages), messages.Text({"Panel", "40"}));
}

/// All that the words ask for; nothing when a part of it was refused, which was told.
std::optional<PanelFiles> Sorties(const Arguments &arguments, Programme &programme,
                                  const Panneau &panel, const FichierPanneau &wanted,
                                  const PanneauFait &made) {
    PanelFiles all;
    const auto take = [&all](std::optional<PanelFiles> more) {
        if (!more) {
            return false;
        }
        std::move(more->files.begin(), more->files.end(), std::back_inserter(all.files));
        std::move(more->lines.begin(), more->lines.end(), std::back_inserter(all.lines));
        return true;
    };
    FeuillesPieces laid;
    if (arguments.Has("--output")) {
        all.files = FichiersAEcrire(made);
        if (!take(PanelSheets(arguments, programme, made, laid))) {
            return std::nullopt;
        }
    }
    if (!take(PanelDrawings(arguments, programme, made, wanted.premier)) ||
        !take(PlanOfPanel(arguments, programme, {panel, wanted, made, laid}))) {
        return std::nullopt;
    }
    return all;
}

void Ecrit(const PanelFiles &all, const std::string &folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error); // what isn't there then is told on writing
    WriteWholeFiles(all.files);
    for (const FileToWrite &file : all.files) {
        std::cout << file.path << '\n';
    }
    for (const std::string &line : all.lines) {
        std::cout << line << '\n';
    }
}

} // namespace

std::vector<OptionRule> PanelOptions() {
    std::vector<OptionRule> rules = {
        {"--output", "DIR", "folder of the files, also -o"},
        {"--count", "N", "number of intermediate ribs in equal steps"},
        {"--gaps", "G1 ...", "clear gaps between the ribs instead, from root to tip", false,
         kAllWords},
        {"--thickness", "T0 ...",
         "thickness of the ribs: one with --count, each from root to tip with --gaps", false,
         kAllWords},
        {"--length", "LENGTH", "length of the panel, for the width between ribs in equal steps"},
        {"--range", "ELEMENT=A-B",
         "ribs in which an element stands, as spar2=1-5 (spar, hole, heel, le, te, notch; may be "
         "repeated)",
         true},
        {"--first", "N", "number of the first rib on labels (default 1)"},
        {"--save", "FILE.lfp", "panel file that keeps these settings; panel FILE.lfp takes them"},
        {"--dry-run", nullptr, "print ribs and warnings, and write nothing"},
        {"--airfoils", "DIR",
         "where to search for the ribs' airfoils (may be repeated; default: the file's folder)",
         true}};
    for (const auto &more :
         {PanelOutputOptions(), PlaceOptions(), PlanOptions(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunPanel(const Arguments &arguments) {
    VerifieUsage(arguments);
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    ApplyPaperOptions(arguments, programme);
    const FichierPanneau wanted = DemandeDe(arguments, programme);
    if (!NombresLisibles(wanted, programme)) {
        return kRefused;
    }
    if (!EcartsComplets(wanted)) {
        throw UsageError("--gaps wants one more than there are intermediate ribs, two at least; "
                         "--thickness wants one more than gaps, one value with --count");
    }
    Panneau panel;
    panel.portees = wanted.portees;
    panel.jeu = JeuDe(wanted, arguments.Value("--output", "."));
    for (const std::size_t end : {0U, 1U}) {
        panel.bouts[end] = OpenPanelEnd(program, wanted.bouts[end], arguments.Values("--airfoils"));
    }
    panel.jeu.cordes = CordesDesBouts(panel, programme.settings.Unite);
    DemandePanneau demand = PanelDemandOf(arguments, programme);
    demand.premier = wanted.premier;
    const PanneauFait made = FaitPanneau(programme, panel, demand);
    if (arguments.Has("--dry-run")) {
        DitEcart(wanted, made, programme);
        Dit(made, programme, wanted.premier);
        return Admis(made, arguments, programme.messages) ? kDone : kRefused;
    }
    if (!Admis(made, arguments, programme.messages)) {
        return kRefused;
    }
    const auto all = Sorties(arguments, programme, panel, wanted, made);
    if (!all || !RemplaceSiVoulu(all->files, programme.messages)) {
        return kRefused;
    }
    Ecrit(*all, panel.jeu.dossier);
    if (arguments.Has("--save")) {
        EnregistrePanneau(arguments.Value("--save"), wanted);
        std::cout << arguments.Value("--save") << '\n';
    }
    return kDone;
}

} // namespace loftwing
