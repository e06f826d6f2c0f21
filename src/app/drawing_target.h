/// Where the files of a command go, and in which form.
#pragma once

#include "app/arguments.h"
#include "app/console_program.h"
#include "app/many_files.h"
#include "programme/qt_export_forms.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

struct Destination {
    std::string extension; ///< names the form, as it was typed
    std::string file;      ///< empty: standard output
    std::string folder;    ///< for several files
    bool several = false;

    bool IsStandardOutput() const { return !several && file.empty(); }
};

struct DrawingTarget : Destination {
    const ExportForm *form = nullptr;
};

/// What a verb that draws can do.
struct DrawingVerb {
    const char *name;
    VueExport vue;          ///< the view that it draws
    std::size_t files_each; ///< FILEs of one drawing
    const char *wants;      ///< "a FILE", for the message of wrong usage
};

/// Extensions for reading: "dxf, pdf, svg".
std::string Listed(const std::vector<std::string> &extensions);

/// The options --output, --to and --airfoils of a verb with forms of these extensions.
std::vector<OptionRule> TargetOptions(const DrawingVerb &verb,
                                      const std::vector<std::string> &extensions);

/// The same for drawings, and the options that tell the verb's forms of one extension
/// apart.
std::vector<OptionRule> DrawingOptions(const DrawingVerb &verb);

/// Where what is made of `files` goes. Throws UsageError for words that name no place or no form.
Destination DestinationOf(const Arguments &arguments, const DrawingVerb &verb,
                          const std::vector<std::string> &files);
/// The same for drawings, with their form. Throws UsageError also for one that the verb doesn't
/// have.
DrawingTarget TargetOf(const Arguments &arguments, const DrawingVerb &verb,
                       const std::vector<std::string> &files);

/// The bytes of a file, nothing when anything was refused; `complete` says whether nothing was
/// amiss on the way. Others may be made at the same time.
using Make = std::function<std::optional<std::string>(
    const FileRun &run, const std::vector<std::string> &files, bool &complete)>;

/// Makes a file of all `files`, as many as the verb wants at a time, writes each whole, and gives
/// the exit status. In a folder it is named after the first of its files. A refused one stops no
/// other one, and leaves nothing under its name. Several are made at a time where that may be.
int DeliverAll(const Arguments &arguments, const DrawingVerb &verb,
               const std::vector<std::string> &files, const Destination &destination,
               const Make &make);

/// What a print run asks about its page, of somebody who has typed the page's options and can't be
/// asked: several sheets must have their overlap.
ReglagePage PageAsTyped(Programme &programme);

/// Exports the current view of a program that has shown nothing yet. A PDF of several sheets must
/// have its overlap, for which nobody can be asked. Nothing when it was refused; a line told why.
/// Failures as the form's.
std::optional<std::string> Dessine(Programme &programme, const DrawingTarget &target);

/// Makes the bytes of a drawing, as Make does.
using Draw = std::function<std::optional<std::string>(
    const FileRun &run, const DrawingTarget &target, const std::vector<std::string> &files,
    bool &complete)>;

/// Draws all `files` and gives the exit status; see DeliverAll.
int DrawAll(const Arguments &arguments, const DrawingVerb &verb,
            const std::vector<std::string> &files, const Draw &draw);

} // namespace loftwing
