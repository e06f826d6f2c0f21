/// Colours, line styles and line widths of a drawing's elements.
#pragma once

#include "output/qt_legend_view.h"
#include "output/qt_swatch.h"
#include "output/style_entry.h"
#include "programme/qt_dialogue.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <array>

namespace loftwing {

/// A grid of numbers with a legend beside it that shows what they mean. OK checks the numbers and
/// writes them to the settings file; numbers that it refuses are in force as long as the dialog is
/// open. Cancel puts back what was in force before.
class frmcoul : public Dialogue {
    Q_OBJECT

  public:
    frmcoul(Programme &programme, QWidget *parent);

  private:
    const Traits avant_; ///< in force when the dialog opened

    std::array<QLabel, 3> Label2; ///< heads of the columns
    QLabel Label3;                ///< head of the compared airfoils
    std::array<QLabel, kElements> Label1;
    std::array<NumericField, kElements> txtcoul;
    std::array<ColourSwatch, kElements> Swatch; ///< what the numbers of txtcoul mean
    std::array<NumericField, kElements> txtline;
    std::array<NumericField, kEpaisseurs> txtEpR;
    QLabel LabelFixe; ///< in the place of the width that axes haven't
    LegendView Picture1;
    QPushButton cmdImprtest;

    // frmcoul_build.cpp
    void NameAll();
    void LayOut();
    void LayOutGrid(QGridLayout &grid);

    void PoseTextes();
    void NommeChamps();
    void Form_Load();
    void cmdok_Click() override;
    void cmdannuler_Click() override;
    void cmdImprtest_Click();
    void txtcoul_Change(int index);

    TextesTraits TextesTapes() const;
    bool Accepte(const LectureTraits &read, const char *label);
    NumericField &Champ(const ChampTrait &champ);
};

} // namespace loftwing
