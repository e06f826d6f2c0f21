#include "app/convert_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "base/number_text.h"
#include "programme/import_words.h"

#include <filesystem>
#include <iostream>

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
bool IsFolder(const std::string &out) {
    return out.ends_with('/') || (out != "-" && fs::is_directory(out));
}

bool Convert(const Arguments &arguments, const ImportWishes &wishes, const std::string &file) {
    ConsoleProgram program(arguments);
    const std::string out = arguments.Value("--output");
    const std::string name = fs::path(file).stem().string();
    const Messages &messages = program.Owner().messages;
    try {
        const ImportedAirfoil airfoil = ImportFile(file, wishes);
        Deliver(IsFolder(out) ? (fs::path(out) / (name + ".dat")).string() : out,
                AirfoilFile(airfoil, name));
        messages.Inform(ImportStory(messages, airfoil), file);
    } catch (const ImportRefusal &refusal) {
        messages.Inform(ImportRefusalText(messages, refusal), file);
        return false;
    } catch (const Failure &failure) {
        messages.Inform(messages.Description(failure), file);
        return false;
    }
    return static_cast<bool>(std::cout);
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
    const bool folder = IsFolder(out);
    if (files.size() > 1 && !folder) {
        throw UsageError("several FILEs want -o DIR/");
    }
    if (folder) {
        std::error_code error;
        fs::create_directories(out, error);
    }
    const ImportWishes wishes = WishesOf(arguments);
    int status = kDone;
    for (const std::string &file : files) {
        if (!Convert(arguments, wishes, file)) {
            status = kRefused;
        }
    }
    return status;
}

} // namespace loftwing
