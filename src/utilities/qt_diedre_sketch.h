/// The measures of a dihedral as a picture.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// A wing panel from the front that rises from its root.
class DiedreSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kAngle = "A";
    static constexpr const char *kLongueur = "B";
    static constexpr const char *kHauteur = "C";

    explicit DiedreSketch(QWidget *parent = nullptr);

  protected:
    void Draw(SketchPainter &pen) const override;
};

} // namespace loftwing
