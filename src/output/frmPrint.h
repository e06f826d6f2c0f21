/// The page set-up.
#pragma once

#include "output/page_entry.h"
#include "programme/qt_dialogue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <array>
#include <functional>

namespace loftwing {

/// Paper, margins, overlap and place of the drawing; shows while the user types how many sheets the
/// rib takes. OK stores the page and writes it to the settings file, Cancel leaves it. exec()
/// tells afterwards which it was, and so does rib.Annule.
class frmPrint : public Dialogue {
    Q_OBJECT

  public:
    frmPrint(Programme &programme, QWidget *parent);

    /// Shows the page to whoever looks on, now and after each count: as the dialog has it, null
    /// where there is no count.
    void SuitPage(std::function<void(const MiseEnPage *page)> suit);

  private:
    std::function<void(const MiseEnPage *page)> suit_ = [](const MiseEnPage *) {};
    bool compte_ = false; ///< the sheets could be counted

    MiseEnPage page_; ///< what the dialog shows; the settings are untouched until OK
    LongueurRib longueur_;

    // The frames stand first, so that they outlive what stands in them: a frame that goes takes
    // along what it still holds.
    QGroupBox Frame6;
    QGroupBox Frame2;
    QGroupBox Frame5;
    QGroupBox Frame4;
    QComboBox Combo1;
    QLabel Label3;
    QPushButton cmdconfigImprim;
    QPushButton cmdpapier;
    QPushButton cmdretire;
    QPushButton cmdcorrection;
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
    QCheckBox chkrangees;
    QCheckBox chktemoin;
    QLabel Label9;
    QLabel Label10;

    // frmPrint_build.cpp
    void NameAll();
    void LayOut();
    void LayOutPaper();
    void LayOutPlace();
    void LayOutPages();

    void PoseTextes();
    void RemplitCombo();
    void ChangePapiers(int chosen);
    void Form_Load();
    void Combo1_click();
    void Text1_Change(int index);
    void cmdok_Click() override;
    void cmdannuler_Click() override;
    void cmdconfigImprim_Click();
    void cmdpapier_Click();
    void cmdretire_Click();
    void cmdcorrection_Click();

    template <class Action>
    void Compte(const char *label, Action action);
    void CalculAuChargement();
    Feuilles CalculeEtMontre();
    void Montre(Feuilles feuilles);
    void MontreCompte(bool compte);
    void MontreOptions(bool une_page);
    void ChoisitRecouvrement(Feuilles feuilles);
    bool Avertit(Feuilles feuilles);
};

} // namespace loftwing
