/// A window as its user sees it.
#pragma once

#include "platform/qt_text.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QWidget>

#include <stdexcept>
#include <string>
#include <vector>

namespace loftwing {

/// The object name of a control: "cmdok", or {"Text1", 2} for one of an array.
class ControlName {
  public:
    ControlName(const char *name) : name_(QString::fromUtf8(name)) {}
    ControlName(const std::string &name) : name_(Q(name)) {}
    ControlName(const QString &name) : name_(name) {}
    ControlName(const char *array, int index);
    ControlName(int) = delete; // a 0 is no name

    const QString &Text() const { return name_; }

  private:
    QString name_;
};

/// Finds the controls of a window by their names, reads what they show, types and clicks. A control
/// that there isn't is an exception, which ends the test or the user's part in it as a failure.
class Seen {
  public:
    explicit Seen(QWidget &window) : window_(&window) {}
    /// Looks at no window yet.
    Seen() = default;
    void Look(QWidget &window) { window_ = &window; }

    QWidget &Window() const { return *window_; }
    /// The window as what it is.
    template <class Dialog>
    Dialog &As() const {
        return dynamic_cast<Dialog &>(*window_);
    }
    std::string Name() const { return S(window_->objectName()); }
    std::string Title() const { return S(window_->windowTitle()); }
    bool IsOpen() const { return window_->isVisible(); }
    /// Closes it by its frame; says whether it let itself be closed.
    bool Close() const { return window_->close(); }

    template <class Widget = QWidget>
    Widget &Find(const ControlName &name) const {
        auto *found = window_->findChild<Widget *>(name.Text());
        if (found == nullptr) {
            throw std::runtime_error(Name() + " has no such control: " + S(name.Text()));
        }
        return *found;
    }
    bool Has(const ControlName &name) const { return window_->findChild<QWidget *>(name.Text()); }

    // What it shows.

    QLineEdit &Box(const ControlName &name) const { return Find<QLineEdit>(name); }
    std::string Text(const ControlName &name) const { return S(Box(name).text()); }
    std::string Label(const ControlName &name) const;
    std::string Frame(const ControlName &name) const;
    /// What stands on a button.
    std::string Word(const ControlName &name) const {
        return S(Find<QAbstractButton>(name).text());
    }
    std::string Tip(const ControlName &name) const { return S(Find(name).toolTip()); }
    bool Enabled(const ControlName &name) const { return Find(name).isEnabled(); }
    bool Shown(const ControlName &name) const { return Find(name).isVisible(); }
    bool Bold(const ControlName &name) const { return Find(name).font().bold(); }
    bool Chosen(const ControlName &name) const { return Find<QAbstractButton>(name).isChecked(); }
    std::string Selected(const ControlName &name) const { return S(Box(name).selectedText()); }
    bool Focused(const ControlName &name) const { return Find(name).hasFocus(); }
    bool FocusedAndSelected(const ControlName &name) const {
        return Focused(name) && Selected(name) == Text(name);
    }
    /// The name of the control with the focus.
    std::string Focus() const;
    /// Tab leads through these from what has the focus now.
    void ExpectTabs(const std::vector<const char *> &names) const;

    // What its user does.

    void Click(const ControlName &name) const;
    void GoTo(const ControlName &name) const { Find(name).setFocus(); }
    /// Goes to a field and types over what it holds, key by key.
    void Type(const ControlName &name, const QString &text) const;
    void Type(const ControlName &name, const std::string &text) const { Type(name, Q(text)); }
    void Type(const ControlName &name, const char *text) const { Type(name, QString(text)); }
    /// Types where the field's cursor or selection is.
    void Keys(const ControlName &name, const QString &text) const;
    /// Puts a whole text into a field at once, without the states between.
    void Fill(const ControlName &name, const std::string &text) const {
        Box(name).setText(Q(text));
    }
    void Key(const ControlName &name, Qt::Key key) const;
    /// Presses a key where the focus is.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

  private:
    QWidget *window_ = nullptr;
};

} // namespace loftwing
