// Notches for spars.

#include "features/longeron.h"
#include "output/plot_steps.h"
#include "output/spar_face.h"

namespace loftwing {

namespace {

/// A spar that cuts into one surface, in device units.
class Encoche {
  public:
    Encoche(const Trace &trace, const Longeron &spar, const PlaceTracee &place, Face face)
        : trace_(trace), face_(face), echelle_(Wide(trace.plot.Echelle)),
          echelle_y_(-face.inward * Wide(trace.plot.EchelleY)), w_(Wide(spar.LargLong)),
          h_(Wide(spar.HautLong)), d_(Wide(spar.DistLong)), xf_(trace.X(Wide(place.kf))),
          xr_(trace.X(Wide(place.kr))), colour_(trace.Couleur(Element::longeron)),
          axis_(trace.Couleur(Element::axe)) {}

    void Rond() const;
    void Droit() const;
    void SuitSurface() const;

  private:
    const Trace &trace_;
    Face face_;
    double echelle_;
    double echelle_y_; ///< device units of one mm inward; heights grow against them
    double w_, h_, d_; ///< width, depth, distance from the surface, mm
    double xf_, xr_;
    Colour colour_, axis_;

    /// The surface that depths count from: the contour or the inner face of the sheeting.
    double Y(double height) const {
        return trace_.Y(height + face_.inward * Wide(trace_.plot.DecalCoffr));
    }
};

void Encoche::Rond() const {
    const double y = Y(face_.c) + (d_ + h_) * echelle_y_;
    if (face_.inward < 0) {
        trace_.device.Line(xf_, y, xr_, y, axis_);
    } else {
        // Below, the depth is added instead of taken away, at the front by the unsigned scale: with
        // a depth the axis misses the centre. A fixed oddity: ribs drawn before have it so.
        const double near = Y(face_.c) + d_ * echelle_y_;
        trace_.device.Line(xf_, near + h_ * echelle_, xr_, near - h_ * echelle_y_, axis_);
    }
    trace_.device.Circle(xf_ + w_ / 2.0 * echelle_, y, w_ / 2.0 * echelle_, colour_);
}

void Encoche::Droit() const {
    const double y = Y(face_.c) + d_ * echelle_y_;
    trace_.device.Line(xf_, y, xr_, y, colour_);
    trace_.device.LineStep(0, h_ * echelle_y_, colour_);
    trace_.device.LineStep(-w_ * echelle_, 0, colour_);
    trace_.device.LineStep(0, -h_ * echelle_y_, colour_);
}

void Encoche::SuitSurface() const {
    const double corde = Wide(trace_.plot.CordeEchelle);
    const double corde_y = Wide(trace_.plot.CordeEchelleY);
    trace_.device.Line(xf_, Y(face_.f), xr_, Y(face_.r), colour_);
    const double t = Quotient(-face_.inward * (face_.r - face_.f), w_) * h_;
    trace_.device.LineStep(t * corde, h_ * echelle_y_, colour_);
    trace_.device.LineStep(-w_ * echelle_, (face_.r - face_.f) * corde_y, colour_);
    trace_.device.LineStep(-t * corde, -h_ * echelle_y_, colour_);
}

/// The notch in one surface, where `option` asks for one. Another kind than these has no shape.
void TraceEncoche(const Trace &trace, const Longeron &spar, const PlaceTracee &place, Face face,
                  std::uint8_t option) {
    if (option != kEncocheCoffrage && option != kEncocheContour) {
        return;
    }
    trace.plot.DecalCoffr = option == kEncocheContour ? 0.0F : trace.plot.EpRel;
    const Encoche notch(trace, spar, place, face);
    trace.EnStyleDe(Element::longeron);
    if (spar.TypeLong == kLongeronRond) {
        notch.Rond();
    } else if (spar.TypeLong == kLongeronDroit || spar.TypeLong == kLongeronDistance) {
        notch.Droit();
    } else if (spar.TypeLong == kLongeronSurface) {
        notch.SuitSurface();
    }
    trace.FinDeStyle();
}

/// Where a spar stands. Failure 9 where one of its edges is outside the rib.
PlaceTracee PlaceDe(const Trace &trace, const Longeron &spar) {
    PlaceTracee place = trace.PlaceAutour(spar.PosLong, spar.LargLong);
    place.Uf = trace.U(Wide(place.kf));
    place.Ur = trace.U(Wide(place.kr));
    place.Lf = trace.L(Wide(place.kf));
    place.Lr = trace.L(Wide(place.kr));
    return place;
}

void TraceAxe(const Trace &trace, const Longeron &spar, const PlaceTracee &place) {
    const double x = trace.X(Wide(place.kf)) + Wide(spar.LargLong) * Wide(trace.plot.Echelle) / 2.0;
    PrendStyleSeul(trace.device, trace.settings, Element::axe);
    trace.device.Line(x, trace.Y(place.Uc), x, trace.Y(place.Lc), trace.Couleur(Element::axe));
}

/// One slot; false at place 0, behind which no spar is drawn.
bool TraceLongeron(const Trace &trace, Longeron &spar, PlaceTracee &place) {
    // Anew each time: a place in percent follows the chord.
    spar.PosLong =
        PlaceDepuis(spar.PosLongAfich, spar.RefLong, trace.rib.corde, trace.SaisieEnCours());
    if (spar.PosLong == 0.0F) {
        return false;
    }
    place = PlaceDe(trace, spar);
    TraceAxe(trace, spar, place);
    TraceEncoche(trace, spar, place, FaceExtrados(place), spar.OptLongExt);
    TraceEncoche(trace, spar, place, FaceIntrados(place), spar.OptLongInt);
    return true;
}

} // namespace

void TraceLongerons(const Trace &trace) {
    bool more = true;
    for (int slot = 0; more && slot <= trace.rib.NbLongeron; ++slot) {
        trace.Nomme(
            {"FrmLines", "8"},
            [&] {
                trace.Pour({GenreSujet::longeron, slot}, [&] {
                    more = TraceLongeron(trace, At(trace.rib.longeron, slot),
                                         At(trace.plot.longerons, slot));
                });
            },
            slot + 1);
    }
}

} // namespace loftwing
