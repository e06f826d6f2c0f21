/// Keys that press the buttons of the tool bar.
#pragma once

#include <QObject>
#include <QString>

#include <vector>

class QAbstractButton;
class QAction;
class QMenuBar;
class QToolBar;

namespace loftwing {

/// Gives the buttons of a tool bar access keys that are neither the menu bar's nor given twice. A
/// letter of a button's own words is underlined there; "L.E." and "T.E." share their letters with
/// each other and the menus, so one of them has a letter of its tool tip. Where no underline tells
/// it, the tool tip shows the key.
class AccessKeys : public QObject {
    Q_OBJECT

  public:
    explicit AccessKeys(QMenuBar &menus) : menus_(menus) {}

    /// Buttons with words, then those of actions, which show an icon. All have their words and tool
    /// tips already.
    void Give(const std::vector<QAbstractButton *> &buttons, QToolBar &bar,
              const std::vector<QAction *> &icons);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QMenuBar &menus_;

    QString LettersOfMenus() const;
};

} // namespace loftwing
