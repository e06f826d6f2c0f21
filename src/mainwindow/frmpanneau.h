/// The window that makes a wing panel's ribs from its root and its tip rib.
#pragma once

#include "mainwindow/piece_picture.h"
#include "mainwindow/plan_picture.h"
#include "platform/qt_numeric_field.h"
#include "programme/panel_steps.h"
#include "programme/qt_dialogue.h"
#include "utilities/rib_set_files.h"

#include <QLabel>
#include <QPushButton>
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
/// button for the files. The rib of the main window is not touched.
class frmpanneau : public Dialogue {
    Q_OBJECT

  public:
    frmpanneau(Programme &programme, QWidget *parent);

  private:
    static constexpr int kBouts = 2;
    static constexpr int kChamps = 4;
    static constexpr int kNombre = 0;
    static constexpr int kEpaisseur = 1;
    static constexpr int kPremier = 2;
    static constexpr int kLongueur = 3;

    /// A range as typed: from and to, either may be empty.
    using PorteeTapee = std::array<std::string, 2>;

    Panneau panneau_;
    std::array<bool, kBouts> choisis_{}; ///< which ends are there
    DemandePanneau demande_;
    PanneauFait fait_;
    std::vector<std::string> refus_; ///< of what was typed, then of the panel
    std::vector<std::string> avis_;
    std::vector<ElementPanneau> elements_; ///< a row of their table each
    /// Kept also for elements that the ends of the moment don't have.
    std::map<ElementPanneau, PorteeTapee> portees_;
    std::string dossier_;
    FichiersEcrits ecrits_; ///< by this window, so that making them again asks nothing
    NumericField *fautif_ = nullptr;
    double longueur_ = 0; ///< of the panel in mm, 0 without one
    int inter_ = 0;       ///< intermediate ribs as typed
    int rang_ = 0;        ///< of the rib that was chosen last

    std::array<QLabel, kBouts> Label1;
    std::array<QLineEdit, kBouts> txtbout;
    std::array<QPushButton, kBouts> cmdchoisir;
    std::array<QPushButton, kBouts> cmdfenetre;
    std::array<QLabel, kChamps> Label2;
    std::array<NumericField, kChamps> txt;
    std::array<QLabel, 2> Label3; ///< units
    QLabel lblecart;
    PlanPicture Plan;
    QTableWidget Nervures;
    QTableWidget Portees;
    PiecePicture Picture1;
    QLabel lblavis;
    QLabel lblenregistre;
    QPushButton cmdnervures;
    QTimer attente_; ///< until what is typed rests

    // frmpanneau_build.cpp
    void NameAll();
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
    void cmdnervures_Click();
    bool ConfirmeAvis() const;
    bool ConfirmeRemplacement() const;
    void EcritFichiers();

    // frmpanneau_typed.cpp
    void PrendChamps();
    double PrendLongueur(int champ);
    void PrendPremier();
    void PrendPortees();
    void Refuse(int champ, const std::string &why);
    void Compose();
    std::string EnMots(std::string refusal) const;

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
