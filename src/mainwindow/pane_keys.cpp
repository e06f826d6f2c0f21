#include "mainwindow/pane_keys.h"

#include <QApplication>
#include <QShortcut>
#include <QWidget>

namespace loftwing {

namespace {

bool TakesFocus(const QWidget &widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/// What gets the focus of a part; null where nothing takes it.
QWidget *EntryOf(QWidget &pane) {
    if (TakesFocus(pane)) {
        return &pane;
    }
    // The focus chain of a window is closed and knows the order of the Tab key.
    for (QWidget *next = pane.nextInFocusChain(); next != &pane; next = next->nextInFocusChain()) {
        if (pane.isAncestorOf(next) && TakesFocus(*next)) {
            return next;
        }
    }
    return nullptr;
}

bool HasFocus(const QWidget &pane) {
    const QWidget *focused = QApplication::focusWidget();
    return focused != nullptr && (focused == &pane || pane.isAncestorOf(focused));
}

void Lead(const std::vector<QWidget *> &panes, std::size_t step) {
    std::size_t at = panes.size() - step; // from nowhere the first is next
    for (std::size_t i = 0; i < panes.size(); ++i) {
        at = HasFocus(*panes[i]) ? i : at;
    }
    for (std::size_t tried = 0; tried < panes.size(); ++tried) {
        at = (at + step) % panes.size();
        if (QWidget *entry = EntryOf(*panes[at])) {
            entry->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

} // namespace

void LeadThroughPanes(QWidget &window, const std::vector<QWidget *> &panes) {
    const auto add = [&](const QKeySequence &key, std::size_t step) {
        auto *shortcut = new QShortcut(key, &window);
        QObject::connect(shortcut, &QShortcut::activated, &window,
                         [panes, step] { Lead(panes, step); });
    };
    add(QKeySequence(Qt::Key_F6), 1);
    add(QKeySequence(Qt::SHIFT | Qt::Key_F6), panes.size() - 1);
}

} // namespace loftwing
