/// The line of text on a rib: its words, its place and its size.
#pragma once

#include "features/inserted_text.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QComboBox>
#include <QLabel>

#include <array>

namespace loftwing {

/// Apply stores text and place and redraws; OK does so too, keeps the size in the settings file and
/// closes. A size counts as soon as it is chosen. Cancel takes back nothing that was applied.
class frmInstxt : public Dialogue {
    Q_OBJECT

  public:
    frmInstxt(Programme &programme, MainView &view, QWidget *parent);

    EssaiDuRib Essai() override;

  private:
    // The fields by their index.
    static constexpr int kTexte = 0;
    static constexpr int kPositionX = 1;
    static constexpr int kPositionY = 2;

    MainView &view_;
    float taille_avant_ = 0; ///< the size that Cancel puts back, points

    std::array<QLabel, 3> Label1; ///< before the fields of the same index
    std::array<NumericField, 3> infotxt;
    QLabel Label2;
    QComboBox ComboTaille;

    // frmInstxt_build.cpp
    void NameAll();
    void LayOut();

    void PoseTextes();
    void Form_Load();
    void CmdApply_Click() override;
    void cmdok_Click() override;
    void cmdannuler_Click() override;
    void ComboTaille_Click();

    TexteTape Tape() const;
    void Applique();
    void Redessine();
};

} // namespace loftwing
