/// The window that makes a wing panel's ribs from its root and its tip rib.
#pragma once

#include "mainwindow/piece_picture.h"
#include "mainwindow/plan_picture.h"
#include "mainwindow/plan_tabs.h"
#include "platform/qt_numeric_field.h"
#include "programme/panel_drawings.h"
#include "programme/panel_file.h"
#include "programme/qt_dialogue.h"
#include "programme/qt_panel_work.h"
#include "utilities/rib_set_files.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTimer>

#include <array>
#include <map>
#include <string>
#include <vector>

namespace loftwing {

/// Two ribs with all they carry, a number of ribs between them, and the panel is computed as it is
/// typed: its plan, its ribs with what there is to say of them, the piece of one of them, and the
/// elements with the ribs in which they stand. Nothing is asked and nothing written before the
/// buttons for the files. The rib of the main window is not touched.
class frmpanneau : public Dialogue {
    Q_OBJECT

  public:
    frmpanneau(Programme &programme, QWidget *parent);

    /// Takes the panel of a panel file in place of what is there. False, and nothing is lost, where
    /// it or one of its ribs was refused, which was told.
    bool Ouvre(const std::string &path);
    /// Whether closing would lose what no panel file has.
    bool Modifie() const { return choisis_[0] && choisis_[1] && Etat() != etat_; }

  protected:
    void cmdannuler_Click() override;

  private:
    static constexpr int kBouts = 2;
    static constexpr int kChamps = 7;
    static constexpr int kNombre = 0;
    static constexpr int kEpaisseur = 1;
    static constexpr int kPremier = 2;
    static constexpr int kLongueur = 3;
    static constexpr int kRecul = 4;
    static constexpr int kDiedre = 5;
    static constexpr int kDensite = 6;
    static constexpr int kListes = 2; ///< of gaps, of thicknesses
    static constexpr int kVariable = 1;

    /// A range as typed: from and to, either may be empty.
    using PorteeTapee = std::array<std::string, 2>;

    Panneau panneau_;
    std::array<bool, kBouts> choisis_{}; ///< which ends are there
    DemandePanneau demande_;
    ReglageAile reglage_;
    PanneauFait fait_;
    std::vector<AvisPanneau> refus_; ///< of what was typed, then of the panel
    std::vector<AvisPanneau> avis_;
    std::vector<ElementPanneau> elements_; ///< a row of their table each
    /// Kept also for elements that the ends of the moment don't have.
    std::map<ElementPanneau, PorteeTapee> portees_;
    std::string dossier_;
    FichiersEcritsIci ecrits_; ///< by this window, so that making them again asks nothing
    QLineEdit *fautif_ = nullptr;
    double longueur_ = 0; ///< of the panel in mm, 0 without one
    int inter_ = 0;       ///< intermediate ribs as typed
    bool tapes_ = false;  ///< all that was typed is what its fields want
    int rang_ = 0;        ///< of the rib that was chosen last
    SaisiePlanches planches_;
    FeuillesPieces feuilles_;       ///< laid of the panel as it is
    std::string chemin_;            ///< of the panel file, empty without one
    std::vector<std::string> etat_; ///< of what that has, or of the empty window
    PanneauEnCours travail_;

    QLabel Label5;
    QLineEdit txtfichier;
    QPushButton cmdouvrir;
    QPushButton cmdenregistrer;
    std::array<QLabel, kBouts> Label1;
    std::array<QLineEdit, kBouts> txtbout;
    std::array<QPushButton, kBouts> cmdchoisir;
    std::array<QPushButton, kBouts> cmdfenetre;
    std::array<QRadioButton, 2> optecart; ///< even, variable
    QStackedWidget Ecarts;
    std::array<QLabel, kListes> Label4;
    std::array<QLineEdit, kListes> txtliste;
    std::array<QLabel, kChamps> Label2;
    std::array<NumericField, kChamps> txt;
    std::array<QLabel, 2> Label3; ///< units
    std::array<QLabel, 3> Label6; ///< units of sweep, dihedral and density
    QLabel lblecart;
    PlanTabs Onglets; // before what stands in it
    PlanPicture Plan;
    QTableWidget Nervures;
    QTableWidget Portees;
    PiecePicture Picture1;
    QLabel lblavis;
    QLabel lblenregistre;
    QProgressBar Avancement;
    QPushButton cmdnervures;
    QPushButton cmdplanches;
    QPushButton cmddessins;
    QPushButton cmdimprimer;
    QPushButton cmdaile;
    QTimer attente_; ///< until what is typed rests

    // frmpanneau_build.cpp
    void NameAll();
    QLayout *LayOutEnds();
    QLayout *LayOutChoice();
    void LayOutSpacing();
    QLayout *LayOutPlace();
    void LayOut();
    void PrepareTables();
    void Connect();

    // frmpanneau.cpp
    void PoseTextes();
    void PoseBulles();
    void cmdchoisir_Click(int index);
    void cmdfenetre_Click(int index);
    void PrendBout(int index, const PartiesRib &bout);
    void Refait();
    void PrendFait(const PanneauFait &fait);
    void Montre();
    void MontreEnregistre(LngKey mots, const std::string &path);

    // frmpanneau_sorties.cpp
    bool Acheve();
    bool Pret();
    bool ConfirmeAvis(const std::vector<AvisPanneau> &avis) const;
    bool ConfirmeRemplacement() const;
    void EcritFichiers();
    std::string NomDesSorties() const;
    void cmdnervures_Click();
    void cmdplanches_Click();
    void cmddessins_Click();
    void cmdimprimer_Click();
    DessinsPanneau Dessins(const std::string &nom);

    // frmpanneau_fichier.cpp
    std::vector<std::string> Etat() const;
    bool ConfirmePerte();
    FileQuestion Question() const;
    FichierPanneau EnFichier() const;
    std::string EmpecheFichier() const;
    void Prend(const FichierPanneau &fichier);
    void Retient(const std::string &path);
    void cmdouvrir_Click();
    void cmdenregistrer_Click();

    // frmpanneau_plan.cpp
    void PoseTextesPlan();
    void PrendPlace();
    bool SansPoids() const;
    void MontreAile();
    void cmdaile_Click();

    // frmpanneau_typed.cpp
    bool Variable() const { return optecart[kVariable].isChecked(); }
    void PrendChamps();
    void PrendRegulier();
    void PrendVariable();
    std::vector<std::string> PrendListe(int liste, double &somme);
    double PrendLongueur(int champ);
    void PrendPremier();
    void PrendPortees();
    void Refuse(const QLabel &caption, QLineEdit &field, const std::string &why);
    bool Compose();
    std::vector<std::string> EnLignes(const std::vector<AvisPanneau> &all) const;

    // frmpanneau_tables.cpp
    void MontreElements();
    void MontreNervures();
    void MontreRang(int row, const NervureFaite &nervure);
    void MontrePiece();
    void MontrePlan();
    void MontreEcart();
    void MontreAvis();
    std::string AvisDe(int numero) const;
    void Portees_Change(const QTableWidgetItem &item);
};

} // namespace loftwing
