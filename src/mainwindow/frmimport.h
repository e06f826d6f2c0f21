/// The window that shows what an import made of an airfoil file.
#pragma once

#include "mainwindow/import_picture.h"
#include "programme/import_steps.h"
#include "programme/qt_dialogue.h"

#include <QLabel>
#include <QPushButton>

#include <optional>
#include <string>

namespace loftwing {

/// The file's points and the imported contour over each other, and what was done in words. Save as
/// leaves the window open; Open ends it as accepted, every other way out as rejected. The rib is
/// not touched: whoever opens the window takes `Voulu` where it was accepted.
class frmimport : public Dialogue {
    Q_OBJECT

  public:
    frmimport(Programme &programme, QWidget *parent, std::string path, ImportedAirfoil airfoil);

    /// What the user wants to be opened: under the name that it was saved to, where it was.
    ImportVoulu Voulu() const { return {path_, airfoil_}; }

  private:
    std::string path_;
    ImportedAirfoil airfoil_;

    ImportPicture Picture1;
    QLabel lblrecit;
    QLabel lblenregistre;
    QPushButton cmdenregistrer;
    QPushButton cmdouvrir;

    // frmimport_build.cpp
    void NameAll();
    void LayOut();

    // frmimport.cpp
    void PoseTextes();
    void cmdenregistrer_Click();
};

/// Shows the window and waits; nothing where it was cancelled.
std::optional<ImportVoulu> MontreImport(Programme &programme, QWidget *parent,
                                        const std::string &path, const ImportedAirfoil &airfoil);

} // namespace loftwing
