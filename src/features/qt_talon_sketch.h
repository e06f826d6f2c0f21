/// The measures of a levelling heel as a picture.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// A rib whose trailing edge is washed out upwards, on its heel.
class TalonSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kHauteur = "A";
    static constexpr const char *kMargeBA = "B";
    static constexpr const char *kMargeBF = "C";
    static constexpr const char *kVrillage = "D";

    explicit TalonSketch(QWidget *parent = nullptr);

    /// Shows the heel under the lower (0) or on the upper surface (1).
    void Montre(int OptTalon);

  protected:
    void Draw(SketchPainter &pen) const override;

  private:
    bool extra_ = false;

    QPointF FootAt(double distance) const;
    void DrawLeg(SketchPainter &pen, double distance) const;
    void DrawMeasures(SketchPainter &pen) const;
};

} // namespace loftwing
