/// The window that makes files for a cutter.
#pragma once

#include "mainwindow/piece_picture.h"
#include "platform/qt_numeric_field.h"
#include "programme/cut_steps.h"
#include "programme/qt_dialogue.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <array>
#include <string>

namespace loftwing {

/// Shows the piece as it will be cut, with its measures and what there is to say of it, and saves
/// it; the window stays open for another form. The rib is not touched. What was chosen is
/// remembered with a file that was saved, not otherwise.
class frmdecoupe : public Dialogue {
    Q_OBJECT

  public:
    frmdecoupe(Programme &programme, QWidget *parent);

  private:
    /// The kinds of marks in their order.
    static constexpr int kMarques = 5;
    static constexpr int kEtiquette = 4;

    ChoixDecoupe choix_;
    PiecesFaites faites_;
    NumericField *fautif_ = nullptr; ///< the field that says no width

    PiecePicture Picture1;
    QLabel Label1;
    NumericField txtsaignee;
    QLabel Label2;
    QLabel Label3;
    NumericField txtfil; ///< for a foam template only
    QLabel Label4;
    QGroupBox Frame1;
    std::array<QCheckBox, kMarques> chkmarque;
    QLineEdit txtetiquette;
    QCheckBox chkpolylignes;
    QLabel lblmesures;
    QLabel lblavis;
    QLabel lblenregistre;
    QPushButton cmdenregistrer;

    // frmdecoupe_build.cpp
    void NameAll();
    void LayOut();
    void Connect();

    // frmdecoupe.cpp
    void PoseTextes();
    void PoseBulles();
    void MontreChoix();
    void PrendChoix();
    std::string PrendLargeurs();
    void Refait();
    void cmdenregistrer_Click();
};

/// Shows the window beside `clear` and waits. Of a rib that has no piece a box says why.
void MontreDecoupe(Programme &programme, const QRect &clear, QWidget *parent);

} // namespace loftwing
