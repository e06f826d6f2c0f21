/// The line of text on a rib: its words, its place and its size.
#pragma once

#include "features/inserted_text.h"
#include "platform/qt_form.h"
#include "programme/main_view.h"
#include "programme/programme.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace loftwing {

/// Apply stores text and place and redraws; OK does so too, keeps the size in the settings file and
/// closes. A size counts as soon as it is chosen. Cancel takes back nothing that was applied.
class frmInstxt : public QDialog {
    Q_OBJECT

  public:
    frmInstxt(Programme &programme, MainView &view, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MainView &view_;
    float taille_avant_ = 0; ///< the size that Cancel puts back, points

    std::array<QLabel, 3> Label1; ///< before the fields of the same index
    std::array<NumericField, 3> infotxt;
    QLabel Label2;
    QComboBox ComboTaille;
    QPushButton CmdApply;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void ConnectAll();
    void PoseTextes();

    void Form_Load();
    void CmdApply_Click();
    void cmdok_Click();
    void cmdannuler_Click();
    void ComboTaille_Click();

    void Applique();
    void Redessine();
};

} // namespace loftwing
