/// A row of numbers from which the user chooses a spar or a hole.
#pragma once

#include "features/slot_rules.h"

#include <QLabel>
#include <QWidget>

#include <array>
#include <string>

namespace loftwing {

/// A label that can be clicked, by key too where it gets the focus.
class ClickLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ClickLabel(QWidget *parent = nullptr);

    /// The border of what is chosen. It takes its room from the margin, so that it moves nothing.
    void Marque(bool marked);
    bool EstMarque() const { return marked_; }

  Q_SIGNALS:
    void Clicked();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    bool marked_ = false;
};

/// Twelve labels with the numbers from 1; those not in use yet are blank. A border marks the one
/// that is shown. To the Tab key the row is one stop: within it the arrow keys lead to the next
/// number.
class NumberedList : public QWidget {
    Q_OBJECT

  public:
    explicit NumberedList(QWidget *parent = nullptr);

    std::array<ClickLabel, kNumeros> &Labels() { return labels_; }
    void SetTip(const std::string &tip);
    /// What the numbers count, for those who can't see the caption beside them.
    void Nomme(const QString &caption);

    /// Numbers the labels 0 to `last` and blanks the others.
    void Numerote(int last);
    /// Gives one label a border and takes it from all others.
    void Marque(int index);
    void SansMarque();

  Q_SIGNALS:
    /// A number was clicked; blank labels don't answer.
    void Clicked(int index);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    std::array<ClickLabel, kNumeros> labels_;
    std::string tip_;
    QString caption_;
    int last_ = -1;

    void MarqueOuNon(int marked);
    void ArretTabulation(int index);
    void RegleLargeur();
    void Deplace(const QObject *from, int step);
};

} // namespace loftwing
