#include "app/command_line.h"

#include "app/console_program.h"
#include "app/error_line.h"
#include "app/verbs.h"
#include "base/failure.h"
#include "base/version.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

std::string Padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

constexpr std::size_t kUsageColumn = 40;
constexpr std::size_t kOptionColumn = 32;

void PrintHelp() {
    std::cout << "loftwing " << kVersion << ": " << kWhatItIs << "\n\n"
              << Padded("loftwing [--settings FILE] [FILE]", kUsageColumn)
              << "the window; FILE is opened in it\n";
    for (const Verb &verb : Verbs()) {
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

const Verb *VerbOf(const std::vector<std::string> &words) {
    return words.empty() ? nullptr : FindVerb(words.front());
}

int RunVerb(const Verb &verb, const Arguments &arguments) {
    try {
        return verb.run(arguments);
    } catch (const Failure &failure) {
        TellOnError(FailureText(arguments, failure));
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
    if (words.empty() || words.front().starts_with('-') || VerbOf(words) != nullptr) {
        return false;
    }
    std::error_code error;
    return fs::status(words.front(), error).type() == fs::file_type::not_found;
}

} // namespace

bool IsCommandLine(const std::vector<std::string> &words) {
    return VerbOf(words) != nullptr || IsNothing(words) ||
           (!words.empty() && (words.front() == "--help" || words.front() == "--version"));
}

int RunCommandLine(const std::vector<std::string> &words) {
    try {
        if (const Verb *verb = VerbOf(words)) {
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
        TellOnError(std::string(error.what()) + " (see loftwing --help)");
        return kWrongUsage;
    } catch (const Refused &) {
        return kRefused;
    }
}

} // namespace loftwing
