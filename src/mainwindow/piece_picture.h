/// The preview of pieces that are to be cut.
#pragma once

#include "output/cut_forms.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace loftwing {

/// Pieces on white paper as large as the place allows: wood, what is cut out of it, and the marks
/// in the colours that a file has.
class PiecePicture : public QWidget {
    Q_OBJECT

  public:
    explicit PiecePicture(QWidget *parent);

    /// Pieces as they lie in the drawing; none for an empty picture. On a sheet of stock, whose
    /// upper right corner is given, all of that is shown.
    void Montre(std::vector<Piece> pieces, const CouleursDecoupe &couleurs,
                std::optional<PointMm> planche = std::nullopt);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    std::vector<Piece> pieces_;
    CouleursDecoupe couleurs_;
    std::optional<PointMm> planche_;

    void PeintMarques(QPainter &painter, const QTransform &to) const;
};

} // namespace loftwing
