/// The main window.
#pragma once

#include "core/contour.h"
#include "mainwindow/command_bars.h"
#include "mainwindow/picture_area.h"
#include "mainwindow/status_panels.h"
#include "mainwindow/toolkit_words.h"
#include "output/screen_plot.h"
#include "programme/main_view.h"
#include "programme/programme.h"

#include <QMainWindow>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

struct EntreeExport;

/// Menu bar, tool bar with six buttons and the zoom list, the picture with its scroll bars and the
/// status bar. What a command does in depth is in the unit that it calls.
class frmmain : public QMainWindow, public MainView {
    Q_OBJECT

  public:
    explicit frmmain(Programme &programme);

    /// Opens an airfoil that was not chosen in the picker: from the command line, a drop, or the
    /// recent files. Also a rib components file, before which changes are asked for.
    void OuvreFichier(const std::string &path);

    void affiche() override;
    void RetraceVues() override;
    void afficheCompare();
    void afficheEpcourb() override;
    void afficheCouple();
    void affclear() override;
    std::optional<ProfilChoisi> ChoisitProfil(const std::string &titre) override;
    void FermeDialogues() override;
    void AppliqueLangue() override;
    void AfficheUnite() override;
    void AfficheCorde() override;

    // Commands, named after their controls.
    void mnu_fileprofilopen_Click();
    void mnu_fileopen_Click();
    void mnu_filesaveas_Click();
    void mnu_filepage_Click();
    void mnu_fileprinterconfig_Click();
    void mnu_fileprint_Click() override;
    void mnu_fileexit_Click();
    void mnuFileMRU_Click(const std::string &path);
    void mnu_affinver_Click();
    void mnu_affdefaut_Click();
    void mnu_affcouleur_Click();
    void mnu_affhautba_Click();
    void mnu_affhautbf_Click();
    void mnu_affepr_Click();
    void mnu_affInstxt_Click();
    void mnu_affTrac_Click();
    void mnu_afflignRef_Click();
    void mnu_affclear_Click() override;
    void mnu_affLang_Click();
    void mnu_profilcorde_Click();
    void mnu_profilepcoffrage_Click();
    void mnu_profilbaD_Click();
    void mnu_profilbaC_Click();
    void mnu_profillongeron_Click();
    void mnu_profiltrou_Click();
    void mnu_profilbf_Click();
    void mnu_profilTalon_Click();
    void mnu_paramrep_Click();
    void mnu_parambloc_Click();
    void mnu_OutilCompare_Click();
    void mnu_outilEpCourb_Click();
    void mnu_Outilcoupl_Click();
    void mnu_outilnervinter_Click();
    void mnu_OutlilDiedre_Click();
    void mnu_Outilcoord_Click();
    void mnu_outilevolut_Click();
    void mnu_outilevolut2_Click();
    void mnu_outilAngle_Click();
    void mnu_outilInclinaison_Click();
    void mnu_calc_Click();
    void mnu_helpsearch_Click();
    void mnu_helpAbout_Click();
    void cmdba_Click();

  protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

  private:
    /// What a comparison that is called off gives back.
    struct VueAvant {
        bool ModeCompare;
        bool ModeCouple;
        std::function<void()> retour; ///< the rib's dimensions
    };

    Programme &programme_;
    ToolkitWords toolkit_words_;
    CommandBars commands_;
    PictureArea *picture_;
    StatusPanels panels_;
    bool drawing_ = false; ///< a redraw is under way, perhaps waiting in a box

    // frmmain.cpp
    void Form_Load();
    void Execute(const char *name, CommandHandler handler);
    /// Runs what an event asks for: no failure may pass into the toolkit's event loop.
    void Garde(const std::string &label, const std::function<void()> &action);
    /// Takes a check of the view menu into the rib.
    void PrendCoche(const char *name);
    void ActiveCommandes();
    void DesactiveCommandes();
    void ActiveCommandesVue();
    void ViewReset();
    /// Whether to go on where changes could be lost.
    bool ConfirmePerte(LngKey text, LngKey title);
    void ClearRib();
    void LitEtReprend(const std::string &path);
    void RepriseProfil();
    void RecalculProfil();
    void AfficheFichiersRecents();
    /// Asks for one value; true unless it was cancelled.
    bool Saisit(const std::string &ModeSaisie);
    /// Lets the user set up the page; false when that is cancelled.
    bool RegleMiseEnPage();
    bool QuestionFin();

    // frmmain_tools.cpp
    /// Clears the rib for a set of ribs; false when the user keeps it.
    bool FaitPlaceAuJeu();
    /// The number of intermediate ribs; 0 when the user gives up.
    int DemandeNombre();

    // frmmain_files.cpp
    /// Opens a rib components file with the airfoil that it names.
    void newLfw(const std::string &path);
    void EnregistreComposants();
    void Exporte(const EntreeExport &entree);

    // frmmain_view.cpp
    void ConnectPicture();
    /// Draws on a new recording and shows that. False when there is nothing new to be seen; after a
    /// failure, which has been reported, the rib is cleared.
    bool Dessine(const std::function<Affichage(const Trace &)> &draw);
    void ZoomSur(int steps);
    void Combo1_Click(int row);
    void Form_Resize();

    // frmmain_views.cpp
    /// The chord and airfoil 1 of a comparison; false when it ends here.
    bool DemandeProfil1(const VueAvant &before);
    void DemandeProfil2(std::optional<double> haut1);
};

} // namespace loftwing
