/// The set of ribs in equal steps.
#pragma once

#include "utilities/qt_rib_set_dialog.h"
#include "utilities/ribevol.h"

namespace loftwing {

/// Computes and writes all ribs of a tapered panel with equal gaps.
class frmribevol : public RibSetDialog {
    Q_OBJECT

  public:
    frmribevol(Programme &programme, MainView &view, QWidget *parent);

  protected:
    void Calcule() override;
    QLineEdit *Champ(ChampJeu champ) override;

  private:
    QGroupBox Frame3;
    std::array<QLabel, 2> Label4; ///< units of the chords
    QLabel Label3;
    NumericField txtnervI;

    // frmribevol_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
};

} // namespace loftwing
