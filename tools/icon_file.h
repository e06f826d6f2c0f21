/// The file that Windows takes a program's picture from, in all its sizes.
#pragma once

#include <QImage>

#include <string>
#include <vector>

namespace loftwing {

/// The bytes of an .ico file with these square pictures, each of 1 to 256 pixels. The largest size
/// is held as PNG, the others as bitmaps, which all that reads such a file understands.
std::string IconFile(const std::vector<QImage> &pictures);

} // namespace loftwing
