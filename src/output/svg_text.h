/// Numbers, attributes and texts as SVG writes them.
#pragma once

#include "output/plot_device.h"

#include <string>

namespace loftwing {

/// Faces of Arial's widths stand in where it isn't installed.
inline constexpr const char *kSvgFaces = "Arial, Liberation Sans, Helvetica, sans-serif";

/// Up to `decimals` decimals, without zeros at the end; never a 0 with a minus.
std::string SvgNumber(double value, int decimals);

/// "#rrggbb".
std::string SvgColour(Colour colour);

/// One attribute with the blank before it. `value` must need no escape.
std::string SvgAttribute(const std::string &name, const std::string &value);

/// Text as XML takes it. Control characters have no place in it, and file names may hold bytes that
/// are no UTF-8.
std::string SvgText(const std::string &text);

} // namespace loftwing
