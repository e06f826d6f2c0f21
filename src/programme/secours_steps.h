/// Unsaved work kept for the case of a crash, and had back at the next start.
#pragma once

#include "output/piece.h"
#include "programme/command_view.h"
#include "programme/programme.h"
#include "programme/secours.h"

#include <string>
#include <vector>

namespace loftwing {

/// Whether the last state that was noted has changes which a crash would cost.
bool AGarder(const Programme &programme);

/// Keeps that state, or takes away what was kept where there is nothing to keep any more.
void GardeTravail(Programme &programme);

/// The snapshots of windows that ended badly. Those that can't be read are told of.
std::vector<Orphelin> ChercheSecours(Programme &programme);

/// Shows the rib of a snapshot as it was, as changed work in its own unit, which holds for this rib
/// only. It is where this window's work begins: no step leads back before it. False where no
/// contour can be made of its points any more, which was told; the snapshot is put aside then.
bool RestaureRib(Programme &programme, CommandView &view, Orphelin orphelin);

/// The file that a rib is known by: its rib components file, or its airfoil.
const std::string &CheminConnu(const PartiesRib &parties);

/// The rib of a snapshot as a piece to be shown: the bare airfoil where it can't be cut, none where
/// it has no contour.
std::vector<Piece> PiecesDe(const Programme &programme, const Instantane &contenu);

} // namespace loftwing
