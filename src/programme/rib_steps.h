/// A rib's life in the main window: asked about, taken over, shown, cleared.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"
#include "programme/rib_avant.h"

namespace loftwing {

/// Whether to go on where changes of the rib could be lost. Without any, and while two airfoils are
/// compared, nothing is asked. The user may save the rib instead; a save that is cancelled or fails
/// keeps all as it is.
bool ConfirmePerte(Programme &programme, CommandView &view, LngKey text, LngKey title);

/// Whether the user wants to leave the program. A rib with changes can be saved before, thrown away
/// or kept on the screen.
bool ConfirmeFin(Programme &programme, CommandView &view);

/// The airfoil that was read takes over the rib, which was `before` until then, and brings its
/// chord along. A label of the airfoil before becomes the label of this one. Where something on the
/// rib has no room on the chord the user is asked. False when he keeps the rib that was there or
/// nothing of the airfoil can be drawn, which was told: the rib is then what it was to the last
/// value, as after a failure.
bool RepriseProfil(Programme &programme, CommandView &view, const RibAvant &before);

/// Makes the contour of the rib's airfoil and shows the rib; an impossible one clears it.
void RecalculProfil(Programme &programme, CommandView &view);

/// Asks for another chord and draws what follows it. A comparison takes the chord too, and the rib
/// doesn't count as changed by it.
void ChangeCorde(Programme &programme, CommandView &view);

/// Clears everything: rib, view and commands. The user's defaults are read anew. A failure is told,
/// and what comes after it stays as it is.
void VideTout(Programme &programme, CommandView &view);
/// The same as the user's command, which asks where changes could be lost.
void DemandeVide(Programme &programme, CommandView &view);

} // namespace loftwing
