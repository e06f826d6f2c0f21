/// How views come to stand in the rib's place: the commands that bring them up, step by step.
#pragma once

#include "programme/command_view.h"
#include "programme/programme.h"

namespace loftwing {

/// Compares two airfoils at one chord. Airfoil 1 is asked for unless the user keeps the one of the
/// last comparison.
void CompareProfils(Programme &programme, CommandView &view);

/// Changes thickness and camber of an airfoil; the new one, which the user saves, is then opened.
void ModifieEpCourb(Programme &programme, CommandView &view);

/// Clears everything and plots an airfoil from its bare points.
void TraceSimple(Programme &programme, CommandView &view);

} // namespace loftwing
