#include "app/rib_options.h"

#include "app/typed_value.h"
#include "features/rib_entry.h"
#include "features/talon.h"
#include "output/page_setup.h"

#include <algorithm>

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

std::uint8_t PaperNamed(const std::string &name) {
    std::string names;
    for (std::size_t i = 0; i < kPapierImprimante; ++i) {
        if (name == Papiers()[i].nom_court) {
            return static_cast<std::uint8_t>(i);
        }
        names += std::string(i == 0 ? "" : ", ") + Papiers()[i].nom_court;
    }
    throw UsageError("no paper " + name + "; there are " + names);
}

/// Puts the margins of an opened rib's heel in force where the words ask for it, and tells of them
/// where they don't: the drawing of old is the one without. False when they are too long.
bool TakeHeelMargins(const Arguments &arguments, Programme &programme) {
    const Saisie saisie = programme.SaisieEnCours();
    if (!MargesEnAttente(programme.rib, saisie)) {
        return true;
    }
    if (arguments.Has("--heel")) {
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

std::vector<OptionRule> PageOptions() {
    return {{"--paper", "NAME",
             "paper of a PDF: A4, Letter, Fanfold, Legal, Executive, B4, "
             "\"US B\", A3"},
            {"--margin-before", "LENGTH", "margin before the leading edge"},
            {"--margin-after", "LENGTH", "margin behind the trailing edge"},
            {"--overlap", "LENGTH", "overlap of two sheets"},
            {"--reference-line-at", "LENGTH", "reference line from the top of the sheet"}};
}

bool ApplyRibOptions(const Arguments &arguments, Programme &programme) {
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
    if (!TakeHeelMargins(arguments, programme)) {
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

void ApplyPageOptions(const Arguments &arguments, Programme &programme) {
    MiseEnPage &page = programme.settings.page;
    SetPageLength(arguments, programme, "--margin-before", page.MargeHautAfich, page.MargeHaut);
    SetPageLength(arguments, programme, "--margin-after", page.MargeBasAfich, page.MargeBas);
    SetPageLength(arguments, programme, "--overlap", page.recouvrementAfich, page.recouvrement);
    SetPageLength(arguments, programme, "--reference-line-at", page.YdprintAfich, page.Ydprint);
    if (arguments.Has("--paper")) {
        page.NumIndex = PaperNamed(arguments.Value("--paper"));
    }
}

} // namespace loftwing
