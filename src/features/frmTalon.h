/// The levelling heel.
#pragma once

#include "features/qt_talon_sketch.h"
#include "features/talon.h"
#include "platform/qt_form.h"
#include "programme/main_view.h"
#include "programme/programme.h"

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// Height, margins and washout of the heel. Margins, washout and side go into the rib while the
/// user types; Apply and OK put the heel on the rib. rib.Annule tells afterwards whether the user
/// cancelled. After a refused Apply there is no way out but to correct it.
class frmTalon : public QDialog {
    Q_OBJECT

  public:
    frmTalon(Programme &programme, MainView &view, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MainView &view_;
    bool FormeChargee = false;
    bool EnCours = false; ///< a handler is at work, perhaps waiting in a box
    bool Echec = false;   ///< the last Apply was refused
    Talon talon_avant_;   ///< what Cancel puts back: the heel as loaded or last applied
    float vrillage_avant_ = 0;

    QLabel LabelOpt;
    std::array<QRadioButton, 2> OptTalon;
    QLabel LabelHaut;
    QLabel LabelAvant; ///< caption of Label2 and Label3
    QLabel Label2;
    QLabel Label3;
    QLabel LabelBA;
    QLabel LabelBF;
    QLabel LabelLong;
    QLabel lbllongb;
    QLabel Label1;
    std::array<NumericField, kChampsTalon> txt;
    TalonSketch Picture1;
    QPushButton CmdApply;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void LayOutHeight(QGridLayout &grid);
    void ConnectAll();
    void PoseTextes();
    void PoseBulles();

    void Form_Load();
    void Retient();
    void OptTalon_Click(int index);
    void txt_Change(int index);
    void CmdApply_Click();
    void cmdok_Click();
    void cmdannuler_Click();

    template <class Action>
    void Seul(const char *label, Action action);
    bool Applique();
    void Abandonne();
    void MontreMarges();
    TextesTalon TextesTapes() const;
    std::string Titre() const { return S(windowTitle()); }
};

} // namespace loftwing
