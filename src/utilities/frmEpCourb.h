/// Thickness and camber.
#pragma once

#include "platform/qt_form.h"
#include "programme/main_view.h"
#include "programme/programme.h"
#include "utilities/EpCourb.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <string>

namespace loftwing {

/// Changes thickness and camber of the rib's airfoil: Apply shows the new section over the old one
/// in the main window, Save as writes it as an airfoil of its own. OK, which saves first where that
/// wasn't done, ends in that file being opened by whoever showed the dialog. Cancel clears the rib.
class frmEpCourb : public QDialog {
    Q_OBJECT

  public:
    frmEpCourb(Programme &programme, MainView &view, QWidget *parent);

    /// Path of the file that was saved.
    const std::string &Fichier() const { return FichierEpCourb; }
    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MainView &view_;
    bool EnCours = false;      ///< a handler is at work, perhaps waiting in a box
    bool EpCourbSauve = false; ///< the new airfoil went to a file since the dialog was opened
    std::string FichierEpCourb;

    std::array<QLabel, 2> Label3; ///< heads: original, new airfoil
    QLabel Label1;
    QLineEdit txtEpROr;
    NumericField txtEpR;
    QLabel Label4;
    QLabel Label5;
    QLabel Label2;
    QLineEdit txtCourbureOr;
    NumericField txtCourbure;
    QPushButton CmdApply;
    QPushButton cmdsave;
    QPushButton cmdprintEC;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void PoseTextes();
    void Form_Load();
    void ConnectAll();

    template <class Action>
    void Seul(const char *label, Action action);
    std::string Titre() const { return S(windowTitle()); }
    ChampsEpCourb Champs() const;
    void Avertit(const std::string &text) const;
    void Applique();
    void Sauve();
    void Ecrit(const std::string &path);
    void CmdApply_Click();
    void cmdsave_Click();
    void cmdprintEC_Click();
    void cmdok_Click();
    void cmdannuler_Click();
};

} // namespace loftwing
