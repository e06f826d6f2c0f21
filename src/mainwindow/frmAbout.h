/// The window that tells what the program is.
#pragma once

#include "mainwindow/rib_picture.h"
#include "programme/qt_dialogue.h"

#include <QLabel>
#include <QLineEdit>

#include <array>
#include <string>

namespace loftwing {

/// Purpose, version, the folders that were installed for this user, the systems served, and a note.
class frmAbout : public Dialogue {
    Q_OBJECT

  public:
    frmAbout(Programme &programme, QWidget *parent);

  private:
    RibPicture image;
    QLabel lblpresentation;
    QLabel lblversion;
    std::array<QLabel, 2> Label1;        ///< words of the folders: airfoils, rib sets
    std::array<QLineEdit, 2> txtdossier; ///< the folders, to be read and copied
    QLabel lblsystemes;
    QLabel lblnote;

    // frmAbout_build.cpp
    void NameAll();
    void LayOut();

    void Form_Load();
    void ShowFolder(QLineEdit &field, const std::string &key);
};

} // namespace loftwing
