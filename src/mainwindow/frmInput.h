/// The window in which the dimensions of a rib are typed one at a time.
#pragma once

#include "programme/qt_dialogue.h"

#include <QLabel>

#include <functional>
#include <string_view>

namespace loftwing {

struct ModeEntree;

/// One text box for the value that `ModeSaisie` names: "corde", "epcof", "ba", "bf" or "rep". OK
/// stores it with all that follows from it, Cancel leaves the rib as the window found it;
/// rib.Annule tells the command afterwards whether the user cancelled. Made with another mode it
/// throws failure 5.
class frmInput : public Dialogue {
    Q_OBJECT

  public:
    frmInput(Programme &programme, std::string_view ModeSaisie, QWidget *parent);

    EssaiDuRib Essai() override;

  private:
    const ModeEntree &mode_;
    const std::function<void()> retour_; ///< to the rib that the window found

    QLabel msgtxt;
    NumericField infotxt;

    // frmInput_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void cmdok_Click() override;
    void cmdannuler_Click() override;
};

} // namespace loftwing
