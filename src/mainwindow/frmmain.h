/// The main window.
#pragma once

#include "mainwindow/main_frame.h"
#include "mainwindow/measure_tool.h"
#include "mainwindow/rib_touch.h"

#include <optional>
#include <string>

namespace loftwing {

struct EntreeExport;
struct ReglagePage;

/// The commands of the main window and its redraws. What a command does stands in the units
/// programme/*_steps; its handler here only opens windows and asks those.
class frmmain : public MainFrame {
    Q_OBJECT

  public:
    explicit frmmain(Programme &programme);

    /// Opens a file that was not chosen in a dialog: from the command line, a drop, or the recent
    /// files.
    void OuvreFichier(const std::string &path);

    /// Offers the unsaved work of windows that ended badly; says whether one of their ribs is now
    /// in this window.
    bool OffreSecours();

    void affiche() override;
    void RetraceVues() override;
    void afficheCompare() override;
    void afficheEpcourb() override;
    void afficheCouple() override;
    void affclear() override;
    void ViewReset() override;
    void ActiveCommandes() override;
    void DesactiveCommandes() override;
    void ActiveCommandesVue() override;
    void ActiveCommandesCouple() override;
    void ActiveCommandesVides() override;
    std::optional<ProfilChoisi> ChoisitProfil(const std::string &titre) override;

    // Commands, named after their controls.
    void mnu_fileprofilopen_Click();
    void mnu_filesuivant_Click();
    void mnu_fileprecedent_Click();
    void mnu_fileimport_Click();
    void mnu_fileopen_Click();
    void mnu_filesaveas_Click() override;
    void mnu_filedecoupe_Click();
    void mnu_filepage_Click();
    void mnu_fileprinterconfig_Click();
    void mnu_fileprint_Click() override;
    void mnu_fileexit_Click();
    void mnuFileMRU_Click(const std::string &path) override;
    void mnuRibMRU_Click(const std::string &path);
    void mnu_editannule_Click();
    void mnu_editretablit_Click();
    void mnu_affinver_Click();
    void mnu_affdefaut_Click();
    void mnu_affcouleur_Click();
    void mnu_affhautba_Click();
    void mnu_affhautbf_Click();
    void mnu_affepr_Click();
    void mnu_affInstxt_Click();
    void mnu_affTrac_Click();
    void mnu_afflignRef_Click();
    void mnu_afffeuilles_Click();
    void mnu_affpiece_Click();
    void mnu_affessai_Click();
    void mnu_affmesure_Click();
    void mnu_affzoomplus_Click();
    void mnu_affzoommoins_Click();
    void mnu_affzoom100_Click();
    void mnu_affajuste_Click();
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
    void mnu_outilpanneau_Click();
    void mnu_outilaile_Click();
    /// The panel's window, with the panel of a panel file where one is given.
    void MontrePanneau(const std::string &path);
    void MontreAile(const std::string &path);
    void mnu_outilAngle_Click();
    void mnu_outilInclinaison_Click();
    void mnu_calc_Click();
    void mnu_helpsearch_Click();
    void mnu_helpVersion_Click();
    void mnu_helpConfig_Click();
    void mnu_helpAbout_Click();
    void cmdba_Click();

  protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

  private:
    void Form_Load();
    void Form_Resize();
    void Combo1_Click(int row);
    void ZoomSur(int steps, const PicturePlace &place);
    /// Draws at the zoom of a row of the list, scrolled so.
    void MetZoom(int row, const ScrollMove &bars);
    void ConnectPicture();
    RibTouch::Demandes DemandesDuDoigt();
    /// The windows of spars and holes, at a slot where one is given.
    void OuvreLongerons(std::optional<int> slot);
    void OuvreTrous(std::optional<int> slot);
    /// Opens the dialog of a part of the rib, a spar or hole at its slot.
    void OuvreSujet(const SujetTrace &sujet);
    void FinMesure();
    /// Lets the user set up the page; false when that is cancelled.
    bool RegleMiseEnPage();
    /// How a print run reaches that.
    ReglagePage ReglagePageIci();
    void Exporte(const EntreeExport &entree);

    RibTouch touche_;
    MeasureTool mesure_;
};

} // namespace loftwing
