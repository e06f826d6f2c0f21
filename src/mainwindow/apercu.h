/// The airfoil picker's white paper.
#pragma once

#include "output/recording.h"

#include <QWidget>

#include <memory>

namespace loftwing {

/// Shows a preview as large as its place allows, always whole and on white paper, also in a dark
/// desktop theme.
class Apercu : public QWidget {
    Q_OBJECT

  public:
    explicit Apercu(QWidget *parent);

    void Montre(std::unique_ptr<Recording> drawing);
    /// Clears the paper.
    void Efface() { Montre(nullptr); }
    /// What is shown, null for clear paper.
    const Recording *Dessin() const { return drawing_.get(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    std::unique_ptr<Recording> drawing_;
};

} // namespace loftwing
