#include "app/rib_options.h"

#include "app/typed_value.h"
#include "base/number_text.h"
#include "features/rib_entry.h"
#include "features/talon.h"
#include "output/page_setup.h"

#include <algorithm>
#include <optional>

namespace loftwing {

namespace {

/// One option that is typed in the value dialog of the window.
struct EntryOption {
    const char *option;
    const char *mode; // ModeSaisie of the dialog
};
constexpr EntryOption kEntryOptions[] = {{"--chord", "corde"},
                                         {"--sheeting", "epcof"},
                                         {"--le", "ba"},
                                         {"--te", "bf"},
                                         {"--stations", "rep"}};

void SetPageLength(const Arguments &arguments, Programme &programme, const char *option,
                   std::string &text, float &number) {
    if (arguments.Has(option)) {
        StockeLongueur(Typed(arguments, option, LengthKeys(programme)), programme.SaisieEnCours(),
                       text, number);
    }
}

constexpr const char *kPaperOfDrawing = "drawing";

/// "610x2000": length along the rib and width, in the unit in force. Nothing for other words.
std::optional<PapierPropre> PaperOfSize(const std::string &words, const Programme &programme) {
    const std::size_t times = words.find('x');
    if (times == std::string::npos) {
        return std::nullopt;
    }
    const std::string sides[] = {words.substr(0, times), words.substr(times + 1)};
    for (const std::string &side : sides) {
        if (side.empty() || side.find_first_not_of(LengthKeys(programme)) != std::string::npos ||
            EstRefusee(side, programme.settings.Unite)) {
            return std::nullopt;
        }
    }
    const Saisie saisie = programme.SaisieEnCours();
    return PapierPropre{{}, NombreMm(sides[0], saisie), NombreMm(sides[1], saisie)};
}

std::vector<std::string> PaperNames() {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kPapierImprimante; ++i) {
        names.push_back(Papiers()[i].nom_court);
    }
    names.emplace_back(kPaperOfDrawing);
    return names;
}

/// Takes a paper by the name that it has in the table or in the settings file, or by its measures.
void TakePaper(const std::string &name, Programme &programme) {
    MiseEnPage &page = programme.settings.page;
    std::string names;
    for (std::size_t i = 0; i < kPapierImprimante; ++i) {
        if (name == Papiers()[i].nom_court) {
            page.NumIndex = ToByte(static_cast<double>(i));
            return;
        }
        names += Papiers()[i].nom_court + ", ";
    }
    if (name == kPaperOfDrawing) {
        page.NumIndex = kPapierEntier;
        return;
    }
    if (const auto measured = PaperOfSize(name, programme)) {
        if (!PapierAdmis(*measured)) {
            throw UsageError("--paper takes sides of " + NumberText(kPapierMini) + " to " +
                             NumberText(kPapierMaxi) + " mm");
        }
        page.papiers.push_back(*measured);
        page.NumIndex = ToByte(NombrePapiers(page) - 1);
        return;
    }
    const auto own = std::find_if(page.papiers.begin(), page.papiers.end(),
                                  [&](const PapierPropre &paper) { return paper.nom == name; });
    if (own == page.papiers.end()) {
        throw UsageError("no paper " + name + "; there are " + names + kPaperOfDrawing +
                         ", LENGTHxWIDTH");
    }
    page.NumIndex = ToByte(static_cast<double>(kPapierPropre + (own - page.papiers.begin())));
}

/// Puts the margins of an opened rib's heel in force where they shall be, and tells of them where
/// not: the drawing of old is the one without. False when they are too long.
bool TakeHeelMargins(bool in_force, Programme &programme) {
    const Saisie saisie = programme.SaisieEnCours();
    if (!MargesEnAttente(programme.rib, saisie)) {
        return true;
    }
    if (in_force) {
        return PrendMarges(programme.rib, saisie);
    }
    programme.messages.Inform(TexteMargesEnAttente(programme.rib, saisie) + " " +
                                  programme.Text({"FrmTalon", "184"}),
                              programme.rib.NomFichierRib);
    return true;
}

} // namespace

std::vector<OptionRule> RibOptions() {
    return {{"--chord", "LENGTH", "chord"},
            {"--sheeting", "LENGTH", "sheeting thickness"},
            {"--le", "LENGTH", "leading edge stock"},
            {"--te", "LENGTH", "trailing edge stock"},
            {"--stations", "N", "number of station lines between the edges"},
            {"--invert", nullptr, "draw the rib upside down"},
            {"--no-contour", nullptr, "leave out the airfoil's contour"},
            {"--no-reference-line", nullptr, "leave out the reference line"},
            {"--chord-thickness", nullptr, "write the greatest thickness"},
            {"--le-thickness", nullptr, "write the height at the leading edge stock"},
            {"--te-thickness", nullptr, "write the height at the trailing edge stock"},
            {"--heel", nullptr, "put the margins of a rib components file's heel in force"}};
}

std::vector<OptionRule> PaperOptions() {
    return {{"--paper", "NAME",
             "paper of a PDF: A4, Letter, Fanfold, Legal, Executive, B4, "
             "\"US B\", A3, LENGTHxWIDTH of your own, or drawing for one page as large as that",
             false, 1, PaperNames()},
            {"--overlap", "LENGTH", "overlap of two sheets"}};
}

std::vector<OptionRule> PageOptions() {
    const std::vector<OptionRule> paper = PaperOptions();
    return {paper.front(),
            {"--margin-before", "LENGTH", "margin before the leading edge"},
            {"--margin-after", "LENGTH", "margin behind the trailing edge"},
            paper.back(),
            {"--reference-line-at", "LENGTH", "reference line from the top of the sheet"},
            {"--rows", nullptr, "sheets downwards too, for a drawing that is taller than one"},
            {"--check-line", nullptr, "a line to measure and a note on every sheet"}};
}

bool ApplyRibOptions(const Arguments &arguments, Programme &programme, HeelMargins margins) {
    // A rib components file has a value for everything; an option replaces its own only.
    const Suite suite = programme.rib.FichierRibOuvert ? Suite::rien : Suite::tout;
    for (const EntryOption &entry : kEntryOptions) {
        if (!arguments.Has(entry.option)) {
            continue;
        }
        const bool count = std::string_view(entry.mode) == "rep";
        const std::string typed =
            Typed(arguments, entry.option, count ? kTouchesEntier : LengthKeys(programme));
        // What the value dialog has to say is a refusal to somebody who can't answer it.
        if (ValideSaisie(ModeDe(entry.mode), programme.rib, typed, programme.SaisieEnCours(),
                         suite) != FinSaisie::prise) {
            return false;
        }
    }
    RibModel &rib = programme.rib;
    if (!TakeHeelMargins(margins == HeelMargins::in_force || arguments.Has("--heel"), programme)) {
        return false;
    }
    rib.AffHaut = rib.AffHaut || arguments.Has("--invert");
    rib.AffTrac = !arguments.Has("--no-contour");
    rib.AffLignRef = !arguments.Has("--no-reference-line");
    rib.AffEpr = arguments.Has("--chord-thickness");
    rib.AffHautBA = arguments.Has("--le-thickness");
    rib.AffHautBF = arguments.Has("--te-thickness");
    return true;
}

void ApplyPaperOptions(const Arguments &arguments, Programme &programme) {
    MiseEnPage &page = programme.settings.page;
    SetPageLength(arguments, programme, "--overlap", page.recouvrementAfich, page.recouvrement);
    if (arguments.Has("--paper")) {
        TakePaper(arguments.Value("--paper"), programme);
    }
}

void ApplyPageOptions(const Arguments &arguments, Programme &programme) {
    MiseEnPage &page = programme.settings.page;
    SetPageLength(arguments, programme, "--margin-before", page.MargeHautAfich, page.MargeHaut);
    SetPageLength(arguments, programme, "--margin-after", page.MargeBasAfich, page.MargeBas);
    ApplyPaperOptions(arguments, programme);
    SetPageLength(arguments, programme, "--reference-line-at", page.YdprintAfich, page.Ydprint);
    // What the window's user has chosen for his sheets is asked for here.
    page.temoin = arguments.Has("--check-line");
    page.en_rangees = arguments.Has("--rows");
}

} // namespace loftwing
