/// The rib inclined by the dihedral.
#pragma once

#include "platform/qt_form.h"
#include "programme/main_view.h"
#include "programme/programme.h"
#include "utilities/inclinaison.h"
#include "utilities/qt_angle_sketch.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace loftwing {

/// Writes the airfoil of a rib that stands inclined. The rib of the main window isn't touched; only
/// a failure while writing clears it. The window stays open for the next rib.
class frminclinaison : public QDialog {
    Q_OBJECT

  public:
    frminclinaison(Programme &programme, MainView &view, QWidget *parent);

  private:
    Programme &programme_;
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
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void ConnectAll();

    void Form_Load();
    void cmdouvrir_Click();
    void cmdok_Click();
    void cmdannuler_Click();

    std::optional<float> Angle();
    void Enregistre(float AngleDiedre);
    std::string Titre() const { return S(windowTitle()); }
};

} // namespace loftwing
