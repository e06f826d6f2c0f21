/// The commands of the main window as a table. Menu bar, tool bar, pop-up, enabling rules and
/// language all walk it.
#pragma once

#include "lang/LngIni.h"
#include "programme/command_states.h"

#include <optional>
#include <vector>

namespace loftwing {

class frmmain;
struct EntreeExport;

/// What a control runs; null: no action.
using CommandHandler = void (frmmain::*)();

/// One command. Controls that are no menu entry (tool buttons, push buttons) have no menu.
struct Command {
    const char *name; ///< of the control
    const char *menu; ///< name of the menu it stands in; null for none or the menu bar
    LngKey text;      ///< caption
    const char *keys; ///< shortcuts, parted by "; ", the shown one first; may be null
    unsigned groups;  ///< CommandGroup bits
    bool checkable;
    bool submenu;   ///< a menu of its own rather than an entry
    bool separator; ///< a line before it
    CommandHandler handler;
    const EntreeExport *exporte = nullptr; ///< of an entry that writes the drawing to a file
    /// Of an entry that does nothing and is never alive: its tool tip, which says where the thing
    /// is found.
    std::optional<LngKey> ailleurs = std::nullopt;
    /// The tool tip of an entry that has something to add to its words.
    std::optional<LngKey> conseil = std::nullopt;
};

/// All menus and menu entries, in the order in which they stand.
const std::vector<Command> &MenuCommands();

/// The six push buttons over the tool bar.
struct PushButton {
    const char *name;
    LngKey text;
    LngKey tip;
    unsigned groups;
    CommandHandler handler;
};
const std::vector<PushButton> &PushButtons();

/// The buttons of the tool bar by index from 1. Separators and placeholders have no command.
struct ToolButton {
    int index;
    LngKey tip;
    unsigned groups;
    CommandHandler handler;
};
const std::vector<ToolButton> &ToolButtons();

} // namespace loftwing
