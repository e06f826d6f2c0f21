/// The correction of the printer.
#pragma once

#include "output/correction.h"
#include "programme/qt_dialogue.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace loftwing {

/// Takes what the arms of a printed check line measure. OK makes the correction that follows from
/// them and from the one they were printed with, and writes it to the settings file; Cancel leaves
/// the one in force.
class frmcorrection : public Dialogue {
    Q_OBJECT

  public:
    frmcorrection(Programme &programme, QWidget *parent);

  private:
    CorrectionImprimante avant_; ///< what the measures are held against

    // The frame stands first, so that it outlives what stands in it.
    QGroupBox Frame1;
    QLabel Label1;                            ///< what there is to do
    std::array<QLabel, kChampsMesure> Label2; ///< captions of the fields
    std::array<NumericField, kChampsMesure> Text1;
    std::array<QLabel, kChampsMesure> Label3; ///< their units
    QLabel Label4;                            ///< the correction in force
    QPushButton cmdaucune;

    // frmcorrection_build.cpp
    void NameAll();
    void LayOut();

    void PoseTextes();
    void Montre();
    void cmdok_Click() override;
    void cmdaucune_Click();
};

} // namespace loftwing
