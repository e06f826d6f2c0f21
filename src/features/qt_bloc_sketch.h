/// The measures of a foam template as a picture.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// A rib in its template, with the ramps before and behind it.
class BlocSketch : public Sketch {
    Q_OBJECT

  public:
    static constexpr const char *kBas = "A";
    static constexpr const char *kRampeBA = "B";
    static constexpr const char *kRampeBF = "C";
    static constexpr const char *kCoupeBF = "D";
    static constexpr const char *kHauteur = "E";
    static constexpr const char *kVrillage = "F";
    static constexpr const char *kLongueur = "L";

    explicit BlocSketch(QWidget *parent = nullptr);

    /// What the chord is called.
    void SetChordWord(const QString &word);
    /// Shows the tail at the height of the upper (0) or the lower surface (1).
    void Montre(int Optquebf);

  protected:
    void Draw(SketchPainter &pen) const override;

  private:
    QString chord_;
    bool lower_tail_ = false;

    void DrawBlock(SketchPainter &pen) const;
    static void DrawHeights(SketchPainter &pen);
    static void DrawAngle(SketchPainter &pen);
    void DrawLengths(SketchPainter &pen) const;
};

} // namespace loftwing
