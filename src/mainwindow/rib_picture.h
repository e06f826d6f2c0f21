/// The picture of a rib that the program shows of itself.
#pragma once

#include <QWidget>

namespace loftwing {

/// A wooden rib on paper, drawn in any size; a click anywhere on it is told.
class RibPicture : public QWidget {
    Q_OBJECT

  public:
    explicit RibPicture(QWidget *parent);
    QSize sizeHint() const override;

  Q_SIGNALS:
    void Clique();

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

} // namespace loftwing
