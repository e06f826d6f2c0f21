/// The template for cutting foam.
#pragma once

#include "features/bloc.h"
#include "features/qt_bloc_sketch.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

#include <array>
#include <functional>

namespace loftwing {

/// Heights, ramps, trailing edge and washout of the template. While the window is open neither
/// template nor heel is in use; ramps, washout and tail go into the rib as they are typed. Apply
/// and OK put the template on the rib, Cancel gives back what the window found or last applied.
/// rib.Annule tells afterwards whether the user cancelled.
class frmbloc : public Dialogue {
    Q_OBJECT

  public:
    frmbloc(Programme &programme, MainView &view, QWidget *parent);

    EssaiDuRib Essai() override;

  private:
    MainView &view_;
    std::function<void()> retour_; ///< Cancel's way back to the rib as found or last applied

    std::array<QLabel, kChampsBloc> Label1;
    std::array<NumericField, kChampsBloc> txt;
    QLabel LabelPointHaut;
    QLabel lblpointhaut;
    QLabel LabelPointBas;
    QLabel lblpointbas;
    QLabel LabelLong;
    QLabel lbllongb;
    QLabel LabelQueue;
    std::array<QRadioButton, 2> Optquebf;
    BlocSketch Picture1;

    // frmbloc_build.cpp
    void NameAll();
    void LayOut();
    void LayOutMeasures(QGridLayout &grid);

    void PoseTextes();
    void PoseBulles();
    void Form_Load();
    void Optquebf_Click(int index);
    void txt_Change(int index);
    void CmdApply_Click() override;
    void cmdok_Click() override;
    void cmdannuler_Click() override;

    void Applique();
    void MontreLongueur();
    void MontreEsquisse();
};

} // namespace loftwing
