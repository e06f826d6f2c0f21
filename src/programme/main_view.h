/// What dialogs ask of the main window.
#pragma once

#include "core/airfoil_picker.h"

#include <optional>
#include <string>

namespace loftwing {

/// The main window as its dialogs see it.
class MainView {
  public:
    MainView() = default;
    MainView(const MainView &) = delete;
    MainView &operator=(const MainView &) = delete;
    virtual ~MainView() = default;

    /// Redraws the rib; does nothing while a special view is up.
    virtual void affiche() = 0;
    /// Redraws the special view that is up, if any.
    virtual void RetraceVues() = 0;
    /// Shows the airfoil with its new thickness and camber in the rib's place.
    virtual void afficheEpcourb() = 0;
    /// Prints the view that is up, as the user's command, which asks before.
    virtual void mnu_fileprint_Click() = 0;
    /// Saves the rib in a file that the user names, as the user's command.
    virtual void mnu_filesaveas_Click() = 0;
    /// Clears everything: rib, view and commands.
    virtual void affclear() = 0;
    /// The same as the user's command, which asks before changes are lost.
    virtual void mnu_affclear_Click() = 0;
    /// Lets the user pick an airfoil for a tool; `titre` is the title of the picker and its boxes.
    /// The rib stays as it was. Nothing when the picker is cancelled.
    virtual std::optional<ProfilChoisi> ChoisitProfil(const std::string &titre) = 0;
    /// Closes the dialogs that may stay open beside the main window.
    virtual void FermeDialogues() = 0;
    /// Sets all texts of the main window from the language file.
    virtual void AppliqueLangue() = 0;
    /// Shows the unit in force.
    virtual void AfficheUnite() = 0;
    /// Shows the chord alone, for a rib that has no drawing. The next redraw replaces it.
    virtual void AfficheCorde() = 0;
};

} // namespace loftwing
