/// The window in which the holes of a rib are set up.
#pragma once

#include "features/qt_slots_dialog.h"
#include "features/trou.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// Table of up to twelve holes. Apply draws the rib; what is stored stays when the window is
/// closed.
class frmtrou : public SlotsDialog {
    Q_OBJECT

  public:
    frmtrou(Programme &programme, MainView &view, QWidget *parent);

  private:
    QGroupBox Frame3;  ///< kind
    ClickLabel Label4; ///< the words of Chkcentr
    QLabel Label5;     ///< distance from the reference line
    std::array<NumericField, 3> Text1;
    NumericField Text2;
    QCheckBox Chkcentr;
    std::array<QRadioButton, kGenresTrou.size()> OptTrouRec;

    // frmtrou_build.cpp
    void NameAll();
    void LayOut();

    void PoseTextes();
    void Chkcentr_Click();
    void OptTrouRec_Click(int index);

    bool Stocke(int slot, const Cible &cible) override;
    bool Controle(int slot, const Cible &cible) override;
    std::uint8_t &Compte(RibModel &rib) const override { return rib.NbTrou; }
    void Affiche(int slot) override { AfficheTrou(slot); }
    void AfficheOptions(int slot) override;
    bool EstFini(int slot) const override;
    void Retire(int slot) override;
    std::string TexteRefus(Regle regle, const std::string &valeur) const override;
    std::string Remarques(int slot) const override;
    std::function<void()> Retour(int slot) override;

    void AfficheTrou(int slot);
    void PoseGenre(std::uint8_t kind);
    ChampsTrou Champs() const;
};

} // namespace loftwing
