#include "app/sheet_options.h"

#include "app/typed_value.h"
#include "programme/longueur_lue.h"
#include "programme/panel_sheets.h"

namespace loftwing {

namespace {

constexpr const char *kSheet = "--sheet";

std::vector<std::string> AtCommas(const std::string &text) {
    std::vector<std::string> words(1);
    for (const char letter : text) {
        if (letter == ',') {
            words.emplace_back();
        } else {
            words.back() += letter;
        }
    }
    return words;
}

FormatPlanche FormatOf(const std::string &typed, const Programme &programme) {
    if (const auto sides = CotesDe(typed)) {
        const FormatPlanche format{LengthMm((*sides)[0], kSheet, programme),
                                   LengthMm((*sides)[1], kSheet, programme)};
        if (EstFormat(format)) {
            return format;
        }
    }
    throw UsageError(std::string(kSheet) + " doesn't take \"" + typed +
                     "\"; it wants WIDTHxHEIGHT, at most 5000 mm a side");
}

/// A gap or a margin; `usual` where the option isn't there.
double DistanceOf(const Arguments &arguments, const char *option, double usual,
                  const Programme &programme) {
    if (!arguments.Has(option)) {
        return usual;
    }
    const double mm = LengthMm(arguments.Value(option), option, programme);
    if (!(mm <= kEcartMaxi)) {
        throw UsageError(std::string(option) + " takes at most 500 mm");
    }
    return mm;
}

int CopiesOf(const Arguments &arguments) {
    if (!arguments.Has("--copies")) {
        return 1;
    }
    const auto copies = NombreLu(Typed(arguments, "--copies", kTouchesEntier), kCopiesMaxi);
    if (!copies) {
        throw UsageError("--copies takes 1 to " + std::to_string(kCopiesMaxi));
    }
    return *copies;
}

} // namespace

std::vector<OptionRule> SheetOptions() {
    return {
        {kSheet, "WIDTHxHEIGHT",
         "lay all pieces on sheets of that size, the chords along the longer side, which is the "
         "grain (may be repeated, or sizes with commas: the first that holds a piece is taken, "
         "the last sheet is the smallest that does); SVG and DXF are a file a sheet, OUT-1, "
         "OUT-2 and so on, PDF a page a sheet; where a FILE is refused nothing is written",
         true},
        {"--gap", "LENGTH", "between two pieces on a sheet (2 mm)"},
        {"--margin", "LENGTH", "between pieces and the edges of a sheet (3 mm)"},
        {"--turn", nullptr, "let pieces lie turned by 180 degrees on a sheet"},
        {"--copies", "N", "how many of each piece, 1 to 1000"},
        {"--mirror", nullptr,
         "every second copy is that of the other wing: mirrored, its words readable"}};
}

bool WantsSheets(const Arguments &arguments) {
    if (arguments.Has(kSheet)) {
        return true;
    }
    for (const OptionRule &rule : SheetOptions()) {
        // A building plan has a use of its own for both wings.
        const bool of_plan = std::string_view(rule.name) == "--mirror" && arguments.Has("--plan");
        if (arguments.Has(rule.name) && !of_plan) {
            throw UsageError(std::string(rule.name) + " wants " + kSheet);
        }
    }
    return false;
}

SheetWish SheetWishOf(const Arguments &arguments, const Programme &programme) {
    SheetWish wish;
    for (const std::string &value : arguments.Values(kSheet)) {
        for (const std::string &typed : AtCommas(value)) {
            wish.reglage.formats.push_back(FormatOf(typed, programme));
        }
    }
    ReglageImbrication &reglage = wish.reglage;
    reglage.ecart = DistanceOf(arguments, "--gap", reglage.ecart, programme);
    reglage.marge = DistanceOf(arguments, "--margin", reglage.marge, programme);
    reglage.demi_tour = arguments.Has("--turn");
    wish.copies = CopiesOf(arguments);
    wish.mirror = arguments.Has("--mirror");
    if (wish.mirror && wish.copies < 2) {
        throw UsageError("--mirror wants --copies of 2 or more");
    }
    return wish;
}

} // namespace loftwing
