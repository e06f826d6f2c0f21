#include "app/drawing_target.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/toolkit.h"
#include "base/failure.h"
#include "base/whole_file.h"
#include "output/sheeting.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// The forms of a verb, those told apart by an option too.
std::vector<const ExportForm *> FormsOf(const DrawingVerb &verb) {
    std::vector<const ExportForm *> forms;
    for (const ExportForm &form : ExportForms()) {
        if ((form.vues & verb.vue) != 0) {
            forms.push_back(&form);
        }
    }
    return forms;
}

std::vector<std::string> ExtensionsOf(const DrawingVerb &verb) {
    std::vector<std::string> extensions;
    for (const ExportForm *form : FormsOf(verb)) {
        if (form->option == nullptr) {
            extensions.push_back(form->extension);
        }
    }
    return extensions;
}

/// "dxf, pdf, svg"
std::string Listed(const DrawingVerb &verb) {
    std::string names;
    for (const std::string &extension : ExtensionsOf(verb)) {
        names += (names.empty() ? "" : ", ") + extension;
    }
    return names;
}

/// The form of an extension that the words ask for by an option of it; null without one. Throws
/// UsageError for an option that names none.
const ExportForm *VariantNamed(const Arguments &arguments, const DrawingVerb &verb,
                               const ExportForm &usual) {
    for (const ExportForm *form : FormsOf(verb)) {
        if (form->option == nullptr || !arguments.Has(form->option)) {
            continue;
        }
        if (arguments.Value(form->option) != form->variant) {
            throw UsageError(std::string(form->option) + " takes " + form->variant);
        }
        if (form->extension == usual.extension) {
            return form;
        }
    }
    return nullptr;
}

const ExportForm &FormNamed(const Arguments &arguments, const DrawingVerb &verb,
                            const std::string &extension) {
    const ExportForm *usual = FindExportForm(extension);
    if (usual == nullptr || (usual->vues & verb.vue) == 0) {
        throw UsageError("no form \"" + extension + "\"; there are " + Listed(verb));
    }
    const ExportForm *variant = VariantNamed(arguments, verb, *usual);
    return variant == nullptr ? *usual : *variant;
}

/// Whether the page of several sheets is set up, which nobody can be asked for.
bool HasOverlap(const Programme &programme) {
    if (programme.settings.page.recouvrement != 0.0F) {
        return true;
    }
    programme.messages.Inform(programme.Text({"FrmPrint", "24"}), "--overlap");
    return false;
}

/// Runs the drawing of some FILEs. A failure to draw is told with the first one's name; one to
/// write names OUT itself.
bool DrawAndDeliver(const Arguments &arguments, const DrawingTarget &target,
                    const std::vector<std::string> &files, const Draw &draw) {
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
        std::cerr << "loftwing: " << concerned << FailureText(arguments, failure) << '\n';
        return false;
    }
}

} // namespace

std::vector<OptionRule> DrawingOptions(const DrawingVerb &verb) {
    std::vector<OptionRule> rules = {
        {"--output", "OUT",
         "file to write, also -o; its extension (" + Listed(verb) +
             ") chooses the form, - is standard output"},
        {"--to", "EXT",
         verb.files_each == 1 ? "form of several drawings, which go to the folder -o DIR/"
                              : "form of the drawing on standard output",
         false, 1, ExtensionsOf(verb)},
        {"--airfoils", "DIR",
         "where to search for the airfoil of a rib components file (may be repeated; default: the "
         "file's folder)",
         true}};
    for (const ExportForm *form : FormsOf(verb)) {
        if (form->option != nullptr) {
            rules.push_back({form->option, form->variant, form->option_help});
        }
    }
    return rules;
}

DrawingTarget TargetOf(const Arguments &arguments, const DrawingVerb &verb,
                       const std::vector<std::string> &files) {
    const std::string out = arguments.Value("--output");
    const bool one = files.size() == verb.files_each;
    const bool more_may_be = verb.files_each == 1;
    if (files.empty() || out.empty() || (!one && !more_may_be)) {
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

std::optional<std::string> Dessine(Programme &programme, const DrawingTarget &target) {
    // Nothing was shown before: the form that goes on from the last plot starts primed as well.
    programme.plot = EtatAmorce(programme.rib);
    const ReglagePage page{
        [&programme] { return HasOverlap(programme); },
        {"--reference-line-at", "--margin-before", "--margin-after", "--paper", "--rows"},
        false};
    Exported exported = target.form->Export(programme, page);
    if (exported.rupture) {
        throw *exported.rupture;
    }
    return std::move(exported.bytes);
}

int DrawAll(const Arguments &arguments, const DrawingVerb &verb,
            const std::vector<std::string> &files, const Draw &draw) {
    const DrawingTarget target = TargetOf(arguments, verb, files);
    if (target.several) {
        std::error_code error;
        fs::create_directories(target.folder, error);
    }
    const Toolkit toolkit(target.form->needs_toolkit);
    int status = kDone;
    const auto each = static_cast<std::ptrdiff_t>(verb.files_each);
    for (auto at = files.begin(); at != files.end(); at += each) {
        if (!DrawAndDeliver(arguments, target, {at, at + each}, draw)) {
            status = kRefused;
        }
    }
    return status;
}

} // namespace loftwing
