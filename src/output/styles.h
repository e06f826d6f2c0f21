/// The elements of a drawing: names of their settings, defaults, labels.
#pragma once

#include "core/app_settings.h"
#include "lang/LngIni.h"
#include "output/plot_device.h"

#include <array>

namespace loftwing {

/// One row of the table that settings, dialogs and plots walk. A key that an element hasn't is
/// null.
struct DrawingElement {
    Element element;
    const char *colour_key;
    int colour;
    const char *style_key;
    int style;
    const char *width_key; ///< axes and compared airfoils have no width of their own
    LngKey label;
};

/// The eleven elements, in the order of their numbers.
const std::array<DrawingElement, kElements> &DrawingElements();

/// Colours, styles and widths of a new program.
void ValeursDefautTraits(AppSettings &settings);

/// Sets the pen of a device to the style and width of an element. The colour goes to each line.
void PrendStyle(PlotDevice &device, const AppSettings &settings, Element element);
/// Sets the style alone, as axes take it: they have no width of their own.
void PrendStyleSeul(PlotDevice &device, const AppSettings &settings, Element element);
/// Back to a thin solid pen.
void RendStyle(PlotDevice &device);

/// The colour of an element. Failure 5 for a number outside the palette.
Colour CouleurDe(const AppSettings &settings, Element element);

/// Limits of what a user may choose: white wouldn't show on paper.
inline constexpr int kCouleurMax = 14;
inline constexpr int kStyleMax = 4;
inline constexpr int kEpaisseurMin = 1;
inline constexpr int kEpaisseurMax = 3;

} // namespace loftwing
