/// The forms in which a drawing leaves the program: one table for the save boxes, the command line
/// and its help.
#pragma once

#include "programme/programme.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// What an export came to.
struct Exported {
    std::optional<std::string> bytes; ///< nothing when it was refused; a box told why
    bool failed = false;              ///< by a plot's failure: the window clears the rib
};

struct ExportForm {
    std::string extension;   ///< without its point
    std::string variant;     ///< tells forms of one extension apart; empty for the usual one
    std::string filter_text; ///< "PDF (*.pdf)"
    bool needs_toolkit;      ///< drawn with the toolkit's fonts, so its application must run
    /// Makes the bytes of a file. `set_up_page` is called where a print run asks for a page; it
    /// sets rib.Annule to stop.
    std::function<Exported(Programme &, const std::function<void()> &set_up_page)> Export;
};

const std::vector<ExportForm> &ExportForms();
/// The form of an extension, case ignored; null for one that there isn't.
const ExportForm *FindExportForm(const std::string &extension, const std::string &variant = {});

} // namespace loftwing
