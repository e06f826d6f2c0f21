/// The window in which the spars of a rib are set up.
#pragma once

#include "features/longeron.h"
#include "features/qt_slots_dialog.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// Table of up to twelve spars. Apply draws the rib; what is stored stays when the window is
/// closed.
class frmlongeron : public SlotsDialog {
    Q_OBJECT

  public:
    frmlongeron(Programme &programme, MainView &view, QWidget *parent);

  private:
    QGroupBox Frame3; ///< kind
    QGroupBox Frame4; ///< upper surface
    QGroupBox Frame5; ///< lower surface
    QLabel Label4;    ///< distance
    std::array<NumericField, 4> Text1;
    std::array<QRadioButton, 4> OptLong;
    std::array<QRadioButton, 3> Opte;
    std::array<QRadioButton, 3> Opti;

    // frmlongeron_build.cpp
    void NameAll();
    void LayOut();
    void LayOutOptions();

    void PoseTextes();
    void OptLong_Click(int index);

    bool Stocke(int slot, const Cible &cible) override;
    bool Controle(int slot, const Cible &cible) override;
    std::uint8_t &Compte(RibModel &rib) const override { return rib.NbLongeron; }
    void Affiche(int slot) override { AfficheLongeron(slot); }
    void AfficheOptions(int slot) override;
    bool EstFini(int slot) const override;
    void Retire(int slot) override;
    std::string TexteRefus(Regle regle, const std::string &valeur) const override;
    std::string Remarques(int slot) const override;
    std::function<void()> Retour(int slot) override;

    void AfficheLongeron(int slot);
    void PoseGenre(std::uint8_t kind);
    ChampsLongeron Champs() const;
};

} // namespace loftwing
