#include "app/convert_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/many_files.h"
#include "app/typed_value.h"
#include "base/file_name.h"
#include "base/number_text.h"
#include "programme/import_words.h"

#include <filesystem>
#include <iostream>
#include <optional>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

ImportWishes WishesOf(const Arguments &arguments) {
    ImportWishes wishes;
    wishes.level = arguments.Has("--level");
    if (arguments.Has("--points")) {
        const double points = LeadingNumber(Typed(arguments, "--points", kTouchesEntier));
        if (points < kFewestLaid || points > kMostLaid) {
            throw UsageError("--points takes " + std::to_string(kFewestLaid) + " to " +
                             std::to_string(kMostLaid));
        }
        wishes.points = static_cast<int>(points);
    }
    return wishes;
}

/// Whether OUT is a folder: it ends like one, or is one.
bool MeansFolder(const std::string &out) {
    return EndsInSeparator(out) || (out != "-" && IsFolder(out));
}

/// Where OUT wants the airfoil of a file.
std::string NameOf(const std::string &out, bool folder, const std::string &file) {
    return folder ? TextOf(PathOf(out) / PathOf(StemOf(file) + ".dat")) : out;
}

/// What became of a file.
struct Converted {
    std::optional<std::string> text; ///< of the airfoil file; nothing when it was refused
    std::string words;               ///< what was done to it, or why it was refused
};

Converted Convert(const FileRun &run, const ImportWishes &wishes, const std::string &file) {
    ConsoleProgram program(run);
    const Messages &messages = program.Owner().messages;
    try {
        const ImportedAirfoil airfoil = ImportFile(file, wishes);
        return {AirfoilFile(airfoil, StemOf(file)), ImportStory(messages, airfoil)};
    } catch (const ImportRefusal &refusal) {
        return {std::nullopt, ImportRefusalText(messages, refusal)};
    } catch (const Failure &failure) {
        return {std::nullopt, messages.Description(failure)};
    }
}

/// Writes the airfoil, and tells what became of the file. False when it was refused.
bool Finish(const ConsoleStart &start, Converted converted, const std::string &file,
            const std::string &out) {
    ConsolePlatform platform(std::cerr, false);
    const Messages messages{platform, start.Language()};
    if (converted.text) {
        try {
            Deliver(out, *converted.text);
        } catch (const Failure &failure) {
            converted = {std::nullopt, messages.Description(failure)};
        }
    }
    messages.Inform(converted.words, file);
    return converted.text && std::cout;
}

} // namespace

std::vector<OptionRule> ConvertOptions() {
    std::vector<OptionRule> rules = {
        {"--output", "OUT.dat|DIR/", "file to write, also -o; - is standard output"},
        {"--points", "N", "lay the points anew, N of them"},
        {"--level", nullptr, "turn the trailing edge onto the reference line"}};
    const std::vector<OptionRule> common = CommonOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

int RunConvert(const Arguments &arguments) {
    const std::string out = arguments.Value("--output");
    const std::vector<std::string> &files = arguments.Files();
    if (files.empty() || out.empty()) {
        throw UsageError("convert wants a FILE and -o OUT.dat");
    }
    const bool folder = MeansFolder(out);
    if (files.size() > 1 && !folder) {
        throw UsageError("several FILEs want -o DIR/");
    }
    if (folder) {
        std::error_code error;
        fs::create_directories(out, error);
    }
    const ImportWishes wishes = WishesOf(arguments);
    const ConsoleStart start(arguments);
    std::vector<std::string> written;
    written.reserve(files.size());
    for (const std::string &file : files) {
        written.push_back(NameOf(out, folder, file));
    }
    const auto work = [&](std::size_t index, const Console &console) -> FileTurn {
        Converted converted = Convert({start, console}, wishes, files[index]);
        const std::size_t bytes = converted.text ? converted.text->size() : 0;
        return {[&, index, converted = std::move(converted)] {
                    return Finish(start, converted, files[index], written[index]);
                },
                bytes};
    };
    return WorkOnFiles(files.size(), AtATimeOf(files, written), work) ? kDone : kRefused;
}

} // namespace loftwing
