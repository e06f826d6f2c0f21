// Spars and holes of the DXF drawing.

#include "features/longeron.h"
#include "features/trou.h"
#include "output/dxf_trace.h"
#include "output/spar_face.h"

#include <array>
#include <cmath>

namespace loftwing {

namespace {

/// A spar that cuts into one surface, in the file's unit.
class DxfEncoche {
  public:
    DxfEncoche(const DxfTrace &trace, const Longeron &spar, const PlaceTracee &place, Face face,
               double decal)
        : trace_(trace), face_(face), decal_(decal), w_(trace.Longueur(spar.LargLong)),
          h_(face.inward * trace.Longueur(spar.HautLong)),
          d_(face.inward * trace.Longueur(spar.DistLong)), xf_(trace.X(Wide(place.kf))),
          xr_(trace.X(Wide(place.kr))) {}

    /// Above and below the axis runs through the circle's centre.
    void Rond() const {
        const double y = Y(face_.c) + d_ + h_;
        trace_.Polyligne(kDxfAxe, kCalqueAxe, {{xf_, y}, {xr_, y}});
        trace_.Cercle(kCalqueLongeron, {w_ / 2.0 + xf_, y}, w_ / 2.0);
    }
    void Droit() const {
        const double y = Y(face_.c) + d_;
        Forme({{xf_, y}, {xr_, y}, {xr_, y + h_}, {xr_ - w_, y + h_}});
    }
    void SuitSurface() const {
        const double slope = Quotient(face_.f - face_.r, w_) * h_;
        const DxfPoint corner{xr_ + slope * trace_.corde, Y(face_.r) + h_};
        Forme({{xf_, Y(face_.f)},
               {xr_, Y(face_.r)},
               corner,
               {corner.x - w_, corner.y + (face_.f - face_.r) * trace_.corde}});
    }

  private:
    const DxfTrace &trace_;
    Face face_;
    double decal_;
    double w_, h_, d_; ///< depth and distance with the sign of inward
    double xf_, xr_;

    /// The surface that depths count from: the contour or the inner face of the sheeting.
    double Y(double height) const { return trace_.Y(height + face_.inward * decal_); }
    /// Open: the side on the surface isn't cut.
    void Forme(std::vector<DxfPoint> points) const {
        trace_.Polyligne(kDxfTrait, kCalqueLongeron, std::move(points));
    }
};

void Encoche(const DxfTrace &trace, const Longeron &spar, const PlaceTracee &place, Face face,
             std::uint8_t option) {
    if (option != kEncocheCoffrage && option != kEncocheContour) {
        return;
    }
    const double decal = option == kEncocheContour ? 0.0 : Wide(trace.source.plot.EpRel);
    const DxfEncoche notch(trace, spar, place, face, decal);
    if (spar.TypeLong == kLongeronRond) {
        notch.Rond();
    } else if (spar.TypeLong == kLongeronSurface) {
        notch.SuitSurface();
    } else if (spar.TypeLong == kLongeronDroit || spar.TypeLong == kLongeronDistance) {
        notch.Droit();
    }
}

/// A hole in the file's unit.
struct DxfPercage {
    double xf, xr, xc;
    double y;
    double w, hh;
};

DxfPercage PercageDe(const DxfTrace &trace, const Trou &trou, const PlaceTracee &place) {
    // The station is rounded down here, where the plot takes the nearest.
    const double station = std::abs(std::floor(
        Quotient(kLastStation * Wide(trou.PosTrou) / trace.diviseur, trace.corde) - kLastStation));
    const double top = trace.U(station);
    const double base = trou.ChkCentre == 1.0F ? (top - trace.L(station)) / 2.0 : top;
    DxfPercage hole{};
    hole.w = trace.Longueur(trou.DiaTrou);
    hole.hh = trace.Longueur(trou.HautTrou);
    hole.xf = trace.X(Wide(place.kf));
    hole.xr = trace.X(Wide(place.kr));
    hole.xc = hole.w / 2.0 + hole.xf;
    hole.y = trace.Y(top - base) + trace.Longueur(trou.DecalTrou);
    return hole;
}

void Axes(const DxfTrace &trace, const DxfPercage &hole, double half) {
    trace.Polyligne(kDxfAxe, kCalqueAxe, {{hole.xf, hole.y}, {hole.xr, hole.y}});
    trace.Polyligne(kDxfAxe, kCalqueAxe, {{hole.xc, hole.y - half}, {hole.xc, hole.y + half}});
}

void Rond(const DxfTrace &trace, const DxfPercage &hole) {
    trace.Cercle(kCalqueTrou, {hole.xc, hole.y}, hole.w / 2.0);
    Axes(trace, hole, hole.w / 4.0); // half as long as in the plot
}

void Rectangle(const DxfTrace &trace, const DxfPercage &hole) {
    const double half = hole.hh / 2.0;
    trace.Polyligne(kDxfForme, kCalqueTrou,
                    {{hole.xf, hole.y},
                     {hole.xf, hole.y + half},
                     {hole.xr, hole.y + half},
                     {hole.xr, hole.y - half},
                     {hole.xf, hole.y - half}});
    Axes(trace, hole, hole.hh / 1.5);
}

constexpr std::array kFormes = {Rond, Rectangle}; // in the order of kGenresTrou
static_assert(kFormes.size() == kGenresTrou.size());

} // namespace

void DxfLongerons(const DxfTrace &trace) {
    const RibModel &rib = trace.source.rib;
    for (int slot = 0; slot <= rib.NbLongeron; ++slot) {
        const Longeron &spar = At(rib.longeron, slot);
        if (spar.PosLong == 0.0F) {
            return;
        }
        const PlaceTracee &place = At(trace.source.plot.longerons, slot);
        const double x = trace.Longueur(spar.LargLong) / 2.0 + trace.X(Wide(place.kf));
        trace.Polyligne(kDxfAxe, kCalqueAxe, {{x, trace.Y(place.Uc)}, {x, trace.Y(place.Lc)}});
        Encoche(trace, spar, place, FaceExtrados(place), spar.OptLongExt);
        Encoche(trace, spar, place, FaceIntrados(place), spar.OptLongInt);
    }
}

void DxfTrous(const DxfTrace &trace) {
    const RibModel &rib = trace.source.rib;
    for (int slot = 0; slot <= rib.NbTrou; ++slot) {
        const Trou &trou = At(rib.trou, slot);
        const DxfPercage hole = PercageDe(trace, trou, At(trace.source.plot.trous, slot));
        if (trou.TypeTrou < kFormes.size()) {
            kFormes[trou.TypeTrou](trace, hole);
        }
    }
}

} // namespace loftwing
