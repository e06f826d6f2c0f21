/// A label for texts that come from files.
#pragma once

#include <QLabel>

namespace loftwing {

/// Plain text of any length in a place of fixed width: what doesn't fit ends in "..." (one line) or
/// breaks anywhere and ends in "..." (several lines), and is whole in the tool tip unless the label
/// has its own. The layout of its window never follows the text.
class FittedLabel : public QLabel {
    Q_OBJECT

  public:
    /// A place `lines` lines high.
    FittedLabel(int lines, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

  private:
    int lines_;

    QString Fitted() const;
    int Flags(const QString &words) const;
    bool Holds(const QString &words) const; ///< in the label's lines
    bool Fits() const;
};

} // namespace loftwing
