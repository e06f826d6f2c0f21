/// The unit, the values that a new rib starts from, and the airfoil folders.
#pragma once

#include "persist/default_entry.h"
#include "platform/qt_form.h"
#include "programme/main_view.h"
#include "programme/programme.h"

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// A click on a unit brings that unit, its page settings and its usual values into the fields;
/// Cancel puts back the unit alone. OK asks before another unit clears the rib; after a No all is
/// as the dialog found it and the dialog stays.
class frmdefaut : public QDialog {
    Q_OBJECT

  public:
    frmdefaut(Programme &programme, MainView &view, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MainView &view_;
    const std::string unite_avant_;
    const MiseEnPage page_avant_;
    bool unite_acceptee_ = false; ///< Yes was said to the unit that is chosen now

    // The frames go last, since what stands in them is theirs.
    QGroupBox Frame5;
    QGroupBox Frame3;
    QGroupBox Frame4;
    std::array<QLabel, kChampsDefaut> Label2; ///< captions of the fields
    std::array<NumericField, kChampsDefaut> txtdef;
    std::array<QLabel, kChampsDefaut> Label1; ///< their units
    QRadioButton inches;
    QRadioButton mm;
    NumericField txtdefprof;
    QPushButton cmdrecherche;
    NumericField txtdefprofevol;
    QPushButton cmdrechercheevol;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void LayOutFolder(QGroupBox &frame, NumericField &field, QPushButton &browse);
    void ConnectAll();
    void PoseTextes();

    void Form_Load();
    void mm_Click();
    void inches_Click();
    void cmdok_Click();
    void cmdannuler_Click();
    void cmdrecherche_Click();
    void cmdrechercheevol_Click();

    void MontreLongueurs(const TextesDefaut &texts);
    void MontreFichier();
    void MontreUnite();
    void PrendUnite(std::string_view Unite);
    void RemetUnite();
    bool AccepteUnite();
    bool UniteGardee() const;
    void Enregistre();
    void ChoisitDossier(NumericField &field, std::string &folder);
    TextesDefaut TextesTapes() const;
};

} // namespace loftwing
