/// The levelling heel.
#pragma once

#include "features/qt_talon_sketch.h"
#include "features/talon.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include <array>
#include <functional>

namespace loftwing {

/// Height, margins and washout of the heel. While the window is open neither heel nor template is
/// in use; margins, washout and side go into the rib as they are typed. Apply and OK put the heel
/// on the rib, Cancel gives back what the window found or last applied. rib.Annule tells afterwards
/// whether the user cancelled. After a refused Apply there is no way out but to correct it.
class frmTalon : public Dialogue {
    Q_OBJECT

  public:
    frmTalon(Programme &programme, MainView &view, QWidget *parent);

    EssaiDuRib Essai() override;

  private:
    MainView &view_;
    bool Echec = false;            ///< the last Apply was refused
    std::function<void()> retour_; ///< Cancel's way back to the rib as found or last applied

    QLabel LabelOpt;
    std::array<QRadioButton, 2> OptTalon;
    QLabel LabelHaut;
    QLabel LabelAvant; ///< caption of Label2 and Label3
    QLabel Label2;
    QLabel Label3;
    QLabel LabelBA;
    QLabel LabelBF;
    QLabel LabelLong;
    QLabel lbllongb;
    QLabel Label1;
    std::array<NumericField, kChampsTalon> txt;
    TalonSketch Picture1;

    // frmTalon_build.cpp
    void NameAll();
    void LayOut();
    void LayOutHeight(QGridLayout &grid);

    void PoseTextes();
    void PoseBulles();
    void Form_Load();
    void OptTalon_Click(int index);
    void txt_Change(int index);
    void CmdApply_Click() override;
    void cmdok_Click() override;
    void cmdannuler_Click() override;

    bool Applique();
    void Abandonne();
    void MontreMarges();
};

} // namespace loftwing
