// How the main window is put together: every control from the tables of commands.

#include "base/version.h"
#include "mainwindow/frmmain.h"
#include "output/screen_plot.h"
#include "platform/qt_form.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>

namespace loftwing {

void frmmain::AddCommand(const Command &command) {
    QMenu *parent = command.menu == nullptr ? nullptr : menus_.at(command.menu);
    if (command.separator) {
        parent->addSeparator();
    }
    QAction *action = nullptr;
    if (command.submenu) {
        auto *menu = new QMenu(this);
        menu->setObjectName(command.name);
        menus_[command.name] = menu;
        action = parent == nullptr ? menuBar()->addMenu(menu) : parent->addMenu(menu);
    } else {
        action = parent->addAction(QString());
        action->setCheckable(command.checkable);
        if (command.keys != nullptr) {
            action->setShortcut(QKeySequence(QString::fromLatin1(command.keys)));
        }
        connect(action, &QAction::triggered, this, [this, &command] {
            if (command.exporte != nullptr) {
                Exporte(*command.exporte);
            } else {
                Execute(command.name, command.handler);
            }
        });
    }
    action->setObjectName(command.name);
    actions_[command.name] = action;
}

void frmmain::BuildMenus() {
    for (const Command &command : MenuCommands()) {
        AddCommand(command);
    }
    // The rib's menu also opens over the picture; its entries count where the chord is known.
    BuildRecentFiles(menus_.at("mnu_file"), actions_.at("mnu_fileexit"));
}

void frmmain::BuildRecentFiles(QMenu *menu, QAction *before) {
    for (int i = 0; i < kFichiersRecents; ++i) {
        auto *entry = new QAction(this);
        entry->setObjectName(QStringLiteral("mnuFileMRU(%1)").arg(i + 1));
        entry->setVisible(false);
        connect(entry, &QAction::triggered, this,
                [this, entry] { mnuFileMRU_Click(S(entry->data().toString())); });
        menu->insertAction(before, entry);
        mnuFileMRU_[static_cast<std::size_t>(i)] = entry;
    }
    mnuFileMRUTrait_ = menu->insertSeparator(mnuFileMRU_.front());
    mnuFileMRUTrait_->setVisible(false);
}

void frmmain::BuildToolbar() {
    Toolbar1 = addToolBar(QString());
    Toolbar1->setObjectName("Toolbar1");
    Toolbar1->setMovable(false);
    Toolbar1->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolButton &button : ToolButtons()) {
        if (button.index == 8) {
            break;
        }
        const bool separator = button.index == 1 || button.index == 4 || button.index == 6;
        QAction *action = separator ? Toolbar1->addSeparator() : Toolbar1->addAction(QString());
        action->setObjectName(QStringLiteral("Toolbar1(%1)").arg(button.index));
        tools_[button.index] = action;
        connect(action, &QAction::triggered, this,
                [this, &button] { Execute("Toolbar1", button.handler); });
    }
    Toolbar1->addSeparator();
    Combo1 = new QComboBox(Toolbar1);
    Combo1->setObjectName("Combo1");
    for (const char *row : kZoomRows) {
        Combo1->addItem(QString::fromLatin1(row));
    }
    Combo1->setCurrentIndex(kZoomRow100);
    connect(Combo1, &QComboBox::activated, this, &frmmain::Combo1_Click);
    tools_[8] = Toolbar1->addWidget(Combo1);
    Toolbar1->addSeparator();
    for (const PushButton &button : PushButtons()) {
        auto *push = new QPushButton(Toolbar1);
        push->setObjectName(button.name);
        push->setFocusPolicy(Qt::TabFocus);
        connect(push, &QPushButton::clicked, this,
                [this, &button] { Execute(button.name, button.handler); });
        Toolbar1->addWidget(push);
        buttons_[button.name] = push;
    }
}

void frmmain::BuildPicture() {
    picture_ = new PictureArea(programme_.rib, this);
    setCentralWidget(picture_);
    connect(picture_, &PictureArea::Defile, this, [this] {
        RetraceVues();
        affiche();
    });
    connect(picture_, &PictureArea::MenuDemande, this,
            [this](const QPoint &place) { menus_.at("mnuprofil")->popup(place); });
    connect(picture_, &PictureArea::ZoomDemande, this, &frmmain::ZoomSur);
    connect(picture_, &PictureArea::Redimensionne, this, &frmmain::Form_Resize);
}

void frmmain::BuildStatusBar() {
    statusBar()->setObjectName("StatusBar");
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel(this);
        panels_[i]->setObjectName(QStringLiteral("StatusBar(%1)").arg(i + 1));
        panels_[i]->setTextFormat(Qt::PlainText);
        // The words about the airfoil may be long; they must not widen the window.
        if (i == 1) {
            panels_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        }
        statusBar()->addWidget(panels_[i], i == 1 ? 1 : 0);
    }
}

} // namespace loftwing
