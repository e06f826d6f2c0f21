// The levelling heel.

#include "core/stations.h"
#include "features/talon.h"
#include "output/plot_steps.h"

#include <cmath>

namespace loftwing {

namespace {

/// The foot of the heel: the chord line moved by the heel's height and turned by the washout.
class Pied {
  public:
    Pied(const Trace &trace, double height)
        : echelle_(Wide(trace.plot.Echelle)), echelle_y_(Wide(trace.plot.EchelleY)),
          s_(std::sin(trace.plot.VrillageRad)), c_(std::cos(trace.plot.VrillageRad)),
          x_(s_ * height * echelle_ + Wide(trace.plot.OrigineX)),
          y_(c_ * height * echelle_y_ + Wide(trace.plot.OrigineY)) {}

    /// Device position of the foot `distance` mm behind its start.
    double X(double distance) const { return x_ + distance * c_ * c_ * echelle_; }
    double Y(double distance) const { return y_ - distance * c_ * s_ * echelle_y_; }

  private:
    double echelle_, echelle_y_;
    double s_, c_;
    double x_, y_;
};

} // namespace

void TraceTalon(const Trace &trace) {
    const RibModel &rib = trace.rib;
    const Talon &talon = rib.talon;
    PlotState &plot = trace.plot;
    plot.VrillageRad = EnRadians(Wide(rib.vrillage));
    const double corde = Wide(rib.corde);
    const double echelle = Wide(plot.Echelle);
    const double origine = Wide(plot.OrigineX);
    const double rear = FaceTalon(rib, plot.EpRel, Wide(StationDepuisBF(talon.TalonBF, rib.corde)));
    const double front =
        FaceTalon(rib, plot.EpRel, Wide(StationDepuisBF(talon.TalonLong, rib.corde)));
    const Pied pied(trace, HauteurTalon(talon));
    trace.EnStyleDe(Element::bloc);
    trace.device.Line(pied.X(0), pied.Y(0), pied.X(corde), pied.Y(corde),
                      trace.Couleur(Element::axe));
    const Colour colour = trace.Couleur(Element::bloc);
    const double d = corde - talon.TalonBF;
    trace.device.Line(pied.X(d), pied.Y(d), d * echelle + origine, trace.Y(rear), colour);
    const double e = corde - talon.TalonLong;
    // The lean of the front line is that of a chord of 170.1 mm on every rib; jigs are built to it.
    const double lean =
        front * Quotient(3.0, Wide(rib.Zoom)) * echelle * std::tan(plot.VrillageRad);
    trace.device.Line(pied.X(e), pied.Y(e), (corde - (lean + talon.TalonLong)) * echelle + origine,
                      trace.Y(front), colour);
    TraceTexteInsere(trace);
    trace.FinDeStyle();
}

} // namespace loftwing
