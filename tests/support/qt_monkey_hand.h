/// What a hand does at mouse and keyboard, by the window system's way: what a modal window blocks
/// stays blocked, and popups catch what isn't for them.
#pragma once

#include "support/monkey_dice.h"
#include "support/monkey_log.h"

#include <QPointer>
#include <QWidget>

#include <string>

namespace loftwing {

class MonkeyHand {
  public:
    MonkeyHand(Dice &dice, MonkeyLog &log) : dice_(dice), log_(log) {}

    /// What the log has in front of what is done from here on.
    void Begins(const std::string &prefix) { prefix_ = prefix; }

    // Each logs one thing and then does it. What it touched may be gone afterwards.

    void Click(QWidget &window);
    /// In the middle of a widget of the window.
    void ClickOn(QWidget &window, QWidget &widget);
    void DoubleClick(QWidget &window);
    void Drag(QWidget &window);
    void Wheel(QWidget &window);
    void ContextMenu(QWidget &window);
    /// Into a field of the window, mostly something that belongs there.
    void Type(QWidget &window);
    void Paste(QWidget &window);
    /// A key that is no letter, or a shortcut.
    void Key(QWidget &window);
    /// A file, or a text, onto the window.
    void Drop(QWidget &window, const std::string &path);
    void Resize(QWidget &window);

  private:
    /// A place of a window.
    struct Spot {
        QWidget *widget; ///< what is there
        QPoint at;       ///< in the window
    };

    Dice &dice_;
    MonkeyLog &log_;
    std::string prefix_;
    int time_ = 0; ///< ms, of the last click

    void Says(const std::string &what) { log_.Line(prefix_ + what); }
    Spot AnySpot(QWidget &window);
    QWidget *AnyField(QWidget &window);
    QString AnyText();
    void Mouse(const QPointer<QWidget> &window, QPoint at, QEvent::Type type,
               Qt::MouseButton button, bool held);
    void ClickAt(const QPointer<QWidget> &window, QPoint at, Qt::MouseButton button);
    void Press(const QPointer<QWidget> &window, int key, Qt::KeyboardModifiers modifiers,
               const QString &text);
    void TypeText(const QPointer<QWidget> &window, const QString &text);
};

/// A widget by name, or by kind where it has none.
std::string NameOf(const QWidget &widget);

} // namespace loftwing
