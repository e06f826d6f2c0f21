// Names, places and keys of the help window.

#include "mainwindow/frmaide.h"

#include "mainwindow/tool_icons.h"
#include "mainwindow/window_place.h"
#include "platform/qt_focus_mark.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

namespace loftwing {

namespace {

constexpr int kLettresSommaire = 44; // room for the title of a page

void Raccourci(QWidget &window, const QKeySequence &keys, QToolButton &button) {
    auto *shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &button, &QToolButton::click);
}

} // namespace

void frmaide::NameAll() {
    NameControls({{&cmdprecedent, "cmdprecedent"},
                  {&cmdsuivant, "cmdsuivant"},
                  {&cmddebut, "cmddebut"},
                  {&cmdpluspetit, "cmdpluspetit"},
                  {&cmdplusgrand, "cmdplusgrand"},
                  {&lblcherche, "lblcherche"},
                  {&txtcherche, "txtcherche"},
                  {&Liste, "Liste"},
                  {&Sommaire, "Sommaire"},
                  {&Trouves, "Trouves"},
                  {&Page, "Page"}});
}

void frmaide::LayOut() {
    cmdprecedent.setIcon(ImageOf(Image::back));
    cmdsuivant.setIcon(ImageOf(Image::forward));
    cmddebut.setIcon(ImageOf(Image::contents));
    cmdpluspetit.setText("A\u2212");
    cmdplusgrand.setText("A+");
    cmdprecedent.setEnabled(false);
    cmdsuivant.setEnabled(false);

    auto *bar = new QHBoxLayout;
    for (QToolButton *button :
         {&cmdprecedent, &cmdsuivant, &cmddebut, &cmdpluspetit, &cmdplusgrand}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        bar->addWidget(button);
    }
    bar->addStretch();
    PlainText({&lblcherche});
    SetCaption(lblcherche, txtcherche);
    txtcherche.setClearButtonEnabled(true);
    txtcherche.setMinimumWidth(fontMetrics().averageCharWidth() * kNameLetters);
    bar->addWidget(&lblcherche);
    bar->addWidget(&txtcherche);

    Sommaire.setHeaderHidden(true);
    Sommaire.header()->setStretchLastSection(true);
    Sommaire.setRootIsDecorated(false);
    Sommaire.setItemsExpandable(false);
    Liste.addWidget(&Sommaire);
    Liste.addWidget(&Trouves);
    // The style shows no focus of a page, nor of an empty list.
    FocusMark::On(Page);
    FocusMark::On(Trouves);
    auto *panes = new QSplitter(this);
    panes->addWidget(&Liste);
    panes->addWidget(&Page);
    panes->setStretchFactor(1, 1);
    panes->setChildrenCollapsible(false);
    const int contents = fontMetrics().averageCharWidth() * kLettresSommaire;
    panes->setSizes({contents, HelpBrowser::kLargeurImage});

    auto *rows = new QVBoxLayout(this);
    rows->addLayout(bar);
    rows->addWidget(panes, 1);
    PoseBoutons(*rows, {SharedWord::close});
    Bouton(SharedWord::close).setAutoDefault(false); // Return in the search field searches
    constexpr int kScrollBar = 60;
    LitPlace(*this, kPlaceAide, {contents + HelpBrowser::kLargeurImage + kScrollBar, 700});
    Page.setFocus();
    // As they stand from left to right, whichever of the two lists is shown.
    setTabOrder(&txtcherche, &Sommaire);
    setTabOrder(&Sommaire, &Trouves);
    setTabOrder(&Trouves, &Page);
}

void frmaide::PoseTouches() {
    Raccourci(*this, QKeySequence::Back, cmdprecedent);
    Raccourci(*this, QKeySequence::Forward, cmdsuivant);
    Raccourci(*this, QKeySequence::ZoomIn, cmdplusgrand);
    Raccourci(*this, QKeySequence(Qt::CTRL | Qt::Key_Equal), cmdplusgrand);
    Raccourci(*this, QKeySequence::ZoomOut, cmdpluspetit);
    Raccourci(*this, QKeySequence(Qt::ALT | Qt::Key_Home), cmddebut);
    auto *usual = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), this);
    connect(usual, &QShortcut::activated, this, [this] { ChangeTaille(0); });
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] {
        txtcherche.setFocus();
        txtcherche.selectAll();
    });
}

} // namespace loftwing
