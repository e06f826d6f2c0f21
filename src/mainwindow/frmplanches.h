/// The window that lays the pieces of a wing panel on sheets of stock.
#pragma once

#include "mainwindow/piece_picture.h"
#include "platform/qt_numeric_field.h"
#include "programme/liste_pieces.h"
#include "programme/panel_sheets.h"
#include "programme/qt_dialogue.h"
#include "programme/qt_panel_work.h"
#include "utilities/rib_set_files.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Shows the sheets as they will be cut, laid anew when what is typed rests, and saves them; the
/// window stays open for another form. Pieces are made and laid beside the event loop, so that
/// nothing waits for them but the button that saves.
class frmplanches : public Dialogue {
    Q_OBJECT

  public:
    /// `premier` is the number of the first rib, `nom` what files are proposed to be called.
    frmplanches(Programme &programme, const Panneau &panneau, int premier,
                const SaisiePlanches &choix, std::string nom, QWidget *parent);

    /// What was typed and chosen, whichever way the window was left.
    SaisiePlanches Choix() const;
    /// The sheets that were laid; none where that wasn't done or what was typed has changed since.
    FeuillesPieces Feuilles() const {
        return attente_.isActive() || !voeu_ ? FeuillesPieces{}
                                             : FeuillesPieces{planches_, voeu_->opposees ? 2 : 1};
    }
    /// Asks before sheets of a panel with warnings are written.
    void DemandeAvant(std::function<bool(const PanneauFait &fait)> confirme) {
        confirme_ = std::move(confirme);
    }

  private:
    static constexpr int kChamps = 4;
    static constexpr int kCases = 4;

    const Panneau panneau_;
    const int premier_;
    const std::string nom_;
    SaisiePlanches choix_; ///< for the form, which has no control
    std::function<bool(const PanneauFait &fait)> confirme_;
    std::optional<VoeuPlanches> voeu_; ///< nothing where what was typed is none
    std::optional<VoeuPlanches> fait_pour_;
    PanneauFait fait_;
    Imbrication planches_;
    FichiersEcritsIci ecrits_;
    PanneauEnCours panneau_en_cours_;
    ImbricationEnCours imbrication_;

    PiecePicture Picture1;
    QListWidget Planches;
    QLabel Label1;
    QLineEdit txtformats;
    std::array<QLabel, kChamps> Label2;
    std::array<NumericField, kChamps> txt;
    std::array<QLabel, kChamps> Label3; ///< units
    std::array<QCheckBox, kCases> chk;
    QProgressBar Avancement;
    QPushButton cmdarreter;
    QLabel lblavis;
    QLabel lblenregistre;
    QPushButton cmdenregistrer;
    QTimer attente_; ///< until what is typed rests

    // frmplanches_build.cpp
    void NameAll();
    void LayOut();
    void Connect();

    // frmplanches.cpp
    void PoseTextes();
    void PoseBulles();
    void MontreChoix();
    void Change();
    void Refait();
    void Refuse(const std::string &why);
    void PrendPanneau(const PanneauFait &fait);
    void Impose();
    void PrendPlanches(const ImbricationEnCours::Resultat &resultat);
    void MontrePlanches();
    void MontrePlanche(int row);
    void MontreTravail(bool working);
    void MontreAvis(const std::string &text);
    void cmdarreter_Click();
    void cmdenregistrer_Click();
};

} // namespace loftwing
