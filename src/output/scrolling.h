/// How the picture scrolls and zooms: the numbers behind its bars, the wheel and a drag.
#pragma once

#include "core/rib_model.h"
#include "output/scroll_range.h"

#include <cstdint>
#include <optional>

namespace loftwing {

/// What one unit of a scroll bar moves the drawing by, in device units: half the chord as it is
/// zoomed.
double UniteDefilement(const RibModel &rib);

/// A drawing with what lies over it. The height of a view that doesn't move up and down is its own.
Extent AvecDessus(const RibModel &rib, const Extent &drawn, const Extent &over);

/// The ranges that both bars get. The vertical one runs from 0 at the top to a negative value at
/// the bottom.
struct Defilement {
    ScrollRange across;
    ScrollRange down;
};

/// The bars over a drawing that was made at the rib's present offsets and is looked at through
/// `width` and `height` device units. Without a drawing they stand still, and so does the vertical
/// one over a view of fixed height.
Defilement DefilementSur(const RibModel &rib, const std::optional<Extent> &drawn, double width,
                         double height);

/// The rib's offset where a bar has that value.
std::int16_t DecalageDe(int value);

/// What the values of the bars change by.
struct ScrollMove {
    int across = 0;
    int down = 0;

    bool operator==(const ScrollMove &) const = default;
};

/// A turn of the wheel in notches, positive to the left or up.
struct WheelNotches {
    double across = 0;
    double down = 0;

    bool operator==(const WheelNotches &) const = default;
};

/// The notches of a turn in eighths of a degree. A wheel that only turns up and down scrolls across
/// where `sideways` says so.
WheelNotches NotchesOf(int turn_x, int turn_y, bool sideways);

/// The move for an arrow key, of which one direction is -1 or 1: positive to the right or down. It
/// is one line of `steps` units.
ScrollMove ArrowMove(int across, int down, const ScrollMove &steps);

/// The move for a turn of the wheel, where a line is `steps` units of the bars.
ScrollMove WheelMove(const WheelNotches &notches, const ScrollMove &steps);

/// Dragging the drawing: whole units become a move, what is left over waits for the next one.
class ScrollDrag {
  public:
    /// Takes a drag by that many pixels, of which a unit of the bars has `unit`. Without a unit
    /// there is nothing to be dragged.
    ScrollMove Drag(int x, int y, double unit);

  private:
    int rest_x_ = 0;
    int rest_y_ = 0;
};

/// Zooming by the wheel: whole notches count, what is left over waits for the next turn.
class ZoomWheel {
  public:
    /// Takes a turn in eighths of a degree; gives the steps it came to, positive to a larger zoom.
    int Turn(int turn);

  private:
    int rest_ = 0;
};

/// A place of the picture in device units from its upper left corner.
struct PicturePlace {
    double x = 0;
    double y = 0;
};

/// The values of the bars at which the drawing still has at `place` what it has there now, to the
/// nearest unit, when it is zoomed from the rib's zoom to another.
ScrollMove ZoomAt(const RibModel &rib, const PicturePlace &place, float zoom);

/// How a drawing is seen whole.
struct WholeView {
    int row;         ///< of the zoom list
    ScrollMove bars; ///< their values

    bool operator==(const WholeView &) const = default;
};

/// The largest zoom of the list at which all of a drawing can be seen, the smallest one where none
/// does. The drawing was made at the rib's present zoom and offsets.
WholeView FitTo(const RibModel &rib, const Extent &drawn, double width, double height);

/// The row of the zoom list that lies so many steps from another; the larger zooms stand above.
int ZoomRow(int row, int steps);

} // namespace loftwing
