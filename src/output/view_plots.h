/// The drawings that may stand in the rib's place: two airfoils compared, an airfoil with its new
/// thickness and camber, the bare points of a file. Each routine is of the rib plot's kind: it
/// draws at the scale and origin set by its caller, reports a failure under its label and then
/// gives false. None reads `factor`: it is there so that all four plot routines are called alike.
#pragma once

#include "core/comparaison.h"
#include "output/trace.h"

#include <string>

namespace loftwing {

/// Two contours over each other under their names. The view is never upside down.
bool PrintRoutine2(const Trace &trace, const Comparaison &compare, double factor);
/// The rib's contour and, from the tables NouvExtrados and NouvIntrados, its new section.
bool PrintRoutineEpcourb(const Trace &trace, double factor);
/// The points of the file, joined, and the inserted text.
bool PrintRoutineCouple(const Trace &trace, double factor);

/// Whether two airfoils are compared. A comparison that was called off at its chord leaves its mode
/// set without anything to show.
bool CompareEnVue(const RibModel &rib, const Comparaison &compare);

/// The plot routine of the view that is up, the rib's where there is none. Screen, printer and
/// files all draw through this choice, so that what is seen is what is printed and saved.
bool TraceVue(const Trace &trace, const Comparaison &compare);

/// The new section's name, thickness and camber in %.
std::string NomNouveau(const RibModel &rib, const Messages &messages);

} // namespace loftwing
