/// Titles of windows that hold the name of a file.
#pragma once

#include <QString>

#include <string_view>

namespace loftwing {

/// A title as it stands on one line, whatever name is in it: a "[*]" in a title would be taken for
/// the place of a mark, and a line end leads out of the title bar.
QString TitreDeFenetre(std::string_view text);

} // namespace loftwing
