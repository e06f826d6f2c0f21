/// Where the drawings of a command go, and in which form.
#pragma once

#include "app/arguments.h"
#include "programme/qt_export_forms.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

struct DrawingTarget {
    const ExportForm *form = nullptr;
    std::string file;   ///< empty: standard output
    std::string folder; ///< for several files
    bool several = false;
};

/// What a verb that draws can do.
struct DrawingVerb {
    const char *name;
    VueExport vue;          ///< the view that it draws
    std::size_t files_each; ///< FILEs of one drawing
    const char *wants;      ///< "a FILE", for the message of wrong usage
};

/// The options --output, --to and --airfoils, and those that tell the verb's forms of one extension
/// apart.
std::vector<OptionRule> DrawingOptions(const DrawingVerb &verb);

/// Where the drawings of `files` go. Throws UsageError for words that name no place, no form, or
/// one that the verb doesn't have.
DrawingTarget TargetOf(const Arguments &arguments, const DrawingVerb &verb,
                       const std::vector<std::string> &files);

/// Writes a drawing whole; in a folder it is named after `file`. Failure 75 when it is refused.
/// False when standard output is.
bool Deliver(const DrawingTarget &target, const std::string &file, const std::string &bytes);

/// Exports the current view of a program that has shown nothing yet. A PDF of several sheets must
/// have its overlap, for which nobody can be asked. Nothing when it was refused; a line told why.
/// Failures as the form's.
std::optional<std::string> Dessine(Programme &programme, const DrawingTarget &target);

/// The bytes of a drawing, nothing when anything was refused; `complete` says whether nothing was
/// amiss on the way.
using Draw = std::function<std::optional<std::string>(
    const DrawingTarget &target, const std::vector<std::string> &files, bool &complete)>;

/// Draws all `files`, as many as the verb wants at a time, and gives the exit status. A refused
/// drawing stops no other one, and leaves nothing under its name.
int DrawAll(const Arguments &arguments, const DrawingVerb &verb,
            const std::vector<std::string> &files, const Draw &draw);

} // namespace loftwing
