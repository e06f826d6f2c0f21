/// The windows that stand open beside the main one.
#pragma once

#include "platform/qt_place.h"
#include "programme/programme.h"

#include <QWidget>

namespace loftwing {

/// Shows a window that stays open beside the main one, off `clear` where the screen has room. There
/// is one of each kind: a second command brings it to the front.
template <class Window>
void ShowBeside(QWidget &parent, Programme &programme, const QRect &clear) {
    for (Window *open : parent.findChildren<Window *>()) {
        if (open->isVisible()) {
            open->setWindowState(open->windowState() & ~Qt::WindowMinimized);
            open->raise();
            open->activateWindow();
            return;
        }
    }
    auto *window = new Window(programme, &parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    PlaceDialog(*window, parent, clear);
    window->show();
}

/// Gives the tools that stay open the words of the language in force.
void AppliqueLangueOutils(const QWidget &main_window);

/// Whether a dialog is open that works on the rib that is shown.
bool DialogueNervureOuvert(const QWidget &main_window);
/// Closes the nine dialogs that close with the rib.
void FermeDialogues(const QWidget &main_window);
/// Closes the coordinate editor; false when the user stays there for lines that aren't saved.
bool FermeCoordonnees(const QWidget &main_window);

} // namespace loftwing
