/// What dialogs ask of the main window.
#pragma once

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
    /// Clears everything: rib, view and commands.
    virtual void affclear() = 0;
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
