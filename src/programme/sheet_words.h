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

/// "Sheet 1 : 100 x 1000 mm, 12 pieces, 63.4 %".
std::string LignePlanche(const Messages &messages, const Planche &planche, std::size_t numero,
                         const std::string &Unite);
/// How many pieces lie on how many sheets, and how much of these is used.
std::string ResumePlanches(const Messages &messages, const Imbrication &planches);

} // namespace loftwing
