/// The window that tells what the program is.
#pragma once

#include "mainwindow/rib_picture.h"
#include "programme/programme.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <string>

namespace loftwing {

/// Purpose, version, the folders that were installed for this user, the systems served, and a note.
class frmAbout : public QDialog {
    Q_OBJECT

  public:
    frmAbout(Programme &programme, QWidget *parent);

  private:
    Programme &programme_;
    RibPicture image;
    QLabel lblpresentation;
    QLabel lblversion;
    std::array<QLabel, 2> Label1;        ///< words of the folders: airfoils, rib sets
    std::array<QLineEdit, 2> txtdossier; ///< the folders, to be read and copied
    QLabel lblsystemes;
    QLabel lblnote;
    QPushButton cmdok;

    void NameAll();
    void LayOut();
    void Form_Load();
    void ShowFolder(QLineEdit &field, const std::string &key);
};

} // namespace loftwing
