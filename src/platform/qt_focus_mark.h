/// A frame around what keys have led the focus to, where the style shows none.
#pragma once

#include <QWidget>

namespace loftwing {

/// Lies over a widget and lets the mouse through. After a click nobody asks where the focus is, so
/// it comes by Tab and the like only. Its two colours can be seen on any ground.
class FocusMark : public QWidget {
    Q_OBJECT

  public:
    /// Marks a widget from now on; the widget owns the mark.
    static void On(QWidget &widget) { new FocusMark(widget); }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    explicit FocusMark(QWidget &widget);
};

} // namespace loftwing
