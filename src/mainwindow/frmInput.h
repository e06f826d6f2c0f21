/// The window in which the dimensions of a rib are typed one at a time.
#pragma once

#include "platform/qt_form.h"
#include "programme/programme.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <string_view>

namespace loftwing {

struct ModeEntree;

/// One text box for the value that `ModeSaisie` names: "corde", "epcof", "ba", "bf" or "rep". OK
/// stores it with all that follows from it; rib.Annule tells the command afterwards whether the
/// user cancelled. Made with another mode it throws failure 5.
class frmInput : public QDialog {
    Q_OBJECT

  public:
    frmInput(Programme &programme, std::string_view ModeSaisie, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    const ModeEntree &mode_;

    QLabel msgtxt;
    NumericField infotxt;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void Form_Load();
    void cmdok_Click();
    void cmdannuler_Click();
};

} // namespace loftwing
