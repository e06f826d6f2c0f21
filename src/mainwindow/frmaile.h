/// The window that puts panels together to a wing.
#pragma once

#include "mainwindow/plan_tabs.h"
#include "platform/qt_numeric_field.h"
#include "programme/qt_dialogue.h"
#include "programme/wing_steps.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Panel files from the root to the tip; each begins where the last one ends. Their ribs are made
/// when they are added, so that moving them takes no time. The panels' files aren't touched.
class frmaile : public Dialogue {
    Q_OBJECT

  public:
    frmaile(Programme &programme, QWidget *parent);

    /// Takes the wing of a wing file in place of what is there. A panel that can't be read stands
    /// in the list all the same, so that it can be taken out. False, and nothing is lost, where the
    /// file was refused, which was told.
    bool Ouvre(const std::string &path);
    /// The wing begins with this panel; that is no change that would be asked about.
    void CommencePar(const std::string &path);
    /// Whether closing would lose what no wing file has.
    bool Modifie() const { return Etat() != etat_; }

  protected:
    void cmdannuler_Click() override;

  private:
    static constexpr int kAjoute = 0;
    static constexpr int kRetire = 1;
    static constexpr int kMonte = 2;
    static constexpr int kDescend = 3;
    static constexpr int kBoutons = 4;

    /// A panel as it was read, with what its place in the wing wants.
    struct PanneauPose {
        PanneauDeFichier lu;
        ReglageAile reglage;
        std::vector<std::string> refus; ///< each with the file's name
        std::vector<std::string> avis;

        std::string Nom() const; ///< its file, without the folder
    };

    std::vector<PanneauPose> panneaux_;
    int premier_ = 1;
    std::string refus_;             ///< why there is no wing; empty where there is one
    std::vector<std::string> avis_; ///< warnings of all panels
    std::string chemin_;            ///< of the wing file, empty without one
    std::vector<std::string> etat_; ///< of what that has, or of the empty window

    QLabel Label1;
    QLineEdit txtfichier;
    QPushButton cmdouvrir;
    QPushButton cmdenregistrer;
    QLabel Label2;
    NumericField txtpremier;
    QTableWidget Panneaux;
    std::array<QPushButton, kBoutons> cmdliste;
    PlanTabs Onglets;
    QLabel lblavis;
    QLabel lblenregistre;
    QTimer attente_; ///< until what is typed rests

    // frmaile_build.cpp
    void NameAll();
    void PoseTextes();
    void LayOut();
    QLayout *LayOutList();
    void Connect();

    // frmaile.cpp
    PanneauPose LitTel(const std::string &path, bool &dit);
    std::optional<PanneauPose> Lit(const std::string &path);
    int Choisi() const;
    void cmdajouter_Click();
    void cmdretirer_Click();
    void Deplace(int pas);
    void Refait();
    void Compose();
    void PrendPremier();
    void Pose(Aile &wing, const PanneauPose &panel, int first);
    void MontreListe(int row);
    void MontreBoutons();
    void MontreAvis();
    bool Pret();

    // frmaile_fichier.cpp
    std::vector<std::string> Etat() const;
    bool ConfirmePerte();
    FileQuestion Question() const;
    FileQuestion QuestionPanneau() const;
    void Retient(const std::string &path);
    std::string NomDesSorties() const;
    void cmdouvrir_Click();
    void cmdenregistrer_Click();
};

} // namespace loftwing
