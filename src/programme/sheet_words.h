/// What there is to say of pieces on sheets, in the user's words.
#pragma once

#include "core/messages.h"
#include "output/nesting.h"

#include <string>

namespace loftwing {

/// Why pieces can't be laid on sheets; the piece's name isn't in it. Empty where the user called
/// it off himself.
std::string TexteRefusPlanche(const Messages &messages, const RefusPlanche &refus,
                              const std::string &Unite);

} // namespace loftwing
