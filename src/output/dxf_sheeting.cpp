// Sheeting of the DXF drawing.

#include "output/dxf_trace.h"

namespace loftwing {

namespace {

/// The inner faces of the sheeting from the offsets that the last plot left.
class DxfFaces {
  public:
    explicit DxfFaces(const DxfTrace &trace) : trace_(trace) {}

    void EntreBords() const;
    void JusquauBordFuite() const;

  private:
    const DxfTrace &trace_;

    DxfPoint Extra(long k) const {
        const DecalageCoffrage &offsets = trace_.source.plot.extra;
        return {Sur(offsets, k),
                trace_.Y(At(trace_.source.rib.TabExtrados, k) - At(offsets.DecalY, k))};
    }
    /// The lower line takes its own height offset, where the plot between stocks has the upper one.
    DxfPoint Intra(long k) const {
        const DecalageCoffrage &offsets = trace_.source.plot.intra;
        return {Sur(offsets, k),
                trace_.Y(At(offsets.DecalY, k) + At(trace_.source.rib.TabIntrados, k) -
                         trace_.CoupeRel())};
    }
    double Sur(const DecalageCoffrage &offsets, long k) const {
        return trace_.X(static_cast<double>(k)) + At(offsets.DecalX, k) * trace_.corde;
    }
    void Trace(std::vector<DxfPoint> points) const {
        trace_.Polyligne(kDxfTrait, kCalqueCoffrage, std::move(points));
    }
};

void DxfFaces::EntreBords() const {
    const double first = Wide(trace_.source.plot.StationBF);
    const double last = Wide(trace_.source.plot.StationBA);
    std::vector<DxfPoint> upper;
    std::vector<DxfPoint> lower;
    for (int i = 1; i <= ToInt(last - first + 1.0); ++i) {
        const int k = ToInt(first - 1.0 + i);
        upper.push_back(Extra(k));
        lower.push_back(Intra(k));
    }
    Trace(std::move(upper));
    Trace(std::move(lower));
}

/// Whether the faces have crossed is told by the plain thickness, one station behind the point.
void DxfFaces::JusquauBordFuite() const {
    const RibModel &rib = trace_.source.rib;
    const PlotState &plot = trace_.source.plot;
    const double sheeting = Wide(plot.EpRel);
    const double cut = trace_.CoupeRel();
    const double stock =
        Wide(rib.EpBA) / (trace_.source.echelle_juste ? trace_.diviseur : 1.0) / trace_.corde;
    std::vector<DxfPoint> upper;
    std::vector<DxfPoint> lower;
    for (long k = 1; stock < static_cast<double>(kLastStation - k) / kLastStation; ++k) {
        const double top = At(rib.TabExtrados, k - 1) - sheeting;
        const double bottom = sheeting + At(rib.TabIntrados, k - 1);
        if (bottom - cut < top) {
            upper.push_back(Extra(k));
        }
        if (top + cut > bottom) {
            lower.push_back(Intra(k));
        }
    }
    Trace(std::move(upper));
    Trace(std::move(lower));
    const long k = plot.IdxFinCoffr;
    Trace({{trace_.X(static_cast<double>(k)), trace_.Y(At(rib.TabExtrados, k) - sheeting)},
           {trace_.Ox() + trace_.corde, trace_.Y(plot.DemiBF)}});
}

} // namespace

void DxfCoffrage(const DxfTrace &trace) {
    const DxfFaces faces(trace);
    if (trace.source.rib.EpBF > 0.0F) {
        faces.EntreBords();
    } else {
        faces.JusquauBordFuite();
    }
}

} // namespace loftwing
