/// What a save box of several forms was left with.
#pragma once

#include "platform/platform.h"

#include <string>
#include <vector>

namespace loftwing {

/// `started` and `chosen` are the forms that the box began and ended with, `extensions` those of
/// the forms. A user who has gone to another form wants that one, and the name that the box
/// proposed follows; otherwise an extension that was typed says which form is meant. A name without
/// extension gets that of its form. Nothing happens to a cancel.
FormAnswer FormeVoulue(const std::string &path, int started, int chosen,
                       const std::vector<std::string> &extensions);

/// The extensions of such filters as "SVG (*.svg)"; empty where a filter has none.
std::vector<std::string> ExtensionsDe(const std::vector<std::string> &filters);

} // namespace loftwing
