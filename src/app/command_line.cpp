#include "app/command_line.h"

#include "app/angle_command.h"
#include "app/console_program.h"
#include "app/convert_command.h"
#include "app/dihedral_command.h"
#include "app/draw_command.h"
#include "app/info_command.h"
#include "app/modify_command.h"
#include "app/ribs_command.h"
#include "app/table_command.h"
#include "app/view_commands.h"
#include "base/failure.h"
#include "base/version.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

struct Verb {
    const char *name;
    const char *usage;
    const char *summary;
    std::vector<OptionRule> (*options)();
    int (*run)(const Arguments &arguments);
    // Another way to use it, for its own help; null without one.
    const char *other_usage = nullptr;
    const char *other_summary = nullptr;
};

constexpr std::array kVerbs = {
    Verb{"draw", "draw FILE... -o OUT", "a rib drawing (or several: --to EXT -o DIR/)", DrawOptions,
         RunDraw, "draw RIB.lfw --on FILE... -o OUT", "the rib's features on other airfoils"},
    Verb{"info", "info FILE... [--json]", "what the program knows of an airfoil", InfoOptions,
         RunInfo},
    Verb{"ribs", "ribs ROOT TIP ... -o DIR", "a full set of ribs between two airfoils", RibsOptions,
         RunRibs},
    Verb{"plot", "plot FILE -o OUT", "the simple plot of the raw points", PlotOptions, RunPlot},
    Verb{"compare", "compare FILE1 FILE2 -o OUT", "two airfoils over each other", CompareOptions,
         RunCompare},
    Verb{"modify", "modify FILE ... -o OUT.dat", "other thickness and camber", ModifyOptions,
         RunModify},
    Verb{"table", "table --chords A B --count N", "chords and spar places of a tapered panel",
         TableOptions, RunTable},
    Verb{"dihedral", "dihedral ...", "angle, length, height: two of them give the third",
         DihedralOptions, RunDihedral},
    Verb{"oblique", "oblique FILE ... -o OUT.dat", "a rib that crosses the panel at an angle",
         ObliqueOptions, RunOblique},
    Verb{"incline", "incline FILE ... -o OUT.dat", "a rib inclined by the dihedral", InclineOptions,
         RunIncline},
    Verb{"convert", "convert FILE... -o OUT.dat", "any table of coordinates as an airfoil file",
         ConvertOptions, RunConvert},
};

std::string Padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

constexpr std::size_t kUsageColumn = 40;
constexpr std::size_t kOptionColumn = 32;

void PrintHelp() {
    std::cout << "loftwing " << kVersion << ": full-size rib drawings from airfoil files\n\n"
              << Padded("loftwing [--settings FILE] [FILE]", kUsageColumn)
              << "the window; FILE is opened in it\n";
    for (const Verb &verb : kVerbs) {
        std::cout << Padded(std::string("loftwing ") + verb.usage, kUsageColumn) << verb.summary
                  << '\n';
    }
    std::cout << "loftwing --help | --version | COMMAND --help\n";
}

void PrintHelp(const Verb &verb) {
    std::cout << "loftwing " << verb.usage << "\n    " << verb.summary << '\n';
    if (verb.other_usage != nullptr) {
        std::cout << "loftwing " << verb.other_usage << "\n    " << verb.other_summary << '\n';
    }
    std::cout << '\n';
    for (const OptionRule &rule : verb.options()) {
        const std::string value = rule.value == nullptr ? "" : std::string(" ") + rule.value;
        std::cout << "  " << Padded(rule.name + value, kOptionColumn) << rule.help << '\n';
    }
}

const Verb *FindVerb(const std::vector<std::string> &words) {
    const auto verb = std::find_if(kVerbs.begin(), kVerbs.end(), [&](const Verb &each) {
        return !words.empty() && words.front() == each.name;
    });
    return verb == kVerbs.end() ? nullptr : &*verb;
}

int RunVerb(const Verb &verb, const Arguments &arguments) {
    try {
        return verb.run(arguments);
    } catch (const Failure &failure) {
        std::cerr << "loftwing: " << FailureText(arguments, failure) << '\n';
        return kRefused;
    }
}

int Run(const Verb &verb, const std::vector<std::string> &words) {
    if (std::find(words.begin(), words.end(), "--help") != words.end()) {
        PrintHelp(verb);
        return kDone;
    }
    return RunVerb(verb, Arguments({words.begin() + 1, words.end()}, verb.options()));
}

/// Whether a word is nothing that the program could do: it is no command, and no file has that
/// name. Where that can't be told the window tries, and says what is wrong.
bool IsNothing(const std::vector<std::string> &words) {
    if (words.empty() || words.front().starts_with('-') || FindVerb(words) != nullptr) {
        return false;
    }
    std::error_code error;
    return fs::status(words.front(), error).type() == fs::file_type::not_found;
}

} // namespace

bool IsCommandLine(const std::vector<std::string> &words) {
    return FindVerb(words) != nullptr || IsNothing(words) ||
           (!words.empty() && (words.front() == "--help" || words.front() == "--version"));
}

int RunCommandLine(const std::vector<std::string> &words) {
    try {
        if (const Verb *verb = FindVerb(words)) {
            return Run(*verb, words);
        }
        if (IsNothing(words)) {
            throw UsageError("no command \"" + words.front() + "\", and no file of that name");
        }
        if (words.front() == "--version") {
            std::cout << "loftwing " << kVersion << '\n';
        } else {
            PrintHelp();
        }
        return kDone;
    } catch (const UsageError &error) {
        std::cerr << "loftwing: " << error.what() << " (see loftwing --help)\n";
        return kWrongUsage;
    } catch (const Refused &) {
        return kRefused;
    }
}

} // namespace loftwing
