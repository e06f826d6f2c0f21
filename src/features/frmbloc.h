/// The template for cutting foam.
#pragma once

#include "features/bloc.h"
#include "features/qt_bloc_sketch.h"
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

/// Heights, ramps, trailing edge and washout of the template. Ramps, washout and tail go into the
/// rib while the user types; Apply and OK put the template on the rib, Cancel takes it away.
/// rib.Annule tells afterwards whether the user cancelled.
class frmbloc : public QDialog {
    Q_OBJECT

  public:
    frmbloc(Programme &programme, MainView &view, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MainView &view_;
    bool FormeChargee = false;
    bool EnCours = false; ///< a handler is at work, perhaps waiting in a box
    Bloc bloc_avant_;     ///< what Cancel puts back: the template as loaded or last applied
    float vrillage_avant_ = 0;

    std::array<QLabel, kChampsBloc> Label1;
    std::array<NumericField, kChampsBloc> txt;
    QLabel LabelPointHaut;
    QLabel lblpointhaut;
    QLabel LabelPointBas;
    QLabel lblpointbas;
    QLabel LabelLong;
    QLabel lbllongb;
    QLabel LabelQueue;
    std::array<QRadioButton, 2> Optquebf;
    BlocSketch Picture1;
    QPushButton CmdApply;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void LayOutMeasures(QGridLayout &grid);
    void ConnectAll();
    void PoseTextes();
    void PoseBulles();

    void Form_Load();
    void Retient();
    void Optquebf_Click(int index);
    void txt_Change(int index);
    void CmdApply_Click();
    void cmdok_Click();
    void cmdannuler_Click();

    template <class Action>
    void Seul(const char *label, Action action);
    void Applique();
    void MontreLongueur();
    TextesBloc TextesTapes() const;
    std::string Titre() const { return S(windowTitle()); }
};

} // namespace loftwing
