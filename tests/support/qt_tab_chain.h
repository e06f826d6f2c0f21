/// Where the Tab key leads to.
#pragma once

#include <QWidget>

#include <vector>

namespace loftwing {

/// Presses Tab, or Shift+Tab, until the focus goes elsewhere: a page of text shows its links one
/// after the other first. Gives what has the focus then.
QWidget *TabOn(QWidget &window, bool back = false);

/// Where Tab leads to in a window, each place once, beginning with what has the focus.
std::vector<QWidget *> TabChain(QWidget &window);

} // namespace loftwing
