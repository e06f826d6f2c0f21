/// The dihedral calculator.
#pragma once

#include "programme/qt_dialogue.h"
#include "utilities/diedre.h"
#include "utilities/qt_diedre_sketch.h"

#include <QLabel>
#include <QPushButton>

#include <array>

namespace loftwing {

/// Angle, length and height, one of them computed from the other two: by a double click the one
/// that is clicked, by the button or Return one that wasn't just typed. Stays open beside the main
/// window and has nothing to do with the rib.
class frmdiedre : public Dialogue {
    Q_OBJECT

  public:
    frmdiedre(Programme &programme, QWidget *parent);

    /// Words in the language in force.
    void PoseTextes();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    std::array<NumericField, kChampsDiedre> txt;
    QLabel Label1;
    QLabel Label2;
    QLabel Label3;
    DiedreSketch Image1;
    QPushButton cmdcalcul;
    std::array<int, kChampsDiedre> saisies_{}; ///< when each was typed last, 0: computed or never
    int saisie_ = 0;

    // frmdiedre_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void NoteSaisie(int index);
    int ChampACalculer() const;
    void Calcule(int index);
    void txt_dblClick(int index);
    void txt_Return(int index);
    void cmdcalcul_Click();
};

} // namespace loftwing
