/// What the main window is made of: bars, picture, status bar and the windows that it opens to ask.
#pragma once

#include "mainwindow/command_bars.h"
#include "mainwindow/garde_secours.h"
#include "mainwindow/picture_area.h"
#include "mainwindow/piece_overlay.h"
#include "mainwindow/sheet_overlay.h"
#include "mainwindow/status_panels.h"
#include "mainwindow/toolkit_words.h"
#include "output/screen_plot.h"
#include "programme/command_view.h"
#include "programme/notices.h"
#include "programme/programme.h"

#include <QMainWindow>

#include <functional>
#include <optional>
#include <string>

namespace loftwing {

/// The main window without its commands. It moves what is asked of it to its parts and back;
/// frmmain puts the commands and the redraws to it.
class MainFrame : public QMainWindow, public CommandView {
    Q_OBJECT

  public:
    MainFrame(Programme &programme, CommandBars::Demandes demandes);

    void Titre(const std::string &caption) override;
    void Panneau(int number, const std::string &text) override;
    void AfficheUnite() override;
    void AfficheCorde() override;
    void AfficheFichiersRecents() override;
    void AppliqueLangue() override;
    void MontreCoches() override;
    void MontreAvis() override;
    void VideImage() override;
    void RemetZoom() override;
    void FermeDialogues() override;
    bool Saisit(const std::string &ModeSaisie) override;
    bool ChoisitFichier(const ChoixProfil &choix) override;
    std::optional<std::string> SaisitEpCourb() override;
    std::optional<ImportVoulu> MontreImport(const std::string &path,
                                            const ImportedAirfoil &airfoil) override;

  protected:
    Programme &programme_;
    CommandBars commands_;
    PictureArea *picture_;
    SheetOverlay sheets_;
    PieceOverlay piece_;
    GardeSecours secours_;
    bool dessine_ = false; ///< something has been drawn since the start

    /// Runs what an event asks for: no failure may pass into the toolkit's event loop. What has
    /// become of the rib when all is over is a step.
    void Garde(const std::string &label, const std::function<void()> &action);
    /// Draws on a new recording and shows that; `tell` then puts it into words. After a failure,
    /// which has been reported, the rib is cleared. Nothing happens while a redraw is under way.
    void Dessine(const std::function<Affichage(const Trace &)> &draw,
                 const std::function<void()> &tell);
    /// Shows a dialog of this window beside the drawing, where the screen has room. The commands
    /// mean this one by the name.
    int ShowModal(QDialog &dialog) const;
    /// Takes in what is on the screen as a step to go back to, where it isn't what it was, and
    /// makes the commands show which step they would take.
    void NotePas();
    /// Takes a check of the view menu into the rib.
    void PrendCoche(const char *name);

  private:
    void ConnectNotices();
    void MontrePas();

    ToolkitWords toolkit_words_;
    StatusPanels panels_;
    Notices notices_;
    int commandes_ = 0;    ///< that run at present, one inside the other
    bool drawing_ = false; ///< a redraw is under way, perhaps waiting in a box
};

} // namespace loftwing
