#include "app/drawing_target.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/toolkit.h"
#include "base/failure.h"
#include "base/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

bool Has(const DrawingVerb &verb, const ExportForm &form) {
    return std::find(verb.forms.begin(), verb.forms.end(), form.extension) != verb.forms.end();
}

std::string Listed(const std::vector<std::string> &forms) {
    std::string names;
    for (const std::string &form : forms) {
        names += (names.empty() ? "" : ", ") + form;
    }
    return names;
}

const ExportForm &FormNamed(const Arguments &arguments, const DrawingVerb &verb,
                            const std::string &extension) {
    const std::string variant = arguments.Value("--dxf");
    if (arguments.Has("--dxf") && FindExportForm("dxf", variant) == nullptr) {
        throw UsageError("--dxf takes plain");
    }
    const bool dxf = FindExportForm(extension) == FindExportForm("dxf");
    const ExportForm *form = FindExportForm(extension, dxf ? variant : std::string());
    if (form == nullptr || !Has(verb, *form)) {
        throw UsageError("no form \"" + extension + "\"; there are " + Listed(verb.forms));
    }
    return *form;
}

/// Runs the drawing of some FILEs. A failure to draw is told with the first one's name; one to
/// write names OUT itself.
bool DrawAndDeliver(const DrawingTarget &target, const std::vector<std::string> &files,
                    const Draw &draw) {
    std::string concerned = files.front() + ": ";
    try {
        bool complete = false;
        const auto bytes = draw(target, files, complete);
        if (!bytes) {
            if (target.several) {
                NameRefused(files.front());
            }
            return false;
        }
        concerned.clear();
        return Deliver(target, files.front(), *bytes) && complete;
    } catch (const Failure &failure) {
        std::cerr << "loftwing: " << concerned << failure.description << '\n';
        return false;
    }
}

} // namespace

std::vector<OptionRule> DrawingOptions(const DrawingVerb &verb) {
    std::vector<OptionRule> rules = {
        {"--output", "OUT",
         "file to write, also -o; its extension chooses the form, - is "
         "standard output"},
        {"--to", "EXT",
         verb.files_each == 1 ? "form of several drawings, which go to the folder -o DIR/"
                              : "form of the drawing on standard output"},
        {"--airfoils", "DIR",
         "where to search for the airfoil of a rib components file (may be repeated; default: the "
         "file's folder)",
         true}};
    if (std::find(verb.forms.begin(), verb.forms.end(), "dxf") != verb.forms.end()) {
        rules.push_back({"--dxf", "plain", "the clean form of DXF for cutters"});
    }
    return rules;
}

DrawingTarget TargetOf(const Arguments &arguments, const DrawingVerb &verb) {
    const std::string out = arguments.Value("--output");
    const bool one = arguments.Files().size() == verb.files_each;
    const bool more_may_be = verb.files_each == 1;
    if (arguments.Files().empty() || out.empty() || (!one && !more_may_be)) {
        throw UsageError(std::string(verb.name) + " wants " + verb.wants + " and -o OUT");
    }
    if (out == "-") {
        if (!arguments.Has("--to") || !one) {
            throw UsageError("-o - wants --to EXT and " + std::string(verb.wants));
        }
        return {&FormNamed(arguments, verb, arguments.Value("--to")), {}, {}};
    }
    if (arguments.Has("--to")) {
        const ExportForm &form = FormNamed(arguments, verb, arguments.Value("--to"));
        return more_may_be ? DrawingTarget{&form, {}, out, true} : DrawingTarget{&form, out, {}};
    }
    if (!one) {
        throw UsageError("several FILEs want --to EXT -o DIR/");
    }
    const std::string extension = fs::path(out).extension().string();
    return {
        &FormNamed(arguments, verb, extension.empty() ? extension : extension.substr(1)), out, {}};
}

bool Deliver(const DrawingTarget &target, const std::string &file, const std::string &bytes) {
    if (!target.several && target.file.empty()) {
        std::cout << bytes << std::flush;
        return static_cast<bool>(std::cout);
    }
    const std::string name = target.several
                                 ? (fs::path(target.folder) /
                                    (fs::path(file).stem().string() + "." + target.form->extension))
                                       .string()
                                 : target.file;
    WriteWholeFile(name, bytes);
    return true;
}

std::function<void()> PageOrRefusal(Programme &programme) {
    return [&programme] {
        if (programme.settings.page.recouvrement == 0.0F) {
            programme.messages.Inform(programme.Text({"FrmPrint", "24"}), "--overlap");
            programme.rib.Annule = true;
        }
    };
}

int DrawAll(const Arguments &arguments, const DrawingVerb &verb, const Draw &draw) {
    const DrawingTarget target = TargetOf(arguments, verb);
    if (target.several) {
        std::error_code error;
        fs::create_directories(target.folder, error);
    }
    const Toolkit toolkit(target.form->needs_toolkit);
    const std::vector<std::string> &files = arguments.Files();
    int status = kDone;
    const auto each = static_cast<std::ptrdiff_t>(verb.files_each);
    for (auto at = files.begin(); at != files.end(); at += each) {
        if (!DrawAndDeliver(target, {at, at + each}, draw)) {
            status = kRefused;
        }
    }
    return status;
}

} // namespace loftwing
