/// What the windows of both kinds of rib sets have in common.
#pragma once

#include "programme/main_view.h"
#include "programme/qt_dialogue.h"
#include "utilities/rib_set.h"
#include "utilities/rib_set_files.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>
#include <functional>
#include <string>

namespace loftwing {

/// Two airfoils with their chords, the folder of the files, and the writing. Index 0 is the root
/// (major chord), 1 the tip. The window stays open for the next set; a failure while writing closes
/// it and clears the rib, and so does leaving it, which asks first.
class RibSetDialog : public Dialogue {
    Q_OBJECT

  public:
  protected:
    RibSetDialog(Programme &programme, MainView &view, const char *nom, int aide, QWidget *parent);

    MainView &view_;

    // The frames stand first, so that they outlive what stands in them: a frame that goes takes
    // along what it still holds.
    std::array<QGroupBox, 2> Frame1;
    std::array<QLabel, 2> Label1; ///< captions of the airfoils
    std::array<QLineEdit, 2> txtprofil;
    std::array<QPushButton, 2> cmdouvrir;
    std::array<QLabel, 2> Label2; ///< captions of the chords
    std::array<NumericField, 2> txtcorde;
    QLabel Lblsav;
    QLineEdit txtdefprofevol;
    QPushButton cmdrechercheevol;
    QPushButton cmdcalcul;

    /// The grid of an end's frame: airfoil and chord in rows 0 and 1, columns 0 to 2.
    QGridLayout &Grille(std::size_t end);
    /// A row of such a grid: caption, field and what stands behind it, which may be missing.
    static void Rangee(QGridLayout &grid, int row, QLabel &caption, QLineEdit &field,
                       QWidget *behind);
    /// Room for a length in a field.
    static void Elargit(QLineEdit &field);
    /// Folder and buttons, below what stands in `rows`.
    void PoseBas(QVBoxLayout &rows);
    void PoseMotsCommuns();
    std::string Profil(std::size_t end) const {
        return S(At(txtprofil, static_cast<long>(end)).text());
    }

    /// Shows a refusal and leads to its field; whether there is one.
    bool Refuse(const std::optional<RefusJeu> &refus);
    /// Runs what may fail; a failure is told in the words of the sets. True when it went well.
    bool Essaie(const std::function<void()> &action);
    /// Writes the files of a set, shows `resultat` and writes the summary. Files of another set are
    /// replaced only after a question.
    void Ecrit(const JeuDeNervures &jeu, const std::string &resultat);
    /// The folder of the files, ending in a separator.
    const std::string &Dossier();
    const std::array<ProfilJeu, 2> &Profils() const { return profils_; }

    virtual void Calcule() = 0;
    /// The field that a refusal leads to; null for none.
    virtual QLineEdit *Champ(ChampJeu champ) = 0;

  private:
    std::array<ProfilJeu, 2> profils_;
    FichiersEcrits ecrits_; ///< by this window: a set may be made anew without a question

    void NommeCommuns();
    void cmdouvrir_Click(int index);
    void cmdrechercheevol_Click();
    void cmdcalcul_Click();
    void cmdannuler_Click() override;

    bool ConfirmeRemplacement(const JeuDeNervures &jeu) const;
    void EcritFichiers(const JeuDeNervures &jeu);
    bool EssaieEcrire(const std::function<void()> &action);
};

} // namespace loftwing
