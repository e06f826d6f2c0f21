/// The measures of a tapered panel as a picture.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// A panel from above with its ribs and its spar, the major chord on the left.
class PanneauSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kCordeMaj = "A";
    static constexpr const char *kCordeMin = "B";
    static constexpr const char *kLongPanneau = "C";
    static constexpr const char *kLongeronMaj = "D";
    static constexpr const char *kLongeronMin = "E";
    static constexpr const char *kEprNervure = "F";
    static constexpr const char *kEcart = "G";

    explicit PanneauSketch(QWidget *parent = nullptr);

  protected:
    void Draw(SketchPainter &pen) const override;
};

} // namespace loftwing
