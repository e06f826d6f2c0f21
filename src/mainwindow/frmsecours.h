/// The window that offers what was not saved when the program ended badly.
#pragma once

#include "mainwindow/piece_picture.h"
#include "programme/qt_dialogue.h"
#include "programme/secours.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include <vector>

namespace loftwing {

/// The ribs that can be had back, the last one first, with a picture of the chosen one. Restore
/// ends it as accepted, every other way out as rejected: what is left then is offered again at the
/// next start. Delete asks before and leaves it open as long as there is another rib.
class frmsecours : public Dialogue {
    Q_OBJECT

  public:
    /// At least one rib.
    frmsecours(Programme &programme, QWidget *parent, std::vector<Orphelin> ribs);

    /// The rib that the user wants back. It is taken out: the others are let go with the window.
    Orphelin Voulu();

  private:
    std::vector<Orphelin> ribs_;

    QLabel lblrecit;
    QTableWidget Ribs;
    PiecePicture Picture1;
    QPushButton cmdsupprimer;
    QPushButton cmdrestaurer;
    QPushButton cmdplustard;

    // frmsecours_build.cpp
    void NameAll();
    void PrepareRibs();
    void LayOut();

    // frmsecours.cpp
    void PoseTextes();
    void MontreRibs();
    void MontreChoisi();
    void cmdsupprimer_Click();
};

} // namespace loftwing
