// Leading and trailing edge of the rib plot.

#include "core/stations.h"
#include "output/plot_steps.h"
#include "output/rib_measures.h"

#include <cmath>

namespace loftwing {

namespace {

constexpr double kTexteBordAuDessus = 283.5;   // 5 mm at any zoom
constexpr double kTexteBordFuiteAvant = 850.5; // 15 mm at any zoom

/// A cut across the rib at device position x, from surface to surface at `station`.
void TraceCoupe(const Trace &trace, double x, double station, Element element) {
    trace.EnStyleDe(element);
    trace.device.Line(x, trace.Y(trace.U(station)), x, trace.Y(trace.L(station)),
                      trace.Couleur(element));
    trace.FinDeStyle();
}

/// The height of the rib at `station` behind its word, above the rib at device position x.
void EcritHauteur(const Trace &trace, double x, double station, LngKey word) {
    const double corde = Wide(trace.rib.corde);
    const double height = corde * trace.U(station) - corde * trace.L(station);
    trace.Ecrit(x,
                Wide(trace.plot.OrigineY) - Wide(trace.plot.CordeEchelle) * trace.rib.ExtradosMaxi -
                    kTexteBordAuDessus,
                trace.messages.Text(word) + " = " + LongueurCalculee(height, trace.settings.Unite));
}

/// The square stick on its corner, as a diamond around its axis.
void TraceCarreBord(const Trace &trace) {
    const CarreBord &carre = trace.rib.carre;
    const PlotState &plot = trace.plot;
    const double d = Quotient(Wide(carre.CarreBA), kDiagonaleCarre);
    const double x = Wide(carre.CarreBAX);
    const double y = Wide(carre.CarreBAY);
    const double echelle = Wide(plot.Echelle);
    const double echelle_y = Wide(plot.EchelleY);
    const double origine_x = Wide(plot.OrigineX);
    const double origine_y = Wide(plot.OrigineY);
    const Colour colour = trace.Couleur(Element::ba);
    trace.EnStyleDe(Element::ba);
    trace.device.Line(x * echelle + origine_x, origine_y - (d + y) * echelle_y,
                      (d + x) * echelle + origine_x, origine_y - y * echelle_y, colour);
    trace.device.LineStep(-d * echelle, d * echelle_y, colour);
    trace.device.LineStep(-d * echelle, -d * echelle_y, colour);
    // Upside down the last side goes the wrong way and the diamond stays open. A fixed oddity:
    // sheets printed upside down have it.
    trace.device.LineStep(d * echelle, -d * echelle, colour);
    trace.FinDeStyle();
}

} // namespace

void TraceBordAttaque(const Trace &trace) {
    const RibModel &rib = trace.rib;
    PlotState &plot = trace.plot;
    plot.StationBA = kLastStation;
    if (rib.TypeBA != 1) {
        TraceCarreBord(trace);
        return;
    }
    plot.StationBA = StationDepuisBA(Wide(rib.EpBA), rib.corde);
    const double station = Wide(plot.StationBA);
    TraceCoupe(trace, trace.X(station), station, Element::ba);
    if (rib.EpBA != 0.0F && rib.AffHautBA) {
        EcritHauteur(trace, Wide(plot.OrigineX), station, {"MainTolbar", "15"});
    }
}

void TraceBordFuite(const Trace &trace) {
    const RibModel &rib = trace.rib;
    PlotState &plot = trace.plot;
    const double part = Quotient(Wide(rib.EpBF), Wide(rib.corde));
    plot.StationBF = ToSingle(std::abs(part * kLastStation));
    const double station = Wide(plot.StationBF);
    const double corde = Wide(plot.CordeEchelle);
    const double origine = Wide(plot.OrigineX);
    TraceCoupe(trace, (1.0 - part) * corde + origine, station, Element::bf);
    if (rib.EpBF != 0.0F && rib.AffHautBF) {
        EcritHauteur(trace, origine + corde - kTexteBordFuiteAvant, station, {"MainTolbar", "21"});
    }
}

} // namespace loftwing
