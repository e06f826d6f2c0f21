/// The white paper on which a list of ribs stands.
#pragma once

#include "output/recording.h"

#include <QWidget>

#include <memory>

namespace loftwing {

/// Shows a recorded list on white paper, whatever the desktop's theme, its text as large as that of
/// the window.
class PicNervures : public QWidget {
    Q_OBJECT

  public:
    explicit PicNervures(QWidget *parent = nullptr);

    /// Takes a new drawing, null for clear paper.
    void Montre(std::unique_ptr<Recording> drawing);
    const Recording *Dessin() const { return drawing_.get(); }

    /// Logical pixels of so many device units.
    int Pixels(double units) const;
    /// The lowest place that is seen, in device units.
    double Bas() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void Redimensionne();
    /// The wheel, or the keys that stand for it: notches, positive up.
    void Roule(int notches);

  protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    std::unique_ptr<Recording> drawing_;
    int turn_ = 0; ///< wheel turn that made no whole notch yet

    double Scale() const;
};

} // namespace loftwing
