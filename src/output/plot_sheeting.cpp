// The inner lines of the sheeting.

#include "core/stations.h"
#include "output/plot_steps.h"
#include "output/sheeting.h"

#include <cmath>

namespace loftwing {

namespace {

void Note(DecalageCoffrage &offsets, long k, const DecalageStation &station) {
    At(offsets.Angle, k) = station.Angle;
    At(offsets.DecalX, k) = station.DecalX;
    At(offsets.DecalY, k) = station.DecalY;
}

DecalageCoffrage DecaleSurface(const TableStation &heights, float EpRel) {
    DecalageCoffrage offsets;
    for (long k = 1; k <= kLastStation; ++k) {
        Note(offsets, k, Decale(heights, k, EpRel));
    }
    return offsets;
}

class Coffrage {
  public:
    explicit Coffrage(const Trace &trace)
        : trace_(trace), colour_(trace.Couleur(Element::coffrage)) {}

    void EntreBords() const;
    void JusquauBordFuite() const;

  private:
    const Trace &trace_;
    Colour colour_;

    void DecaleStation(long k) const {
        PlotState &plot = trace_.plot;
        Note(plot.extra, k, Decale(trace_.rib.TabExtrados, k, plot.EpRel));
        Note(plot.intra, k, Decale(trace_.rib.TabIntrados, k, plot.EpRel));
    }
    double Sur(const DecalageCoffrage &offsets, long k) const {
        return trace_.X(static_cast<double>(k)) +
               Wide(trace_.plot.CordeEchelle) * At(offsets.DecalX, k);
    }
    double HautExtra(long k) const {
        return At(trace_.rib.TabExtrados, k) - At(trace_.plot.extra.DecalY, k);
    }
    double HautIntra(long k, const DecalageCoffrage &across) const {
        return At(trace_.rib.TabIntrados, k) + At(across.DecalY, k) - Wide(trace_.plot.CoupeRel);
    }
    /// From station k to the next one up, on the upper and on the lower surface.
    void SegmentExtra(long k) const {
        const DecalageCoffrage &extra = trace_.plot.extra;
        trace_.device.Line(Sur(extra, k), trace_.Y(HautExtra(k)), Sur(extra, k + 1),
                           trace_.Y(HautExtra(k + 1)), colour_);
    }
    void SegmentIntra(long k, const DecalageCoffrage &across) const {
        const DecalageCoffrage &intra = trace_.plot.intra;
        trace_.device.Line(Sur(intra, k), trace_.Y(HautIntra(k, across)), Sur(intra, k + 1),
                           trace_.Y(HautIntra(k + 1, across)), colour_);
    }
    void Ferme() const;
};

/// Sheeting between two stock lines. The first segment starts from offsets that this pass doesn't
/// compute: an earlier plot left them, or EtatAmorce. The lower line takes its height from the
/// upper offsets.
void Coffrage::EntreBords() const {
    const int first = ToInt(Wide(trace_.plot.StationBF) + 1.0);
    const int last = ToInt(Wide(trace_.plot.StationBA));
    for (int k = first; k <= last; ++k) {
        DecaleStation(k);
        SegmentExtra(k - 1);
        SegmentIntra(k - 1, trace_.plot.extra);
    }
}

/// Sheeting that runs out into the trailing edge: where the inner faces have crossed nothing is
/// drawn, and the stations are counted.
void Coffrage::JusquauBordFuite() const {
    PlotState &plot = trace_.plot;
    const float stock = ToSingle(Quotient(Wide(trace_.rib.EpBA), Wide(trace_.rib.corde)));
    const double cut = Wide(plot.CoupeRel);
    for (long k = 0; stock < ToSingle(static_cast<double>(kLastStation - k) / kLastStation); ++k) {
        DecaleStation(k + 1);
        const double up = HautExtra(k);
        const double lo = At(plot.intra.DecalY, k) + At(trace_.rib.TabIntrados, k);
        if (lo - cut < up) {
            SegmentExtra(k);
        } else {
            Increment(plot.IdxFinCoffr);
        }
        if (up + cut > lo) {
            SegmentIntra(k, plot.intra);
        }
    }
    Ferme();
}

/// From the inner face of the upper sheeting to the middle of the trailing edge.
void Coffrage::Ferme() const {
    const PlotState &plot = trace_.plot;
    const long k = plot.IdxFinCoffr;
    trace_.device.Line(trace_.X(static_cast<double>(k)),
                       trace_.Y(At(trace_.rib.TabExtrados, k) - Wide(plot.EpRel)),
                       Wide(plot.OrigineX) + Wide(plot.CordeEchelle), trace_.Y(plot.DemiBF),
                       colour_);
}

} // namespace

float EpaisseurRelative(const RibModel &rib) {
    return ToSingle(Quotient(Wide(rib.EpCoffrage), Wide(rib.corde)));
}

DecalageStation Decale(const TableStation &heights, long k, float EpRel) {
    const double before = At(heights, k - 1);
    const double here = At(heights, k);
    const double thickness = Wide(EpRel);
    // The height difference is not divided by the stations' spacing, and an angle in degrees goes
    // to sine and cosine as if it were radians: the line leans a little instead of standing square
    // to the surface, and ribs cut for years depend on this very line.
    const double angle = std::atan(before - here) * 180.0 / Pi();
    const double lean = std::sin(angle) * thickness;
    return {angle, here - before <= 0.0 ? lean : -lean, std::cos(angle) * thickness};
}

PlotState EtatAmorce(const RibModel &rib) {
    PlotState plot;
    try {
        const float EpRel = EpaisseurRelative(rib);
        plot.extra = DecaleSurface(rib.TabExtrados, EpRel);
        plot.intra = DecaleSurface(rib.TabIntrados, EpRel);
    } catch (const Failure &) {
        // Of such a rib there is no plot either, and that says why.
    }
    return plot;
}

void TraceCoffrage(const Trace &trace) {
    trace.EnStyleDe(Element::coffrage);
    const Coffrage coffrage(trace);
    if (trace.rib.EpBF > 0.0F) {
        coffrage.EntreBords();
    } else {
        coffrage.JusquauBordFuite();
    }
    trace.FinDeStyle();
}

} // namespace loftwing
