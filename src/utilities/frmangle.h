/// The oblique rib.
#pragma once

#include "programme/main_view.h"
#include "programme/qt_dialogue.h"
#include "utilities/angle.h"
#include "utilities/qt_angle_sketch.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// Computes one chord of a rib at an angle from the other and writes the rib's airfoil. The rib of
/// the main window isn't touched; only a failure while writing clears it. The window stays open for
/// the next rib.
class frmangle : public Dialogue {
    Q_OBJECT

  public:
    frmangle(Programme &programme, MainView &view, QWidget *parent);

  private:
    MainView &view_;
    NervureOblique oblique_;
    ProfilChoisi profil_;

    std::array<QRadioButton, 2> Option1;
    std::array<QLabel, kChampsOblique + 1> Label1; ///< captions of the fields and of the airfoil
    std::array<NumericField, kChampsOblique> Text1;
    QLineEdit txtprofil;
    QPushButton cmdouvrir;
    std::array<QLabel, 2> Label2; ///< leading and trailing edge of the picture
    ObliqueSketch Picture1;

    // frmangle_build.cpp
    void NameAll();
    void LayOut();

    void PoseTextes();
    void Form_Load();
    void Option1_Click(int index);
    void cmdouvrir_Click();
    void cmdok_Click() override;

    /// Computes and shows; false when something was refused.
    bool Calcule();
    void Enregistre();
};

} // namespace loftwing
