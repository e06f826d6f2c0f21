/// The coordinate editor.
#pragma once

#include "programme/qt_dialogue.h"
#include "utilities/coord.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>
#include <vector>

namespace loftwing {

/// Points typed by hand become lines of text, and these an airfoil file. Stays open beside the main
/// window; nothing of it has to do with the rib. Closing it asks when lines aren't saved;
/// close() tells whether the user let it.
class frmCoord : public Dialogue {
    Q_OBJECT

  public:
    frmCoord(Programme &programme, QWidget *parent);

    /// Words in the language in force.
    void PoseTextes();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    static constexpr int kNom = 0;
    static constexpr int kTitreFichier = 1;
    static constexpr int kDiviseur = 2;

    std::int16_t NbLignes = 0; ///< of the list at the last entry, load or clearing
    bool Sauve = false;        ///< the list is as it was saved or loaded

    std::array<QLabel, 3> Label1; ///< of the boxes below
    std::array<NumericField, 3> txt;
    QLabel Label2;
    NumericField txtinX;
    NumericField txtinY;
    QListWidget Liste_Valeurs;
    QPushButton cmdentre;
    QPushButton cmdajouter;
    QPushButton cmdeffaceligne;
    QPushButton cmdeffacetout;
    QPushButton cmdouvrir;
    QPushButton cmdsave;

    // frmCoord_build.cpp
    void NameAll();
    void LayOut();
    QGridLayout *LayOutEntries();
    QVBoxLayout *LayOutCommands();

    void ConnectAll();
    void Form_Load();
    bool Form_Unload();
    void txt_Change();
    void cmdentre_Click();
    void cmdajouter_Click();
    void cmdeffaceligne_Click();
    void cmdeffacetout_Click();
    void cmdouvrir_Click();
    void cmdsave_Click();
    void cmdannuler_Click() override;
    void Liste_Valeurs_DblClick();

    void Entre();
    void Ajoute();
    void Modifie();
    void Ouvre();
    bool ConfirmePerte(const std::string &question);
    void Enregistre();
    void VideSaisie();
    std::vector<int> LignesChoisies() const;
    std::string LigneChoisie() const;
    bool APerdre() const { return !Sauve && NbLignes != 0; }
    std::string Texte(int index) const { return S(At(txt, index).text()); }
};

} // namespace loftwing
