/// What a step of the rib's history is called.
#pragma once

#include "core/messages.h"
#include "programme/rib_history.h"

#include <string>

namespace loftwing {

/// What was done between two states, by what differs first: a clear, another airfoil or file,
/// another view, then the rib's values and what is added to it ("spar 2").
std::string NomDuPas(const EtatRib &before, const EtatRib &after, const Messages &messages);

} // namespace loftwing
