/// The page set-up.
#pragma once

#include "output/page_entry.h"
#include "platform/qt_form.h"
#include "programme/programme.h"

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace loftwing {

/// Paper, margins, overlap and place of the drawing; shows while the user types how many sheets the
/// rib takes. OK stores the page and writes it to the settings file, Cancel leaves it; rib.Annule
/// tells afterwards which it was.
class frmPrint : public QDialog {
    Q_OBJECT

  public:
    frmPrint(Programme &programme, QWidget *parent);

    /// Escape and the window's own close button do what Cancel does.
    void reject() override;

  private:
    Programme &programme_;
    MiseEnPage page_; ///< what the dialog shows; the settings are untouched until OK
    LongueurRib longueur_;
    bool FormeChargee = false;
    bool EnCalcul = false; ///< a box of a computation is up, or it is setting texts itself

    // The frames go last, since what stands in them is theirs.
    QGroupBox Frame6;
    QGroupBox Frame2;
    QGroupBox Frame5;
    QGroupBox Frame4;
    QComboBox Combo1;
    QLabel Label3;
    QPushButton cmdconfigImprim;
    QLabel Label1;
    QLabel Label2;
    std::array<NumericField, kChampsPage> Text1;
    QLabel Label5; ///< the units: of the overlap, the two margins, the print position
    QLabel Label6;
    QLabel Label7;
    QLabel Label8;
    QRadioButton Option1;
    QRadioButton Option2;
    QLabel Label4;
    QLabel Label9;
    QLabel Label10;
    QPushButton cmdok;
    QPushButton cmdannuler;
    QPushButton cmdaide;

    void NameAll();
    void LayOut();
    void LayOutPaper();
    void LayOutPlace();
    void LayOutPages();
    void ConnectAll();
    void PoseTextes();
    void RemplitCombo();

    void Form_Load();
    void Combo1_click();
    void Text1_Change(int index);
    void cmdok_Click();
    void cmdannuler_Click();
    void cmdconfigImprim_Click();

    template <class Action>
    void Seul(const char *label, Action action);
    void CalculAuChargement();
    Feuilles CalculeEtMontre();
    void Montre(Feuilles feuilles);
    void MontreOptions(bool une_page);
    void ChoisitRecouvrement(Feuilles feuilles);
    bool Avertit(Feuilles feuilles);
    TextesPage TextesTapes() const;
};

} // namespace loftwing
