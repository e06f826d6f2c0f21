/// What there is to say of a piece, in the user's words.
#pragma once

#include "core/messages.h"
#include "output/piece.h"

#include <string>
#include <vector>

namespace loftwing {

/// "Hole 2 leaves the wood and opens it."
std::string TexteAvis(const Messages &messages, const Avis &avis);
/// All of a piece. Those of a template say which one.
std::vector<std::string> TextesAvis(const Messages &messages, const Piece &piece);

/// Why there is no piece.
std::string TexteRefus(const Messages &messages, const RefusPiece &refus);

/// "upper template"; empty for a rib.
std::string NomDePiece(const Messages &messages, GenrePiece genre);

/// What is asked for, with the names of templates for their labels.
DemandePiece AvecNoms(const Messages &messages, DemandePiece demande);

} // namespace loftwing
