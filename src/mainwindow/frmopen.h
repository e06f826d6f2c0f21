/// The window in which an airfoil file is chosen.
#pragma once

#include "core/airfoil_picker.h"
#include "core/airfoil_reader.h"
#include "mainwindow/apercu.h"
#include "mainwindow/fitted_label.h"
#include "programme/main_view.h"
#include "programme/qt_dialogue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <array>
#include <string>

namespace loftwing {

/// Folders, files, and a preview of the file that is selected: each is read into the rib and
/// tested, so that a bad one is refused before it is accepted. A click reads at once and tells by a
/// box; the keys read where the selection comes to rest, and what is wrong with a file stands in
/// the preview's place, so that going through a folder is stopped by nothing and costs no rib. Open
/// leaves the airfoil in the rib,
/// every other way out puts back the identity of the one before and sets rib.Annule. The window's
/// title is the title of its boxes; whoever opens it may set another.
class frmopen : public Dialogue {
    Q_OBJECT

  public:
    frmopen(Programme &programme, MainView &view, QWidget *parent);
    ~frmopen() override;

    /// For commands that want a second airfoil: shows the check box that sets rib.MemProfil where
    /// `check` says so, and `note` over it where there is one. Both are hidden otherwise.
    void MontreMemoire(bool check, const std::string &note);

    /// For a tool: a file whose reading fails leaves the rib alone. Without this it is cleared.
    void LaisseLeRib() { efface_ = false; }

    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    MainView &view_;
    RibModel &rib_;
    ProfilPrecedent precedent_;
    std::string dossier_;               ///< whose content the lists show
    std::vector<std::string> fichiers_; ///< its files of the type in force
    QTimer selection_;                  ///< a selected file waits to be read
    bool discret_ = false;              ///< by its side: no box, and the rib stays
    bool refuse_ = false;               ///< the selected file was read and can't be opened
    bool efface_ = true;                ///< a reading that fails clears the rib
    bool pressed_ = false;              ///< the mouse is down on File1

    QLineEdit txtchemin;
    QLabel lbldossiers;
    QListWidget Dir1;
    QLabel lblfichiers;
    QLineEdit txtcherche; ///< a part of the names that File1 shows
    QListWidget File1;
    QLabel lbltype;
    QComboBox Combo1;
    QLabel lblfichier;
    FittedLabel nomfile1;
    QLabel lbldossier;
    FittedLabel Lbchemin;
    Apercu Surface;
    FittedLabel Label1;
    FittedLabel Label2;
    FittedLabel Label3;
    QPushButton cmdimporter; ///< there for a refused file that import can read
    QCheckBox memP1;
    QLabel LbMem;
    QPushButton cmdouvrir;

    // frmopen_build.cpp
    void NameAll();
    QLayout *LayOutLists();
    QLayout *LayOutPreview();
    void LayOut();

    // frmopen.cpp
    void PoseTextes();
    void PoseBulles();
    void AssureInvite();
    /// The controls whose events pass through eventFilter.
    std::array<QObject *, 6> Surveilles();
    void ConnectAll();
    void Form_Load();
    void File1_Click();
    /// Lets the selected file be read, at once after a click, otherwise when the selection rests.
    void Attend(bool discret);
    /// Open is dead for a file that was refused, unless another one is typed.
    void Refuse(bool refuse);
    void MontreOuvrir();
    /// Nothing is chosen any more.
    void OublieFichier();
    void File1_DblClick();
    void memP1_Click();
    void cmdouvrir_Click();
    /// Leaves the airfoil that the rib holds and closes the window.
    void Accepte();
    void cmdannuler_Click() override;
    /// Reads a file that is selected but still waits.
    void LitSelection();
    void MontreLecture(const ResultatLecture &lecture);
    void MontreEchec(const ResultatLecture &lecture);
    void MontreProfil();

    // frmopen_import.cpp
    /// The import button stands where a refused file can be imported.
    void ProposeImport(const ResultatLecture &lecture);
    void cmdimporter_Click();

    // frmopen_lists.cpp
    void Combo1_Change();
    void Dir1_Change(const std::string &came_from);
    void Dir1_DblClick();
    /// Whether the path that is typed isn't the folder that is shown.
    bool ChercheAilleurs() const;
    /// Goes where the path leads; true when it named a file, which is then selected.
    bool txtchemin_Return();
    /// Shows another folder. One that can't be listed is reported, and the present one stays.
    bool Ouvre(const std::string &folder, const std::string &came_from = {});
    void Relit();
    /// Opens the folder of the airfoil that was opened last and selects it there again.
    void OuvreDernier();
    void Monte();
    /// The folder's files, of which those with the searched part in their names are shown.
    void RemplitFile1(std::vector<std::string> names);
    void MontreFichiers();
    /// What is searched changes. A file that is still shown stays selected and isn't read again.
    void txtcherche_Change();
    bool txtcherche_Key(int key);
    std::string Motif() const;
    /// Path of the selected file, empty when none is.
    std::string Choisi() const;
    bool ListKey(QListWidget &list, int key);
    void File1_Mouse(const QEvent &event);
};

} // namespace loftwing
