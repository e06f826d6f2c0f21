/// Menu bar, tool bar, push buttons and zoom list of the main window.
#pragma once

#include "lang/LngIni.h"
#include "mainwindow/access_keys.h"
#include "mainwindow/commands.h"
#include "persist/settings.h"

#include <QComboBox>
#include <QMainWindow>
#include <QPushButton>
#include <QToolBar>

#include <array>
#include <functional>
#include <map>
#include <string>

namespace loftwing {

/// Every control of the tables of commands, made for one window and found by its name. Knows how
/// controls look and whether they live, not what they do.
class CommandBars {
  public:
    /// What the controls ask for.
    struct Demandes {
        std::function<void(const char *name, CommandHandler handler)> execute; ///< never null
        std::function<void(const EntreeExport &entree)> exporte;
        std::function<void(const std::string &path)> fichier; ///< a recent airfoil
        std::function<void(const std::string &path)> rib;     ///< a recent rib components file
        std::function<void(int row)> zoom;                    ///< a row of the zoom list
    };

    CommandBars(QMainWindow &window, Demandes demandes);
    CommandBars(const CommandBars &) = delete;
    CommandBars &operator=(const CommandBars &) = delete;

    /// A menu or menu entry.
    QAction &Entree(const std::string &name) const { return *actions_.at(name); }
    /// Opens a menu of the menu bar elsewhere.
    void OuvreMenu(const std::string &name, const QPoint &place);
    QComboBox &ListeZoom() const { return *Combo1_; }
    QToolBar &Barre() const { return *Toolbar1_; }

    /// Enables and disables what changes with a state.
    void Met(EtatCommandes state);
    /// Makes the commands that go back and forth say which step they take; without one they die.
    void MontrePas(const LngIni &language, const std::string &annulable,
                   const std::string &retablissable);
    /// Makes the checks of the view menu show what the rib has.
    void MontreCoches(const RibModel &rib);
    void MontreFichiersRecents(const FichiersRecents &profils, const FichiersRecents &ribs);
    /// Gives every control its words.
    void PoseTextes(const LngIni &language);

  private:
    QMainWindow &window_;
    Demandes demandes_;
    std::map<std::string, QAction *> actions_; ///< menus and entries by control name
    std::map<std::string, QMenu *> menus_;
    using EntreesRecentes = std::array<QAction *, kFichiersRecents>;
    EntreesRecentes mnuFileMRU_{};
    EntreesRecentes mnuRibMRU_{};
    QAction *mnuFileMRUTrait_ = nullptr;
    QToolBar *Toolbar1_ = nullptr;
    std::map<int, QAction *> tools_; ///< buttons of Toolbar1 by index
    std::map<std::string, QPushButton *> buttons_;
    QComboBox *Combo1_ = nullptr;
    AccessKeys touches_;

    /// A control that runs nothing may be clicked too.
    void Execute(const char *name, CommandHandler handler);
    void BuildMenus();
    void AddCommand(const Command &command);
    void BuildRecentFiles();
    /// Entries of a menu, the last ones or before another, that open what they name.
    EntreesRecentes AddRecents(const char *name, QMenu &menu, QAction *before,
                               const std::function<void(const std::string &path)> &opens);
    void BuildToolbar();
    void AddTool(const ToolButton &button);
    void BuildZoomList();
    void AddButton(const PushButton &button);
    void DonneTouches();
};

} // namespace loftwing
