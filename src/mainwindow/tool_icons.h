/// Images drawn by the program, in the colours that the desktop has when they are shown and for any
/// screen.
#pragma once

#include <QIcon>

namespace loftwing {

/// The image of tool bar button `index`; empty for separators and placeholders.
QIcon ToolIcon(int index);

/// Images of buttons of other windows.
enum class Image { back, forward, contents, close };
QIcon ImageOf(Image image);

} // namespace loftwing
