/// Sketches that explain the measures of a window: a schematic rib with dimension lines, whose
/// letters stand at the fields too.
#pragma once

#include <QPen>
#include <QWidget>

#include <optional>
#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPainter;

namespace loftwing {

/// A word in a sketch, and where the last painting put it, in pixels of the widget.
struct SketchWord {
    QString text;
    QRectF place;
};

/// How a line of a sketch is drawn.
enum class SketchLine {
    rib,   ///< contour of the rib
    added, ///< what the window adds to it
    axis,  ///< reference line
    aid    ///< where a measure ends
};

/// The colour of such a line on a window: as much of the desktop's as can be seen there.
QColor SketchColour(const QPalette &palette, SketchLine kind);

/// What a sketch draws with. Points are in lines of text from the sketch's origin, y upwards, so
/// that a drawing leaves its words the same room at every size of font.
class SketchPainter {
  public:
    SketchPainter(QPainter &painter, const QWidget &widget, QPointF origin, double unit,
                  QString strong, std::vector<SketchWord> &words);

    /// The same with its origin at `origin`.
    SketchPainter Moved(QPointF origin) const;
    /// The same upside down about its origin; words stay upright.
    SketchPainter Mirrored() const;

    void Line(QPointF from, QPointF to, SketchLine kind);
    void Line(const QPolygonF &points, SketchLine kind);
    /// A closed outline, filled lightly.
    void Area(const QPolygonF &points, SketchLine kind);
    /// A dimension line with its letter in the middle; a short one has its arrows outside and the
    /// letter beyond `to`.
    void Measure(const QString &letter, QPointF from, QPointF to);
    /// An angle from `start` to `end` degrees (counter-clockwise from the right) with arrows at
    /// both ends and its letter to the right.
    void Angle(const QString &letter, QPointF centre, double radius, double start, double end);
    /// A word whose middle is at `centre`.
    void Word(const QString &text, QPointF centre);

  private:
    QPainter &painter_;
    const QWidget &widget_;
    QPointF origin_;
    double unit_;
    double up_ = 1; ///< -1 upside down
    QString strong_;
    std::vector<SketchWord> &words_;

    QPointF At(QPointF point) const;
    QPolygonF At(const QPolygonF &points) const;
    QPen PenFor(SketchLine kind) const;
    QPen MeasurePen(const QString &letter) const;
    void Arrow(QPointF tip, QPointF from);
    void Put(const QString &text, QPointF centre, bool bold);
    QSizeF SizeOf(const QString &text) const;
    double GapFor(const QString &letter, QPointF direction) const;
};

/// A schematic airfoil: height of a surface in fractions of the chord at x = 0 to 1. Its trailing
/// edge is blunt, which leaves room for a measure there.
double SketchUpper(double x);
double SketchLower(double x);
/// Its outline up to `last` (in fractions of the chord), with the leading edge at `nose` and the
/// chord `length`, from the end of the upper surface round the nose.
QPolygonF SketchOutline(QPointF nose, double length, double last = 1);

/// A picture that explains measures. Follows font, palette and the screen's scale.
class Sketch : public QWidget {
    Q_OBJECT

  public:
    /// A canvas that many lines of text wide and high, with the drawing's origin `origin` lines
    /// from its lower left corner.
    Sketch(QSizeF canvas, QPointF origin, QWidget *parent = nullptr);

    /// What the leading and the trailing edge are called.
    void SetEdgeWords(const QString &leading, const QString &trailing);
    /// Draws the measure `letter` strongly while `field` has the focus.
    void Follow(QWidget &field, const QString &letter);
    /// What the last painting wrote.
    const std::vector<SketchWord> &Words() const { return words_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    virtual void Draw(SketchPainter &pen) const = 0;
    const QString &LeadingWord() const { return leading_; }
    const QString &TrailingWord() const { return trailing_; }

    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QSizeF canvas_;
    QPointF origin_;
    QString leading_;
    QString trailing_;
    QString strong_;
    std::vector<SketchWord> words_;
};

/// A label that shows the letter of a measure.
QLabel *MeasureLetter(const QString &letter);

/// A row of a form: the letter that the measure has in the sketch, its caption, its field, the
/// unit.
struct MeasureRow {
    QString letter;
    QLabel &caption;
    QLineEdit &field;
    QString unit;
};

/// Puts a row into a grid whose columns are letter, caption, field and unit, makes the caption the
/// field's, and lets the sketch follow it.
void AddMeasure(QGridLayout &grid, int row, Sketch &sketch, const MeasureRow &measure);

} // namespace loftwing
