/// Images drawn by the program, in the colours of the desktop's theme and for any screen.
#pragma once

#include <QIcon>
#include <QPalette>

namespace loftwing {

/// The image of tool bar button `index`; empty for separators and placeholders.
QIcon ToolIcon(int index, const QPalette &palette);

} // namespace loftwing
