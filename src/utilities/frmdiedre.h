/// The dihedral calculator.
#pragma once

#include "programme/qt_dialogue.h"
#include "utilities/diedre.h"
#include "utilities/qt_diedre_sketch.h"

#include <QLabel>

#include <array>

namespace loftwing {

/// Angle, length and height; a double click into one of the fields, or Return in it, computes it
/// from the other two. Stays open beside the main window and has nothing to do with the rib.
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

    // frmdiedre_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void txt_dblClick(int index);
};

} // namespace loftwing
