/// The measures of a V-notch square as a picture.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// The nose of a rib with the square stick in it.
class CarreSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kCote = "A";
    static constexpr const char *kX = "B";
    static constexpr const char *kY = "C";

    explicit CarreSketch(QWidget *parent = nullptr);

  protected:
    void Draw(SketchPainter &pen) const override;

  private:
    static void DrawMeasures(SketchPainter &pen);
};

} // namespace loftwing
