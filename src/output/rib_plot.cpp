#include "output/rib_plot.h"

#include "output/plot_steps.h"

namespace loftwing {

namespace {

using Etape = void (*)(const Trace &);

/// A step of an element, whose name a failure carries.
void Draw(const Trace &trace, Element element, Etape step, GenreSujet genre = GenreSujet::aucun) {
    trace.Nomme(DrawingElements()[static_cast<std::size_t>(element)].label, [&] {
        trace.Pour({genre, 0}, [&] { step(trace); });
    });
}

/// What the leading edge has. Without stock its line closes the rib.
GenreSujet SujetBA(const RibModel &rib) {
    if (rib.TypeBA != 1) {
        return GenreSujet::carre;
    }
    return rib.EpBA == 0.0F ? GenreSujet::aucun : GenreSujet::baguette_ba;
}

} // namespace

void DrawRib(const Trace &trace) {
    const RibModel &rib = trace.rib;
    PrepareTrace(trace);
    TraceDemiBF(trace);
    Draw(trace, Element::bloc, TraceGabarit, GenreSujet::gabarit);
    PlaceOrigine(trace);
    if (rib.TypeGabarit == kGabaritTalon) {
        trace.Nomme({"FrmLines", "24"}, [&] {
            trace.Pour({GenreSujet::talon, 0}, [&] { TraceTalon(trace); });
        });
    }
    TraceTexteEpaisseur(trace);
    Draw(trace, Element::ba, TraceBordAttaque, SujetBA(rib));
    Draw(trace, Element::bf, TraceBordFuite,
         rib.EpBF == 0.0F ? GenreSujet::aucun : GenreSujet::baguette_bf);
    if (rib.TypeGabarit == kSansGabarit) {
        TraceTexteInsere(trace);
    }
    if (rib.AffTrac) {
        Draw(trace, Element::profil, TraceContour);
    }
    if (rib.EpCoffrage != 0.0F) {
        Draw(trace, Element::coffrage, TraceCoffrage);
    }
    TraceLongerons(trace);
    TraceTrous(trace);
    trace.FinDeStyle();
    if (rib.NbRep != 0) {
        Draw(trace, Element::rep, TraceReperes);
    }
    if (rib.AffLignRef) {
        Draw(trace, Element::axe, TraceLigneReference);
    }
    trace.FinDeStyle();
}

bool PrintSubroutine(const Trace &trace, [[maybe_unused]] double factor) {
    try {
        DrawRib(trace);
    } catch (const Failure &failure) {
        trace.messages.ReportPlot(failure, " Main/PrintSubroutine");
        return false;
    }
    return true;
}

} // namespace loftwing
