#include "mainwindow/command_bars.h"

#include "base/text_encoding.h"
#include "mainwindow/tool_icons.h"
#include "output/screen_plot.h"
#include "platform/qt_text.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace loftwing {

namespace {

constexpr int kZoomTool = 8; // the zoom list's place in the tool bar
constexpr int kUndoTool = 9;
constexpr int kRedoTool = 10;

/// Brings a control to life or not, as a state has it.
template <class Control>
void Enable(EtatCommandes state, unsigned groups, Control &control) {
    if (const auto alive = Vivante(state, groups)) {
        control.setEnabled(*alive);
    }
}

/// Shows files in their entries; says whether there is any.
template <class Entries>
bool MontreRecents(const Entries &entries, const FichiersRecents &recent) {
    bool any = false;
    for (std::size_t i = 0; i < recent.size(); ++i) {
        const QString path = Q(recent[i]);
        QString shown = path;
        shown.replace('&', "&&");
        entries[i]->setText(QStringLiteral("&%1 %2").arg(i + 1).arg(shown));
        entries[i]->setData(path);
        entries[i]->setVisible(!path.isEmpty());
        any = any || !path.isEmpty();
    }
    return any;
}

} // namespace

CommandBars::CommandBars(QMainWindow &window, Demandes demandes)
    : window_(window), demandes_(std::move(demandes)), touches_(*window.menuBar()) {
    BuildMenus();
    BuildToolbar();
}

void CommandBars::Execute(const char *name, CommandHandler handler) {
    if (handler != nullptr) {
        demandes_.execute(name, handler);
    }
}

void CommandBars::AddCommand(const Command &command) {
    QMenu *parent = command.menu == nullptr ? nullptr : menus_.at(command.menu);
    if (command.separator) {
        parent->addSeparator();
    }
    QAction *action = nullptr;
    if (command.submenu) {
        auto *menu = new QMenu(&window_);
        menu->setToolTipsVisible(true); // of entries that have one
        menu->setObjectName(command.name);
        menus_[command.name] = menu;
        action = parent == nullptr ? window_.menuBar()->addMenu(menu) : parent->addMenu(menu);
    } else {
        action = parent->addAction(QString());
        action->setCheckable(command.checkable);
        action->setEnabled(!command.ailleurs);
        if (command.keys != nullptr) {
            action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(command.keys)));
        }
        QObject::connect(action, &QAction::triggered, &window_, [this, &command] {
            if (command.exporte != nullptr) {
                demandes_.exporte(*command.exporte);
            } else {
                Execute(command.name, command.handler);
            }
        });
    }
    action->setObjectName(command.name);
    actions_[command.name] = action;
}

void CommandBars::BuildMenus() {
    for (const Command &command : MenuCommands()) {
        AddCommand(command);
    }
    BuildRecentFiles();
}

void CommandBars::BuildRecentFiles() {
    QMenu &menu = *menus_.at("mnu_file");
    // They stand above the entry that ends the program.
    mnuFileMRU_ = AddRecents("mnuFileMRU", menu, actions_.at("mnu_fileexit"), demandes_.fichier);
    mnuFileMRUTrait_ = menu.insertSeparator(mnuFileMRU_.front());
    mnuFileMRUTrait_->setVisible(false);
    mnuRibMRU_ = AddRecents("mnuRibMRU", *menus_.at("mnu_fileribs"), nullptr, demandes_.rib);
}

CommandBars::EntreesRecentes
CommandBars::AddRecents(const char *name, QMenu &menu, QAction *before,
                        const std::function<void(const std::string &path)> &opens) {
    EntreesRecentes entries{};
    int number = 0;
    for (QAction *&entry : entries) {
        entry = new QAction(&window_);
        entry->setObjectName(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(++number));
        entry->setVisible(false);
        QObject::connect(entry, &QAction::triggered, &window_,
                         [entry, opens] { opens(S(entry->data().toString())); });
        menu.insertAction(before, entry);
    }
    return entries;
}

void CommandBars::BuildToolbar() {
    Toolbar1_ = window_.addToolBar(QString());
    Toolbar1_->setObjectName("Toolbar1");
    Toolbar1_->setMovable(false);
    Toolbar1_->setContextMenuPolicy(Qt::PreventContextMenu);
    for (const ToolButton &button : ToolButtons()) {
        if (button.index != kZoomTool) {
            AddTool(button);
        }
    }
    Toolbar1_->addSeparator();
    BuildZoomList();
    Toolbar1_->addSeparator();
    for (const PushButton &button : PushButtons()) {
        AddButton(button);
    }
}

void CommandBars::AddTool(const ToolButton &button) {
    QAction *action =
        button.handler == nullptr ? Toolbar1_->addSeparator() : Toolbar1_->addAction(QString());
    action->setObjectName(QStringLiteral("Toolbar1(%1)").arg(button.index));
    tools_[button.index] = action;
    if (auto *icon = qobject_cast<QToolButton *>(Toolbar1_->widgetForAction(action))) {
        icon->setObjectName(action->objectName() + "_button");
        icon->setFocusPolicy(Qt::TabFocus);
    }
    QObject::connect(action, &QAction::triggered, &window_,
                     [this, &button] { Execute("Toolbar1", button.handler); });
}

void CommandBars::BuildZoomList() {
    Combo1_ = new QComboBox(Toolbar1_);
    Combo1_->setObjectName("Combo1");
    for (const char *row : kZoomRows) {
        Combo1_->addItem(QString::fromLatin1(row));
    }
    Combo1_->setCurrentIndex(kZoomRow100);
    Combo1_->setFocusPolicy(Qt::TabFocus); // after a choice the arrow keys scroll again
    QObject::connect(Combo1_, &QComboBox::activated, &window_,
                     [this](int row) { demandes_.zoom(row); });
    tools_[kZoomTool] = Toolbar1_->addWidget(Combo1_);
}

void CommandBars::AddButton(const PushButton &button) {
    auto *push = new QPushButton(Toolbar1_);
    push->setObjectName(button.name);
    push->setFocusPolicy(Qt::TabFocus);
    QObject::connect(push, &QPushButton::clicked, &window_,
                     [this, &button] { Execute(button.name, button.handler); });
    Toolbar1_->addWidget(push);
    buttons_[button.name] = push;
}

void CommandBars::OuvreMenu(const std::string &name, const QPoint &place) {
    menus_.at(name)->popup(place);
}

void CommandBars::Met(EtatCommandes state) {
    for (const Command &command : MenuCommands()) {
        Enable(state, command.groups, *actions_.at(command.name));
    }
    for (const PushButton &button : PushButtons()) {
        Enable(state, button.groups, *buttons_.at(button.name));
    }
    for (const ToolButton &button : ToolButtons()) {
        Enable(state, button.groups, *tools_.at(button.index));
    }
}

void CommandBars::MontrePas(const LngIni &language, const std::string &annulable,
                            const std::string &retablissable) {
    const auto show = [](QAction &action, const std::string &words, const std::string &step) {
        QString text = Q(words);
        if (!step.empty()) {
            text += ": " + Q(ToUtf8(step));
        }
        action.setEnabled(!step.empty());
        return text;
    };
    const auto menu = [&](const char *name, LngKey key, const std::string &step) {
        QAction &action = Entree(name);
        std::string shown = step; // an "&" in a name is no access letter
        for (std::size_t at = shown.find('&'); at != std::string::npos;
             at = shown.find('&', at + 2)) {
            shown.insert(at, 1, '&');
        }
        action.setText(show(action, language.LngText(key), shown));
    };
    const auto tool = [&](int index, LngKey key, const std::string &step) {
        QAction &action = *tools_.at(index);
        action.setToolTip(show(action, language.LngText(key), step));
    };
    menu("mnu_editannule", {"Undo", "2"}, annulable);
    menu("mnu_editretablit", {"Undo", "7"}, retablissable);
    tool(kUndoTool, {"Undo", "8"}, annulable);
    tool(kRedoTool, {"Undo", "9"}, retablissable);
}

void CommandBars::MontreCoches(const RibModel &rib) {
    for (const CocheVue &coche : kCochesVue) {
        actions_.at(coche.name)->setChecked(rib.*coche.shown);
    }
}

void CommandBars::MontreFichiersRecents(const FichiersRecents &profils,
                                        const FichiersRecents &ribs) {
    mnuFileMRUTrait_->setVisible(MontreRecents(mnuFileMRU_, profils));
    actions_.at("mnu_fileribs")->setEnabled(MontreRecents(mnuRibMRU_, ribs));
}

void CommandBars::PoseTextes(const LngIni &language) {
    const auto caption = [&language](LngKey key) { return Q(language.LngText(key)); };
    for (const Command &command : MenuCommands()) {
        actions_.at(command.name)->setText(caption(command.text));
        if (const auto tip = command.ailleurs ? command.ailleurs : command.conseil) {
            actions_.at(command.name)->setToolTip(caption(*tip));
        }
    }
    actions_.at("mnu_helpVersion")->setText("Check " + caption({"FrmAbout", "3"}));
    for (const PushButton &button : PushButtons()) {
        buttons_.at(button.name)->setText(caption(button.text));
        buttons_.at(button.name)->setToolTip(caption(button.tip));
    }
    for (const ToolButton &button : ToolButtons()) {
        tools_.at(button.index)->setToolTip(caption(button.tip));
        tools_.at(button.index)->setText(caption(button.tip));
        tools_.at(button.index)->setIcon(ToolIcon(button.index));
    }
    const QString zoom = tools_.at(kZoomTool)->toolTip();
    Combo1_->setToolTip(zoom);
    Combo1_->setAccessibleName(zoom);
    Toolbar1_->setAccessibleName(caption({"MainTolbar", "240"}));
    DonneTouches();
}

void CommandBars::DonneTouches() {
    std::vector<QAbstractButton *> buttons;
    for (const PushButton &button : PushButtons()) {
        buttons.push_back(buttons_.at(button.name));
    }
    std::vector<QAction *> icons;
    for (const ToolButton &button : ToolButtons()) {
        if (button.handler != nullptr) {
            icons.push_back(tools_.at(button.index));
        }
    }
    touches_.Give(buttons, *Toolbar1_, icons);
}

} // namespace loftwing
