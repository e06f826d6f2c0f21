/// What commands ask of the main window.
#pragma once

#include "programme/main_view.h"

#include <optional>
#include <string>

namespace loftwing {

struct ImportedAirfoil;
struct ImportVoulu;

/// What the user is asked for in the airfoil picker.
struct ChoixProfil {
    std::string titre;       ///< of the picker and its boxes
    bool laisse_rib = false; ///< a file that can't be read leaves the rib; it is cleared otherwise
    bool case_memoire = false; ///< the check box that sets rib.MemProfil is shown
    std::string memoire = {};  ///< words on the airfoil that is kept, may be empty
};

/// The main window as the order of a command's steps sees it: what is shown, what lives, what is
/// asked. Which step comes when, and what becomes of the rib, is not its business.
class CommandView : public MainView {
  public:
    /// The window's caption.
    virtual void Titre(const std::string &caption) = 0;
    /// A panel of the status bar, from 1.
    virtual void Panneau(int number, const std::string &text) = 0;
    virtual void AfficheFichiersRecents() = 0;

    /// Commands for a rib that was loaded; the dialogs of the one before are closed.
    virtual void ActiveCommandes() = 0;
    /// What saves or prints a rib dies.
    virtual void DesactiveCommandes() = 0;
    /// Commands for a view in the rib's place, and for the simple plot among these.
    virtual void ActiveCommandesVue() = 0;
    virtual void ActiveCommandesCouple() = 0;
    /// Commands where everything was cleared.
    virtual void ActiveCommandesVides() = 0;
    /// Makes the checks of the view menu show what the rib has.
    virtual void MontreCoches() = 0;

    /// Makes the notices above the picture those of the rib as it is now. Redraws do so themselves.
    virtual void MontreAvis() = 0;

    /// Takes the rib out of special views and scrolls back.
    virtual void ViewReset() = 0;
    /// Empties the picture.
    virtual void VideImage() = 0;
    /// Makes the zoom list show 100 %.
    virtual void RemetZoom() = 0;
    /// Redraw the special views; each does nothing where it has nothing to show.
    virtual void afficheCompare() = 0;
    virtual void afficheCouple() = 0;

    /// Asks for one value of the rib ("corde"); false when it was cancelled.
    virtual bool Saisit(const std::string &ModeSaisie) = 0;
    /// Lets the user pick an airfoil into the rib; false when it was cancelled.
    virtual bool ChoisitFichier(const ChoixProfil &choix) = 0;
    /// Lets the user change thickness and camber; the new airfoil's file, or nothing when it was
    /// cancelled.
    virtual std::optional<std::string> SaisitEpCourb() = 0;
    /// Shows what the import of a file made; what the user wants to be opened, or nothing when it
    /// was cancelled.
    virtual std::optional<ImportVoulu> MontreImport(const std::string &path,
                                                    const ImportedAirfoil &airfoil) = 0;
    /// Opens a file, failures told. One that isn't there is passed over.
    virtual void mnuFileMRU_Click(const std::string &path) = 0;
};

} // namespace loftwing
