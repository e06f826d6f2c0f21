/// The unit, the values that a new rib starts from, and the airfoil folders.
#pragma once

#include "persist/default_entry.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// A click on a unit brings that unit, its page settings and its usual values into the fields;
/// Cancel puts unit and page back. OK asks before another unit clears the rib; after a No all is
/// as the dialog found it and the dialog stays. A rib that is there takes other values only after a
/// question; they are saved either way.
class frmdefaut : public Dialogue {
    Q_OBJECT

  public:
    frmdefaut(Programme &programme, MainView &view, QWidget *parent);

  private:
    MainView &view_;
    const std::string unite_avant_;
    const MiseEnPage page_avant_;
    bool unite_acceptee_ = false; ///< Yes was said to the unit that is chosen now

    // The frames stand first, so that they outlive what stands in them: a frame that goes takes
    // along what it still holds.
    QGroupBox Frame5;
    QGroupBox Frame3;
    QGroupBox Frame4;
    std::array<QLabel, kChampsDefaut> Label2; ///< captions of the fields
    std::array<NumericField, kChampsDefaut> txtdef;
    std::array<QLabel, kChampsDefaut> Label1; ///< their units
    QRadioButton inches;
    QRadioButton mm;
    NumericField txtdefprof;
    QPushButton cmdrecherche;
    NumericField txtdefprofevol;
    QPushButton cmdrechercheevol;

    // frmdefaut_build.cpp
    void NameAll();
    void LayOut();
    void LayOutFolder(QGroupBox &frame, NumericField &field, QPushButton &browse);

    void ConnectAll();
    void PoseTextes();
    void Form_Load();
    void mm_Click();
    void inches_Click();
    void cmdok_Click() override;
    void cmdannuler_Click() override;
    void cmdrecherche_Click();
    void cmdrechercheevol_Click();

    void MontreLongueurs(const TextesDefaut &texts);
    void MontreFichier();
    void MontreUnite();
    void PrendUnite(std::string_view Unite);
    void RemetUnite();
    void RemetReglages();
    bool AccepteUnite();
    bool ConfirmeUnite();
    bool UniteGardee() const;
    bool PrendDansLaNervure();
    void Enregistre();
    void ChoisitDossier(NumericField &field, std::string &folder);
};

} // namespace loftwing
