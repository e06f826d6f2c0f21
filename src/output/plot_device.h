/// The drawing target of all plot routines.
#pragma once

#include "output/sujet.h"

#include <cstdint>
#include <string>

namespace loftwing {

/// Device units are twips in name; on paper and in files exactly this many are one millimetre.
inline constexpr double kUnitsPerMm = 56.7;
/// Device units of one point of a font size.
inline constexpr double kUnitsPerPoint = 20.0;

/// A colour as 0xRRGGBB.
using Colour = std::uint32_t;

/// Colour number `number` of the 16-colour palette: 0 black, 1 blue, ... 15 white. Failure 5
/// outside 0 to 15.
Colour PaletteColour(int number);

/// The line styles, in the order of their numbers.
enum class LineStyle { solid, dash, dot, dash_dot, dash_dot_dot };

/// How a line or circle is drawn.
struct Pen {
    Colour colour = 0;
    int width = 1; ///< 1 to 3
    LineStyle style = LineStyle::solid;

    bool operator==(const Pen &) const = default;
};

struct TextFont {
    std::string name = "Arial";
    double size = 10; ///< points

    bool operator==(const TextFont &) const = default;
};

/// A surface with a current point, pen, font and text colour; y points down. A kind of device only
/// says how it puts down a segment, a circle and a text.
class PlotDevice {
  public:
    PlotDevice() = default;
    PlotDevice(const PlotDevice &) = delete;
    PlotDevice &operator=(const PlotDevice &) = delete;
    virtual ~PlotDevice() = default;

    TextFont Font;
    Colour ForeColor = 0;
    int DrawWidth = 1; ///< 1 to 3
    int DrawStyle = 0; ///< 0 to 4: solid, dash, dot, dash-dot, dash-dot-dot
    SujetTrace sujet;  ///< whose lines are drawn; a device may ignore it
    double CurrentX = 0;
    double CurrentY = 0;

    /// A line between two points, which leaves the current point at the second.
    void Line(double x1, double y1, double x2, double y2, Colour colour);
    /// A line from the current point by (dx, dy), which leaves the current point at its end.
    void LineStep(double dx, double dy, Colour colour);
    /// The outline of a circle.
    void Circle(double x, double y, double radius, Colour colour);
    /// Writes `text` with its top left corner at the current point and moves that past the text. An
    /// empty text draws nothing.
    void Print(const std::string &text);

  protected:
    virtual void Segment(double x1, double y1, double x2, double y2, const Pen &pen) = 0;
    virtual void CircleOutline(double x, double y, double radius, const Pen &pen) = 0;
    /// Writes a text with its top left corner at (x, y) and gives its advance in device units.
    virtual double Text(double x, double y, const std::string &text, const TextFont &font,
                        Colour colour) = 0;

  private:
    Pen PenOf(Colour colour) const;
};

} // namespace loftwing
