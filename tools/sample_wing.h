/// The wing that comes with the program, in the window for wing panels.
#pragma once

#include "programme/programme.h"

#include <QDialog>

#include <string>

namespace loftwing {

/// Gives the window both ribs, which lie in `folder`, and the spacing of the tour. The rib of the
/// programme stays what it is.
void OpenSampleWing(QDialog &panel, Programme &programme, const std::string &folder);

/// Types where its second hole ends, once the window has listed what the ribs carry.
void EndHoleOfSampleWing(QDialog &panel, const Programme &programme);

} // namespace loftwing
