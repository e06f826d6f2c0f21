/// The V-notch square at the leading edge.
#pragma once

#include "features/carre_bord.h"
#include "features/qt_carre_sketch.h"
#include "platform/qt_form.h"
#include "programme/main_view.h"
#include "programme/programme.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace loftwing {

/// Side and place of the square. Apply and OK put it on the rib, Cancel only leaves.
class frmbacarre : public QDialog {
    Q_OBJECT

  public:
    frmbacarre(Programme &programme, MainView &view, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MainView &view_;

    std::array<QLabel, kChampsCarre> Label1;
    std::array<NumericField, kChampsCarre> infotxt;
    CarreSketch Picture1;
    QPushButton CmdApply;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();

    void Form_Load();
    void CmdApply_Click();
    void cmdok_Click();
    void cmdannuler_Click();

    bool Applique();
};

} // namespace loftwing
