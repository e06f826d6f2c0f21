/// The steps of the rib plot, each in the unit of what it draws. All take the trace of the run and
/// may raise a failure; what is on top in the drawing is what comes last.
#pragma once

#include "output/trace.h"

namespace loftwing {

/// Scale factors and the device's starting state.
void PrepareTrace(const Trace &trace);
/// DemiBF from the contour's two ends. Ends that tell nothing leave the last plot's value.
void TraceDemiBF(const Trace &trace);
/// The foam template from the origin in front of the rib, where one is set; else its working values
/// count as 0.
void TraceGabarit(const Trace &trace);
/// Moves the origin behind the foam template's ramp.
void PlaceOrigine(const Trace &trace);
/// The levelling heel.
void TraceTalon(const Trace &trace);
/// The line of text with the greatest thickness and its place.
void TraceTexteEpaisseur(const Trace &trace);
/// Leading edge: the stock's line and its height, or the V-notch square.
void TraceBordAttaque(const Trace &trace);
/// Trailing edge: the stock's line and its height. Without stock the line closes the rib.
void TraceBordFuite(const Trace &trace);
/// The user's line of text, where it has been given a place. `rampe`: mm from the origin to the
/// leading edge.
void TraceTexteInsere(const Trace &trace, double rampe = 0);
/// The airfoil's outline, from the dense contour.
void TraceContour(const Trace &trace);
/// The inner lines of the sheeting.
void TraceCoffrage(const Trace &trace);
/// Spars up to the first one at place 0, over the sheeting: nothing is cut out of contour lines.
void TraceLongerons(const Trace &trace);
/// Holes, the one being edited included.
void TraceTrous(const Trace &trace);
/// Numbered station lines.
void TraceReperes(const Trace &trace);
/// The reference line from the leading to the trailing edge.
void TraceLigneReference(const Trace &trace);

} // namespace loftwing
