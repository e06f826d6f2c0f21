#include "app/drawing_target.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/error_line.h"
#include "app/toolkit.h"
#include "base/failure.h"
#include "base/file_name.h"
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
        throw UsageError("no form \"" + extension + "\"; there are " + Listed(ExtensionsOf(verb)));
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

/// The file that is made of `file`, in the folder for several ones.
std::string NameOf(const Destination &destination, const std::string &file) {
    return destination.several ? TextOf(PathOf(destination.folder) /
                                        PathOf(StemOf(file) + "." + destination.extension))
                               : destination.file;
}

/// Writes a file whole. Failures as WriteWholeFile. False when standard output is.
bool Deliver(const Destination &destination, const std::string &file, const std::string &bytes) {
    if (destination.IsStandardOutput()) {
        std::cout << bytes << std::flush;
        return static_cast<bool>(std::cout);
    }
    WriteWholeFile(NameOf(destination, file), bytes);
    return true;
}

/// What was made of some FILEs; no bytes when that was refused.
struct MadeFile {
    std::optional<std::string> bytes;
    bool complete = false;
};

/// Makes a file of some FILEs. A failure is told with the first one's name.
MadeFile MakeTold(const FileRun &run, const Destination &destination,
                  const std::vector<std::string> &files, const Make &make) {
    MadeFile made;
    try {
        made.bytes = make(run, files, made.complete);
        if (!made.bytes && destination.several) {
            NameRefused(run.console, files.front());
        }
    } catch (const Failure &failure) {
        TellOnError(run.console.err, files.front() + ": " + run.start.FailureText(failure));
    }
    return made;
}

/// Writes a file that was made. A failure names OUT itself. False when anything was amiss.
bool DeliverTold(const ConsoleStart &start, const Destination &destination, const std::string &file,
                 const MadeFile &made) {
    if (!made.bytes) {
        return false;
    }
    try {
        return Deliver(destination, file, *made.bytes) && made.complete;
    } catch (const Failure &failure) {
        TellOnError(start.FailureText(failure));
        return false;
    }
}

/// How many of the files may be made at a time.
AtATime MadeAtATime(const Destination &destination, const std::vector<std::string> &files) {
    if (!destination.several) {
        return AtATime::one;
    }
    std::vector<std::string> written;
    written.reserve(files.size());
    for (const std::string &file : files) {
        written.push_back(NameOf(destination, file));
    }
    return AtATimeOf(files, written);
}

} // namespace

std::string Listed(const std::vector<std::string> &extensions) {
    std::string names;
    for (const std::string &extension : extensions) {
        names += (names.empty() ? "" : ", ") + extension;
    }
    return names;
}

std::vector<OptionRule> TargetOptions(const DrawingVerb &verb,
                                      const std::vector<std::string> &extensions) {
    return {{"--output", "OUT",
             "file to write, also -o; its extension (" + Listed(extensions) +
                 ") chooses the form, - is standard output"},
            {"--to", "EXT",
             verb.files_each == 1 ? "form of several drawings, which go to the folder -o DIR/"
                                  : "form of the drawing on standard output",
             false, 1, extensions},
            {"--airfoils", "DIR",
             "where to search for the airfoil of a rib components file (may be repeated; default: "
             "the file's folder)",
             true}};
}

std::vector<OptionRule> DrawingOptions(const DrawingVerb &verb) {
    std::vector<OptionRule> rules = TargetOptions(verb, ExtensionsOf(verb));
    for (const ExportForm *form : FormsOf(verb)) {
        if (form->option != nullptr) {
            rules.push_back({form->option, form->variant, form->option_help});
        }
    }
    return rules;
}

Destination DestinationOf(const Arguments &arguments, const DrawingVerb &verb,
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
        return {arguments.Value("--to"), {}, {}};
    }
    if (arguments.Has("--to")) {
        const std::string extension = arguments.Value("--to");
        return more_may_be ? Destination{extension, {}, out, true}
                           : Destination{extension, out, {}};
    }
    if (!one) {
        throw UsageError("several FILEs want --to EXT -o DIR/");
    }
    const std::string extension = ExtensionOf(out);
    return {extension.empty() ? extension : extension.substr(1), out, {}};
}

DrawingTarget TargetOf(const Arguments &arguments, const DrawingVerb &verb,
                       const std::vector<std::string> &files) {
    DrawingTarget target{DestinationOf(arguments, verb, files)};
    target.form = &FormNamed(arguments, verb, target.extension);
    target.extension = target.form->extension;
    return target;
}

ReglagePage PageAsTyped(Programme &programme) {
    return {[&programme] { return HasOverlap(programme); },
            {"--reference-line-at", "--margin-before", "--margin-after", "--paper", "--rows"},
            false};
}

std::optional<std::string> Dessine(Programme &programme, const DrawingTarget &target) {
    // Nothing was shown before: the form that goes on from the last plot starts primed as well.
    programme.plot = EtatAmorce(programme.rib);
    Exported exported = target.form->Export(programme, PageAsTyped(programme));
    if (exported.rupture) {
        throw *exported.rupture;
    }
    return std::move(exported.bytes);
}

int DeliverAll(const Arguments &arguments, const DrawingVerb &verb,
               const std::vector<std::string> &files, const Destination &destination,
               const Make &make) {
    if (destination.several) {
        std::error_code error;
        fs::create_directories(destination.folder, error);
    }
    const ConsoleStart start(arguments);
    const auto work = [&](std::size_t index, const Console &console) -> FileTurn {
        const auto first = files.begin() + static_cast<std::ptrdiff_t>(index * verb.files_each);
        MadeFile made =
            MakeTold({start, console}, destination,
                     {first, first + static_cast<std::ptrdiff_t>(verb.files_each)}, make);
        const std::size_t bytes = made.bytes ? made.bytes->size() : 0;
        return {[&start, &destination, &file = *first, made = std::move(made)] {
                    return DeliverTold(start, destination, file, made);
                },
                bytes};
    };
    const bool all =
        WorkOnFiles(files.size() / verb.files_each, MadeAtATime(destination, files), work);
    return all ? kDone : kRefused;
}

int DrawAll(const Arguments &arguments, const DrawingVerb &verb,
            const std::vector<std::string> &files, const Draw &draw) {
    const DrawingTarget target = TargetOf(arguments, verb, files);
    const Toolkit toolkit(target.form->needs_toolkit);
    return DeliverAll(arguments, verb, files, target,
                      [&](const FileRun &run, const std::vector<std::string> &some,
                          bool &complete) { return draw(run, target, some, complete); });
}

} // namespace loftwing
