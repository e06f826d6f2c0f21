#include "output/rib_plot.h"

#include "output/plot_steps.h"

namespace loftwing {

namespace {

void DrawRib(const Trace &trace) {
    PrepareTrace(trace);
    TraceDemiBF(trace);
    PlaceOrigine(trace);
    TraceTexteEpaisseur(trace);
    TraceBordAttaque(trace);
    TraceBordFuite(trace);
    if (trace.rib.AffTrac) {
        TraceContour(trace);
    }
    if (trace.rib.EpCoffrage != 0.0F) {
        TraceCoffrage(trace);
    }
    trace.FinDeStyle();
    if (trace.rib.NbRep != 0) {
        TraceReperes(trace);
    }
    if (trace.rib.AffLignRef) {
        TraceLigneReference(trace);
    }
    trace.FinDeStyle();
}

} // namespace

bool PrintSubroutine(const Trace &trace, [[maybe_unused]] double factor) {
    try {
        DrawRib(trace);
        return true;
    } catch (const Failure &failure) {
        trace.messages.ReportPlot(failure, " Main/PrintSubroutine");
        return false;
    }
}

} // namespace loftwing
