/// F6 leads from one part of a window to the next.
#pragma once

#include <vector>

class QWidget;

namespace loftwing {

/// Lets F6 take the focus to the next of the parts that is shown and has something alive in it, and
/// Shift+F6 to the one before. A part that takes no focus itself gives it to its first control.
void LeadThroughPanes(QWidget &window, const std::vector<QWidget *> &panes);

} // namespace loftwing
