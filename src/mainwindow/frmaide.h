/// The window that shows the help.
#pragma once

#include "mainwindow/help_browser.h"
#include "mainwindow/help_pages.h"
#include "programme/qt_dialogue.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <string>
#include <vector>

namespace loftwing {

/// Contents and search at the left, the page at the right. It stays usable beside the dialog that
/// it was called from, and open when that closes. Pages are in the language in force.
class frmaide : public Dialogue {
    Q_OBJECT

  public:
    explicit frmaide(Programme &programme);

    /// Shows the page of a context and brings the window to the front.
    void Montre(int contexte);
    /// The context of the page that is shown.
    int Contexte() const;

  protected:
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void cmdannuler_Click() override;

  private:
    QToolButton cmdprecedent;
    QToolButton cmdsuivant;
    QToolButton cmddebut;
    QToolButton cmdpluspetit;
    QToolButton cmdplusgrand;
    QLabel lblcherche;
    QLineEdit txtcherche;
    QStackedWidget Liste; ///< the contents, or what was found
    QTreeWidget Sommaire;
    QListWidget Trouves;
    HelpBrowser Page;

    std::string langue_; ///< that of the pages
    std::vector<PageAide> pages_;
    int taille_ = 0; ///< points above the desktop's letters

    // frmaide_build.cpp
    void NameAll();
    void LayOut();
    void PoseTouches();

    // frmaide.cpp
    void Form_Load();
    void SuitLangue();
    void RemplitSommaire();
    void OuvrePage(int contexte);
    void SuitPage();
    void txtcherche_Change();
    void MontreTrouve();
    void ChangeTaille(int points);
    void PlaceDevant(QWidget &modal);
    void SuitDialogue();
};

} // namespace loftwing
