/// Ribs at an angle as pictures.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// A panel from above, crossed by an oblique rib.
class ObliqueSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kExterne = "A";
    static constexpr const char *kInterne = "B";
    static constexpr const char *kAngle = "C";

    explicit ObliqueSketch(QWidget *parent = nullptr);

  protected:
    void Draw(SketchPainter &pen) const override;
};

/// The root of a panel with dihedral from the front: a rib square to the panel, and the upright one
/// at the root.
class InclineSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kAngle = "A";
    static constexpr const char *kOriginal = "B";
    static constexpr const char *kACalculer = "C";

    explicit InclineSketch(QWidget *parent = nullptr);

  protected:
    void Draw(SketchPainter &pen) const override;
};

} // namespace loftwing
