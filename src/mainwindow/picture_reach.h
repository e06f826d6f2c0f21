/// How the mouse takes hold of what is drawn in the main window's picture.
#pragma once

#include "output/touche.h"
#include "platform/qt_plot_device.h"

#include <QPointF>

namespace loftwing {

struct PictureReach {
    /// A line may be missed by that much, in the drawing's units: 6 pixels.
    static constexpr double kReach = 6 * kUnitsPerPixel;
    /// Of what is taken hold of: readable on the white paper beside every colour of the lines.
    static constexpr Colour kColour = 0xC2410C;

    static LieuTrace Place(const QPointF &pixel) {
        return {pixel.x() * kUnitsPerPixel, pixel.y() * kUnitsPerPixel};
    }
};

} // namespace loftwing
