/// The splash window.
#pragma once

#include "mainwindow/rib_picture.h"
#include "programme/programme.h"

#include <QDialog>
#include <QLabel>
#include <QTimer>

namespace loftwing {

/// Shows the program's name and version in the middle of the screen on which the main window
/// appears, for that window may still move when it is there. It is shown
/// without waiting for it; it closes of itself, or when its image is clicked, and the mouse pointer
/// is normal from then on.
class frmSplash : public QDialog {
    Q_OBJECT

  public:
    frmSplash(Programme &programme, QWidget *parent);

    /// Closes it before its time.
    void Ferme();

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    Programme &programme_;
    RibPicture image;
    QLabel lbltitre;
    QLabel lblversion;
    QLabel lblpresentation;
    QTimer Timer1;

    // frmSplash_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
};

} // namespace loftwing
