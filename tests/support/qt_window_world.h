/// A program with a window, in a folder of its own.
#pragma once

#include "mainwindow/frmmain.h"
#include "support/qt_modal.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <memory>
#include <string>

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
    template <class Widget>
    Widget *Find(const std::string &name) const {
        return window->findChild<Widget *>(QString::fromStdString(name));
    }
    std::string Panel(int number) const;
    /// Drops a file on the window and lets it open.
    void Drop(const std::string &path);
};

} // namespace loftwing
