/// The picture of a wing panel from above.
#pragma once

#include "programme/panel_plan.h"

#include <QWidget>

namespace loftwing {

/// Ribs with their numbers, spars and stocks, as large as the place allows: root at the left,
/// leading edge at the top. In the colours of the desktop.
class PlanPicture : public QWidget {
    Q_OBJECT

  public:
    explicit PlanPicture(QWidget *parent);

    /// An empty plan leaves the picture empty.
    void Montre(PlanPanneau plan);
    const PlanPanneau &Plan() const { return plan_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// What can be told from the ground.
    QColor ContourColour() const;
    QColor SparColour() const;
    QColor StockColour() const;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    PlanPanneau plan_;

    void PeintLignes(QPainter &painter, const QTransform &to) const;
    void PeintNumeros(QPainter &painter, const QTransform &to) const;
};

} // namespace loftwing
