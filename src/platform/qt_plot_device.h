/// Drawings on the toolkit's painter: screen, pictures, printer, PDF.
#pragma once

#include "output/plot_device.h"
#include "output/recording.h"

#include <QColor>
#include <QPolygonF>

#include <array>

class QFont;
class QPainter;
class QPen;

namespace loftwing {

/// On the screen this many device units are one logical pixel: 1440 an inch at 96 pixels an inch.
inline constexpr double kUnitsPerPixel = 15.0;

/// How device units and pens land on a painter. All lengths are in the painter's own units.
struct PlotSurface {
    double scale = 1;                             ///< of one device unit
    std::array<double, 3> pen_widths = {1, 2, 3}; ///< of the pens 1, 2, 3
    double dash_scale = 1;                        ///< of one mm of a dash pattern
};

/// A surface of logical pixels; high-DPI screens have more dots to each, not other sizes.
PlotSurface ScreenSurface();

/// A sheet whose painter has `dpi` units an inch: 56.7 device units are exactly one millimetre.
PlotSurface PaperSurface(double dpi);

/// Puts lines, circles and texts on a painter. Segments of one pen that join are held back until
/// their run ends, since a dash pattern must go on from one to the next: a contour is hundreds of
/// segments shorter than a dash.
class PlotPainter {
  public:
    /// Keeps `painter`, which must be active as long as this draws; its state is put back at the
    /// end.
    PlotPainter(QPainter &painter, const PlotSurface &surface);
    PlotPainter(const PlotPainter &) = delete;
    PlotPainter &operator=(const PlotPainter &) = delete;
    ~PlotPainter();

    void Segment(double x1, double y1, double x2, double y2, const Pen &pen);
    void Circle(double x, double y, double radius, const Pen &pen);
    /// Writes a text with its top left corner at (x, y) and gives its advance in device units.
    double Text(double x, double y, const std::string &text, const TextFont &font, Colour colour);
    /// Draws what is held back.
    void Flush();

  private:
    QPainter &painter_;
    PlotSurface surface_;
    QPolygonF run_;
    Pen run_pen_;

    QPen PenFor(const Pen &pen) const;
    void Dot(const QPointF &at, const Pen &pen);
};

/// A plot device on a painter.
class QtPlotDevice : public PlotDevice {
  public:
    QtPlotDevice(QPainter &painter, const PlotSurface &surface) : plot_(painter, surface) {}

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override {
        plot_.Segment(x1, y1, x2, y2, pen);
    }
    void CircleOutline(double x, double y, double radius, const Pen &pen) override {
        plot_.Circle(x, y, radius, pen);
    }
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override {
        return plot_.Text(x, y, text, font, colour);
    }

  private:
    PlotPainter plot_;
};

/// Draws a recording again.
void Replay(const Recording &recording, QPainter &painter, const PlotSurface &surface);

/// Advance in device units of a text on the screen; for recordings that are made for it.
double ScreenAdvance(const std::string &text, const TextFont &font);

/// The same on paper.
double PaperAdvance(const std::string &text, const TextFont &font);

} // namespace loftwing
