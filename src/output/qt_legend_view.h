/// The legend of colours and styles as a picture.
#pragma once

#include "lang/LngIni.h"
#include "output/recording.h"

#include <QWidget>

namespace loftwing {

/// Shows a drawing on white paper in every desktop theme, as large as it finds room, but never
/// smaller than the texts around it.
class LegendView : public QWidget {
    Q_OBJECT

  public:
    explicit LegendView(QWidget *parent = nullptr);

    /// What the view shows from now on.
    void Show(const LngIni &language);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    Recording drawing_;

    QSizeF Natural() const;
};

} // namespace loftwing
