/// The set of ribs of a tapered panel.
#pragma once

#include "programme/qt_dialogue.h"
#include "utilities/nervure.h"
#include "utilities/qt_panneau_sketch.h"
#include "utilities/qt_pic_nervures.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <array>

namespace loftwing {

/// Chord and spar place of every rib between two chords, as a list that can be printed. Stays open
/// beside the main window and has nothing to do with the rib.
class frmnervure : public Dialogue {
    Q_OBJECT

  public:
    frmnervure(Programme &programme, QWidget *parent);

    /// Words in the language in force.
    void PoseTextes();
    void NommePourLecteurs();

  private:
    Nervures panneau_;
    PlaceListe place_;
    bool calcule_ = false; ///< there is a list

    std::array<NumericField, kChampsNervure> txtnerv;
    QLabel Label1;                ///< number of ribs
    QLabel Label2;                ///< major chord
    QLabel Label3;                ///< minor chord
    std::array<QLabel, 2> Label4; ///< spar on the major and on the minor chord
    QLabel Label5;                ///< spacing
    QLabel Label6;                ///< panel length
    QLabel Label7;                ///< rib thickness
    QLabel Label10;               ///< headings of the list: numbers,
    QLabel Label11;               ///< chords,
    QLabel Label12;               ///< spar places
    QLabel Lblecart;
    QFrame Frame1;
    PanneauSketch Image1;
    PicNervures Liste;
    QScrollBar Vbar;
    QPushButton cmdcalcul;
    QPushButton cmdprintnerv;

    // frmnervure_build.cpp
    void NameAll();
    void LayOut();
    QGridLayout *LayOutFields();
    QVBoxLayout *LayOutList();

    void ConnectAll();
    void Form_Load();
    void cmdcalcul_Click();
    void cmdprintnerv_Click();
    void Vbar_Change(int value);

    void Calcule();
    void Trace();
};

} // namespace loftwing
