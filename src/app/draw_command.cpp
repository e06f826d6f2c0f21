#include "app/draw_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/rib_options.h"
#include "app/toolkit.h"
#include "base/whole_file.h"
#include "core/contour.h"
#include "programme/qt_export_forms.h"

#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// Where the drawings go.
struct Target {
    const ExportForm *form;
    std::string file;   ///< empty: standard output
    std::string folder; ///< for several files
    bool several = false;
};

const ExportForm &FormNamed(const Arguments &arguments, const std::string &extension) {
    const std::string variant = arguments.Value("--dxf");
    if (arguments.Has("--dxf") && FindExportForm("dxf", variant) == nullptr) {
        throw UsageError("--dxf takes plain");
    }
    const bool dxf = FindExportForm(extension) == FindExportForm("dxf");
    const ExportForm *form = FindExportForm(extension, dxf ? variant : std::string());
    if (form == nullptr) {
        throw UsageError("no form \"" + extension + "\"; there are " + ExportExtensions());
    }
    return *form;
}

Target TargetOf(const Arguments &arguments) {
    const std::string out = arguments.Value("--output");
    if (arguments.Files().empty() || out.empty()) {
        throw UsageError("draw wants a FILE and -o OUT");
    }
    if (out == "-") {
        if (!arguments.Has("--to") || arguments.Files().size() != 1) {
            throw UsageError("-o - wants --to EXT and one FILE");
        }
        return {&FormNamed(arguments, arguments.Value("--to")), {}, {}};
    }
    if (arguments.Has("--to")) {
        return {&FormNamed(arguments, arguments.Value("--to")), {}, out, true};
    }
    if (arguments.Files().size() != 1) {
        throw UsageError("several FILEs want --to EXT -o DIR/");
    }
    const std::string extension = fs::path(out).extension().string();
    return {&FormNamed(arguments, extension.empty() ? extension : extension.substr(1)), out, {}};
}

/// A page for the PDF; the command line can't ask for an overlap, so it must have one.
std::function<void()> PageOrRefusal(Programme &programme) {
    return [&programme] {
        if (programme.settings.page.recouvrement == 0.0F) {
            programme.messages.Inform(programme.Text({"FrmPrint", "24"}), "--overlap");
            programme.rib.Annule = true;
        }
    };
}

/// The bytes of one drawing, nothing when anything was refused.
std::optional<std::string> Draw(const Arguments &arguments, const ExportForm &form,
                                const std::string &file, bool &complete) {
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    if (!program.Ouvre(file, arguments.Values("--airfoils")) ||
        !ApplyRibOptions(arguments, programme)) {
        return std::nullopt;
    }
    const Preparation prepared = PrepareContour(programme.rib, programme.messages);
    if (prepared == Preparation::impossible) {
        return std::nullopt;
    }
    complete = prepared == Preparation::complete;
    return form.Export(programme, PageOrRefusal(programme)).bytes;
}

bool Deliver(const Target &target, const std::string &file, const ExportForm &form,
             const std::string &bytes) {
    if (!target.several && target.file.empty()) {
        std::cout << bytes << std::flush;
        return static_cast<bool>(std::cout);
    }
    const std::string name =
        target.several
            ? (fs::path(target.folder) / (fs::path(file).stem().string() + "." + form.extension))
                  .string()
            : target.file;
    WriteWholeFile(name, bytes);
    return true;
}

bool DrawAndDeliver(const Arguments &arguments, const Target &target, const std::string &file) {
    try {
        bool complete = false;
        const auto bytes = Draw(arguments, *target.form, file, complete);
        return bytes && Deliver(target, file, *target.form, *bytes) && complete;
    } catch (const Failure &failure) {
        std::cerr << "loftwing: " << file << ": " << failure.description << '\n';
        return false;
    }
}

} // namespace

std::vector<OptionRule> DrawOptions() {
    std::vector<OptionRule> rules = {
        {"--output", "OUT",
         "file to write, also -o; its extension chooses the form, - is "
         "standard output"},
        {"--to", "EXT", "form of several drawings, which go to the folder -o DIR/"},
        {"--airfoils", "DIR",
         "where to search for the airfoil of a rib components file (may be repeated; default: the "
         "file's folder)",
         true},
        {"--dxf", "plain", "the clean form of DXF for cutters"}};
    for (const auto &more : {RibOptions(), PageOptions(), CommonOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunDraw(const Arguments &arguments) {
    const Target target = TargetOf(arguments);
    if (target.several) {
        std::error_code error;
        fs::create_directories(target.folder, error);
    }
    const Toolkit toolkit(target.form->needs_toolkit);
    int status = kDone;
    for (const std::string &file : arguments.Files()) {
        if (!DrawAndDeliver(arguments, target, file)) {
            status = kRefused;
        }
    }
    return status;
}

} // namespace loftwing
