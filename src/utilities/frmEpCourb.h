/// Thickness and camber.
#pragma once

#include "programme/main_view.h"
#include "programme/qt_dialogue.h"
#include "utilities/EpCourb.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <string>

namespace loftwing {

/// Changes thickness and camber of the rib's airfoil: Apply shows the new section over the old one
/// in the main window, Save as writes it as an airfoil of its own. OK, which saves first where that
/// wasn't done, ends in that file being opened by whoever showed the dialog. Cancel clears the rib.
class frmEpCourb : public Dialogue {
    Q_OBJECT

  public:
    frmEpCourb(Programme &programme, MainView &view, QWidget *parent);

    /// Path of the file that was saved.
    const std::string &Fichier() const { return FichierEpCourb; }

    EssaiDuRib Essai() override;

  private:
    MainView &view_;
    ChampsEpCourb appliques_;  ///< what the new airfoil was computed from
    bool EpCourbSauve = false; ///< the new airfoil went to a file since the dialog was opened
    std::string FichierEpCourb;

    std::array<QLabel, 2> Label3; ///< heads: original, new airfoil
    QLabel Label1;
    QLineEdit txtEpROr;
    NumericField txtEpR;
    QLabel Label4;
    QLabel Label5;
    QLabel Label2;
    QLineEdit txtCourbureOr;
    NumericField txtCourbure;
    QPushButton cmdsave;
    QPushButton cmdprintEC;

    // frmEpCourb_build.cpp
    void NameAll();
    void LayOut();

    void PoseTextes();
    void Form_Load();
    ChampsEpCourb Champs() const;
    void Avertit(const std::string &text) const;
    void Applique();
    bool AppliqueSaisie();
    void Sauve();
    void Ecrit(const std::string &path);
    void CmdApply_Click() override;
    void cmdsave_Click();
    void cmdprintEC_Click();
    void cmdok_Click() override;
    void cmdannuler_Click() override;
};

} // namespace loftwing
