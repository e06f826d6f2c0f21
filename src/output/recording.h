/// A drawing kept as a list of operations.
#pragma once

#include "output/plot_device.h"

#include <functional>
#include <variant>
#include <vector>

namespace loftwing {

struct DrawnSegment {
    double x1, y1, x2, y2;
    Pen pen;
    bool operator==(const DrawnSegment &) const = default;
};
struct DrawnCircle {
    double x, y, radius;
    Pen pen;
    bool operator==(const DrawnCircle &) const = default;
};
struct DrawnText {
    double x, y; ///< top left corner
    std::string text;
    TextFont font;
    Colour colour;
    double advance; ///< width in device units
    bool operator==(const DrawnText &) const = default;
};
using Operation = std::variant<DrawnSegment, DrawnCircle, DrawnText>;

/// Advance of a text in device units by the table of Arial's widths; characters outside ASCII count
/// as a lower-case letter.
double MeasuredAdvance(const std::string &text, const TextFont &font);

/// The extent of a drawing in device units; all 0 for an empty one.
struct Extent {
    double left = 0, top = 0, right = 0, bottom = 0;
};

/// A device that only remembers. The screen draws it again at each repaint, files walk it.
class Recording : public PlotDevice {
  public:
    /// How the surface on which the recording will be shown measures a text.
    using Measure = std::function<double(const std::string &, const TextFont &)>;
    explicit Recording(Measure measure = MeasuredAdvance) : measure_(std::move(measure)) {}

    const std::vector<Operation> &Operations() const { return operations_; }
    /// Whose each of them is, in the same order.
    const std::vector<SujetTrace> &Sujets() const { return sujets_; }
    void Clear();
    /// Extent of lines, circles and texts.
    Extent Bounds() const;

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override;
    void CircleOutline(double x, double y, double radius, const Pen &pen) override;
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override;

  private:
    Measure measure_;
    std::vector<Operation> operations_;
    std::vector<SujetTrace> sujets_;

    void Add(const Operation &operation);
};

/// Draws a recording again on another device, shifted by (dx, dy) device units. What the device
/// draws with is then what was drawn last.
void Redraw(const Recording &recording, PlotDevice &device, double dx = 0, double dy = 0);

} // namespace loftwing
