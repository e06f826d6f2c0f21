/// The rib inclined by the dihedral.
#pragma once

#include "programme/main_view.h"
#include "programme/qt_dialogue.h"
#include "utilities/inclinaison.h"
#include "utilities/qt_angle_sketch.h"

#include <QLabel>
#include <QPushButton>

namespace loftwing {

/// Writes the airfoil of a rib that stands inclined. The rib of the main window isn't touched; only
/// a failure while writing clears it. The window stays open for the next rib.
class frminclinaison : public Dialogue {
    Q_OBJECT

  public:
    frminclinaison(Programme &programme, MainView &view, QWidget *parent);

  private:
    MainView &view_;
    ProfilChoisi profil_;

    QLabel Label1; ///< caption of the airfoil
    QLineEdit txtprofil;
    QPushButton cmdouvrir;
    QLabel Label2; ///< caption of the angle
    NumericField Text1;
    QLabel Label3; ///< the two ribs of the picture
    QLabel Label4;
    InclineSketch Picture1;

    // frminclinaison_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void cmdouvrir_Click();
    void cmdok_Click() override;

    std::optional<float> Angle();
    void Enregistre(float AngleDiedre);
};

} // namespace loftwing
