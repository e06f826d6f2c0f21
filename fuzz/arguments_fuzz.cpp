// The lines of an input as the words of a command line: taken apart by the options of rib, page and
// sheets and put into a program as the verbs do. Wrong usage, a refusal or values that are numbers
// within their ranges; every word is an option, its value or a file.

#include "app/arguments.h"
#include "app/rib_options.h"
#include "app/sheet_options.h"
#include "base/text_encoding.h"
#include "fuzz_world.h"
#include "output/page_setup.h"

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

std::vector<OptionRule> Rules() {
    std::vector<OptionRule> rules = {{"--output", "OUT", "", false},
                                     {"--chords", "MAJOR MINOR", "", false, 2},
                                     {"--gaps", "G...", "", false, kAllWords},
                                     {"--range", "RANGE", "", true},
                                     {"--unit", "mm|in", ""}};
    for (const auto &more : {RibOptions(), PageOptions(), SheetOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

/// A command line that says the same.
std::vector<std::string> Said(const Arguments &arguments, const std::vector<OptionRule> &rules) {
    std::vector<std::string> words;
    for (const OptionRule &rule : rules) {
        if (!arguments.Has(rule.name)) {
            continue;
        }
        if (rule.value == nullptr) {
            words.emplace_back(rule.name);
        } else if (rule.values != 1) {
            words.emplace_back(rule.name);
            for (const std::string &value : arguments.Values(rule.name)) {
                words.push_back(value);
            }
        } else {
            for (const std::string &value : arguments.Values(rule.name)) {
                words.push_back(rule.name + ("=" + value));
            }
        }
    }
    words.emplace_back("--");
    words.insert(words.end(), arguments.Files().begin(), arguments.Files().end());
    return words;
}

void CheckSaid(const Arguments &arguments, const std::vector<OptionRule> &rules) {
    const Arguments again(Said(arguments, rules), rules);
    Require(again.Files() == arguments.Files(), "same files");
    for (const OptionRule &rule : rules) {
        Require(again.Has(rule.name) == arguments.Has(rule.name), "same options");
        if (rule.value != nullptr) {
            Require(again.Values(rule.name) == arguments.Values(rule.name), "same values");
        }
    }
}

template <class Action>
void Try(const Action &action) {
    try {
        action();
    } catch (const UsageError &error) {
        Require(*error.what() != '\0', "reason of wrong usage");
    } catch (const Refused &) {
    } catch (const Failure &failure) {
        Require(failure.number == kOverflow || failure.number == kDivisionByZero,
                "number or one of two failures");
    }
}

void CheckRib(const RibModel &rib) {
    for (const float mm : {rib.corde, rib.EpCoffrage, rib.EpBA, rib.EpBF}) {
        Require(std::isfinite(mm), "values of numbers");
    }
}

void CheckPage(const MiseEnPage &page) {
    for (const float mm : {page.MargeHaut, page.MargeBas, page.recouvrement, page.Ydprint}) {
        Require(std::isfinite(mm), "margins of numbers");
    }
    Require(page.NumIndex < NombrePapiers(page) || page.NumIndex == kPapierEntier, "known paper");
}

void Apply(const Arguments &arguments) {
    FuzzWorld world(arguments.Value("--unit") == "in");
    Programme &programme = world.programme;
    Require(world.TakeAirfoil(UsualAirfoil()), "airfoil that any rib can be made of");
    Try([&] { ApplyRibOptions(arguments, programme); });
    CheckRib(programme.rib);
    Try([&] { ApplyPageOptions(arguments, programme); });
    CheckPage(programme.settings.page);
    Try([&] {
        if (WantsSheets(arguments)) {
            const SheetWish wish = SheetWishOf(arguments, programme);
            Require(wish.copies >= 1 && wish.copies <= kCopiesMaxi, "copies in their range");
            Require(
                std::all_of(wish.reglage.formats.begin(), wish.reglage.formats.end(), EstFormat),
                "sheets that there can be");
            Require(wish.reglage.ecart >= 0 && wish.reglage.marge >= 0, "gap and margin");
        }
    });
}

void Run(std::string_view bytes) {
    static const std::vector<OptionRule> rules = Rules();
    constexpr std::size_t kWords = 200;
    std::vector<std::string> words = SplitLines(bytes);
    words.resize(std::min(words.size(), kWords));
    Try([&] {
        const Arguments arguments(words, rules);
        CheckSaid(arguments, rules);
        Apply(arguments);
    });
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::Run(loftwing::BytesOf(data, size));
    return 0;
}
