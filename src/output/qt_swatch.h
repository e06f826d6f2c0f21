/// The colour that a number means, as a patch beside it.
#pragma once

#include "output/plot_device.h"

#include <QWidget>

#include <optional>

namespace loftwing {

/// A patch of one colour in a thin frame, or crossed out where there is none.
class ColourSwatch : public QWidget {
    Q_OBJECT

  public:
    explicit ColourSwatch(QWidget *parent = nullptr);

    void Montre(const std::optional<Colour> &colour);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    std::optional<Colour> colour_;
};

} // namespace loftwing
