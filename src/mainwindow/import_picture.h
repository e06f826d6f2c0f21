/// The points of a file and the contour that an import made of them.
#pragma once

#include "core/curve.h"

#include <QPainter>
#include <QWidget>

#include <array>

namespace loftwing {

/// Both over each other as large as the place allows, x and y alike, in two of the desktop's
/// colours, with a legend below.
class ImportPicture : public QWidget {
    Q_OBJECT

  public:
    explicit ImportPicture(QWidget *parent);

    void Montre(const Curve &points, const Curve &contour);
    /// The words of points and contour in the legend.
    void Nomme(const QString &points, const QString &contour);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QColor PointsColour() const;
    QColor ContourColour() const;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    QPolygonF points_;
    QPolygonF contour_;
    std::array<QString, 2> words_; ///< points, contour

    QSizeF LegendSize() const;
    void PeintLegende(QPainter &painter) const;
};

} // namespace loftwing
