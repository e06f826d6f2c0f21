/// The forms in which a drawing leaves the program: one table for the menu, the save boxes, the
/// command line and its help.
#pragma once

#include "programme/export.h"
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
    /// What broke the writing off; `bytes` is then how far it had come.
    std::optional<Failure> rupture;
};

/// The views of the main window, as bits.
enum VueExport : unsigned {
    kVueRib = 1U << 0U,
    kVueCompare = 1U << 1U,
    kVueEpCourb = 1U << 2U,
    kVueCouple = 1U << 3U,
    kToutesVues = kVueRib | kVueCompare | kVueEpCourb | kVueCouple
};

/// The menu entry by which the window writes a form. Forms of one entry share it, and its save box
/// offers them in turn.
struct EntreeExport {
    const char *controle;                       ///< of the entry
    LngKey texte;                               ///< its caption
    const char *etiquette;                      ///< label of its failures
    std::optional<LngKey> titre = std::nullopt; ///< of the save box; the form's filter without
    /// Where the settings file remembers the folder; null for a box that opens where it was last.
    const char *dossier = nullptr;
    /// Where it remembers the form that was used last; null for an entry of one form.
    const char *forme = nullptr;
    /// Tool tip named by the warning of a foreign decimal separator, where that is given.
    std::optional<LngKey> separateur = std::nullopt;
};

struct ExportForm {
    std::string extension;      ///< without its point
    std::string mots;           ///< of the filter, in front of the words that follow
    std::optional<LngKey> cle;  ///< more words of it
    unsigned vues;              ///< VueExport bits: which views have this form
    bool needs_toolkit;         ///< drawn with the toolkit's fonts, so its application must run
    const EntreeExport *entree; ///< null: a command of its own, or none, writes it
    /// Makes the bytes of a file.
    std::function<Exported(Programme &, const ReglagePage &)> Export;
    // What tells forms of one extension apart on the command line: "--dxf plain". Empty for the
    // usual form.
    const char *option = nullptr;
    const char *variant = "";
    const char *option_help = nullptr;
};

const std::vector<ExportForm> &ExportForms();
/// The form of an extension, case ignored; null for one that there isn't.
const ExportForm *FindExportForm(const std::string &extension, const std::string &variant = {});

/// The menu entries in their order, each once.
std::vector<const EntreeExport *> EntreesExport();
/// The forms of an entry, at least one.
std::vector<const ExportForm *> FormesDe(const EntreeExport &entree);
/// All views that one of the entry's forms shows.
unsigned VuesDe(const EntreeExport &entree);

/// The row of a save box: "PDF (*.pdf)".
std::string FiltreDe(const ExportForm &form, const Messages &messages);

} // namespace loftwing
