/// A program with a window, in a folder of its own.
#pragma once

#include "mainwindow/frmmain.h"
#include "support/qt_modal.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace loftwing {

class WindowWorld {
  public:
    /// With a settings file that says `unit` ("mm" or "in") and the language `language`.
    explicit WindowWorld(const std::string &language = "English", const std::string &unit = "mm");

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme;
    std::unique_ptr<frmmain> window;

    /// Makes and shows the main window.
    frmmain &Open();
    /// A sample airfoil of the bundled library.
    static std::string Sample(const std::string &name);

    QAction *Action(const std::string &name) const;
    /// The main window as its user sees it.
    Seen Main() const { return Seen(*window); }
    template <class Widget>
    Widget *Find(const std::string &name) const {
        return &Main().Find<Widget>(name);
    }
    /// Runs a command whose dialogs are used by these, one after the other.
    void Run(const char *command, const std::vector<User> &users) const;
    std::string Panel(int number) const;
    /// Drops a file on the window and lets it open; `opened` says whether it has.
    void Drop(const std::string &path, const std::function<bool()> &opened);
    /// Resizes the main window as the window system does, and lets it come to rest.
    void Resize(QSize size) const;
};

} // namespace loftwing
