/// The set of ribs with variable spacing.
#pragma once

#include "features/qt_numbered_list.h"
#include "utilities/qt_rib_set_dialog.h"
#include "utilities/ribevol2.h"

namespace loftwing {

/// Computes and writes the ribs of a tapered panel whose gaps and thicknesses are given one by one.
/// A click on the number of a gap shows it, Apply takes it; all must have been applied before the
/// set can be computed. rib.jeu holds thicknesses, gaps and their number, which the caller sets.
class frmribevol2 : public RibSetDialog {
    Q_OBJECT

  public:
    frmribevol2(Programme &programme, MainView &view, QWidget *parent);

  protected:
    void Calcule() override;
    QLineEdit *Champ(ChampJeu champ) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    JeuNervures &jeu_;
    Ribevol2 set_;

    QLabel LblEprNervureCMax;
    NumericField txtEpR0; ///< "txtEpR(0)"
    QLabel LblEprNervureCmin;
    NumericField txtEpR13; ///< "txtEpR(13)"
    QGroupBox FrameNervInterm;
    QLabel Label5;
    std::array<ClickLabel, kNervureMin> LblNoNervInterm; ///< gap k at k - 1
    QGroupBox FrameDimensions;
    std::array<QLabel, 2> Label3; ///< the ribs before and behind the gap
    QLabel LblEprNervure;
    NumericField TextEprNevure;
    QLabel lblstep;
    NumericField TextEcartNevure;
    QLabel LblLongTot;
    QLabel LblLongTotAffich;

    // frmribevol2_build.cpp
    void NameAll();
    void LayOut();
    void LayOutEnds(QVBoxLayout &rows);
    void LayOutGaps();
    void LayOutDimensions();

    void PoseTextes();
    void Form_Load();
    void ConnectAll();
    void LblNoNervInterm_Click(int k);
    void CmdApply_Click() override;

    int DernierEcart() const { return jeu_.NbNervInter + 1; }
    bool Valide();
    void MontreEcart();
    void Applique();
    void MarqueEcart();
    void Bleuit(QLabel &label);
};

} // namespace loftwing
