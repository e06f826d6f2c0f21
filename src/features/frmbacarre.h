/// The V-notch square at the leading edge.
#pragma once

#include "features/carre_bord.h"
#include "features/qt_carre_sketch.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QLabel>

#include <array>

namespace loftwing {

/// Side and place of the square. Apply and OK put it on the rib, Cancel only leaves.
class frmbacarre : public Dialogue {
    Q_OBJECT

  public:
    frmbacarre(Programme &programme, MainView &view, QWidget *parent);

    EssaiDuRib Essai() override;

  private:
    MainView &view_;

    std::array<QLabel, kChampsCarre> Label1;
    std::array<NumericField, kChampsCarre> infotxt;
    CarreSketch Picture1;

    // frmbacarre_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void CmdApply_Click() override;
    void cmdok_Click() override;

    bool Applique();
};

} // namespace loftwing
