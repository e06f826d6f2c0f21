/// The measures of a foam template as a picture.
#pragma once

#include "features/qt_sketch.h"

namespace loftwing {

/// What of the rib decides on how its template looks.
struct AspectBloc {
    int Optquebf = 0;     ///< the tail comes from 0 the upper, 1 the lower surface
    double vrillage = 0;  ///< washout; only its sign counts
    bool AffHaut = false; ///< the rib is shown upside down
};

/// The template as it is drawn around a rib, y upwards: a block that the washout turns about the
/// tip of its front ramp, and a tail that goes on from the trailing edge.
struct FormeBloc {
    QPointF haut_avant, haut_arriere, bas_avant, bas_arriere; ///< corners of the block
    QPointF bord;                                             ///< trailing edge
    QPointF queue;                                            ///< end of the tail
};

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
    /// Shows the template as the plot has it.
    void Montre(const AspectBloc &aspect);
    /// What is shown of it, in lines of text from the tip of the front ramp.
    FormeBloc Forme() const;

  protected:
    void Draw(SketchPainter &pen) const override;

  private:
    QString chord_;
    AspectBloc aspect_;

    double Inclinaison() const;
    QPointF Tourne(QPointF point) const;
    void DrawBlock(SketchPainter &pen) const;
    void DrawHeights(SketchPainter &pen) const;
    void DrawAngle(SketchPainter &pen) const;
    void DrawLengths(SketchPainter &pen) const;
};

} // namespace loftwing
