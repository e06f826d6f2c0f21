#include "mainwindow/beside.h"

#include "platform/qt_text.h"
#include "utilities/frmCoord.h"
#include "utilities/frmdiedre.h"
#include "utilities/frmnervure.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace loftwing {

namespace {

/// What closes with the rib.
struct DialogueFerme {
    std::string_view nom;
    /// Works on the rib that is shown. The calculators work on none, but their lengths are in the
    /// unit that was in force when they were opened, and a clear may bring another.
    bool sur_nervure;
};
constexpr std::array<DialogueFerme, 9> kDialogues = {{{"frmInput", true},
                                                      {"frmlongeron", true},
                                                      {"frmtrou", true},
                                                      {"frmTalon", true},
                                                      {"frmbacarre", true},
                                                      {"frmbloc", true},
                                                      {"frmInstxt", true},
                                                      {"frmnervure", false},
                                                      {"frmdiedre", false}}};

const DialogueFerme *EntreeDe(const QDialog &dialog) {
    const auto *entry =
        std::find_if(kDialogues.begin(), kDialogues.end(),
                     [&](const DialogueFerme &each) { return each.nom == S(dialog.objectName()); });
    return entry == kDialogues.end() ? nullptr : entry;
}

template <class Window>
void Reword(const QWidget &parent) {
    for (Window *open : parent.findChildren<Window *>()) {
        open->PoseTextes();
    }
}

} // namespace

void AppliqueLangueOutils(const QWidget &main_window) {
    Reword<frmnervure>(main_window);
    Reword<frmdiedre>(main_window);
    Reword<frmCoord>(main_window);
}

bool DialogueNervureOuvert(const QWidget &main_window) {
    const QList<QDialog *> dialogs = main_window.findChildren<QDialog *>();
    return std::any_of(dialogs.begin(), dialogs.end(), [](const QDialog *dialog) {
        const DialogueFerme *entry = EntreeDe(*dialog);
        return entry != nullptr && entry->sur_nervure && dialog->isVisible();
    });
}

void FermeDialogues(const QWidget &main_window) {
    for (QDialog *dialog : main_window.findChildren<QDialog *>()) {
        if (EntreeDe(*dialog) != nullptr) {
            // done() and not close(): nothing of the rib may be asked for or put back any more.
            dialog->done(QDialog::Rejected);
        }
    }
}

bool FermeCoordonnees(const QWidget &main_window) {
    const QList<frmCoord *> editors = main_window.findChildren<frmCoord *>();
    return std::all_of(editors.begin(), editors.end(),
                       [](frmCoord *editor) { return !editor->isVisible() || editor->close(); });
}

} // namespace loftwing
