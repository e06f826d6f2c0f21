#include "core/contour.h"

#include "core/contour_fault.h"

#include <array>
#include <cmath>

namespace loftwing {

namespace {

constexpr long kWindow = 6;
constexpr double kSamplesPerSegment = 10.0;
constexpr long kNoseReach = 4; // segments on either side of the file's middle

/// About how many samples the contour of `points` points has.
std::size_t SamplesOf(long points) {
    return static_cast<std::size_t>(std::max(points, 0L)) * 11;
}

void AppendSample(Profil &rib, double x, double y) {
    Increment(rib.NbContour);
    rib.ContourX.Append(x);
    rib.ContourY.Append(y);
}

/// Calls `sample` for each of the ten steps from `from` to `to`; it tells whether it made a point.
/// The loop value is 32 bits wide; rounding decides whether the tenth step falls inside. A step too
/// small to change the loop value repeats its sample until the count runs over; where it makes no
/// point nothing would ever end it, so that is the same failure at once.
template <class Sample>
void EachStep(double from, double to, Sample sample) {
    const float step = ToSingle((to - from) / kSamplesPerSegment);
    const float end = ToSingle(to);
    float v = ToSingle(from);
    while (step >= 0.0F ? v <= end : v >= end) {
        const bool made = sample(Wide(v));
        const float next = ToSingle(Wide(v) + Wide(step));
        if (next == v && !made) {
            throw MakeFailure(kOverflow);
        }
        v = next;
    }
}

/// Samples a segment. The points that a failure comes from are kept with the contour.
template <class Sampling>
void Segment(Profil &rib, const SegmentEchantillonne &segment, Sampling sampling) {
    try {
        sampling();
    } catch (const Failure &failure) {
        rib.faute = ChercheFaute(rib, segment, failure);
        throw;
    }
}

/// Samples segment i along x. A sample on the segment's own first point is dropped.
void SampleAlongX(Profil &rib, long i, long centre) {
    EachStep(rib.ProfilX(i), rib.ProfilX(i + 1), [&](double v) {
        if (rib.ProfilX(i) == v) {
            return false;
        }
        AppendSample(rib, v, InterpoleAitken(rib.ProfilX, rib.ProfilY, centre, v));
        return true;
    });
}

/// Samples segment i along y, for the nose, where the curve turns vertical.
void SampleAlongY(Profil &rib, long i) {
    EachStep(rib.ProfilY(i), rib.ProfilY(i + 1), [&](double v) {
        AppendSample(rib, InterpoleAitken(rib.ProfilY, rib.ProfilX, i, v), v);
        return true;
    });
}

void SegmentAlongX(Profil &rib, long i, long centre) {
    Segment(rib, {i, centre, false}, [&] { SampleAlongX(rib, i, centre); });
}

void SegmentAlongY(Profil &rib, long i) {
    Segment(rib, {i, i, true}, [&] { SampleAlongY(rib, i); });
}

/// Reports a failure with what `text` says of the airfoil's points.
void RapporteFaute(const RibModel &rib, const Messages &messages, Failure failure,
                   const char *label,
                   std::string (*text)(const RibModel &rib, const Messages &messages)) {
    failure.Precise(text(rib, messages));
    messages.Report(failure, label);
}

/// The abscissas and heights around a station that linear interpolation needs.
struct Encadrement {
    double xl = 0;
    double yl = 0;
    double xh = 0;
    double yh = 0;
};

double InterpoleStation(double t, const Encadrement &e) {
    constexpr double kSamePlace = 1e-6;
    if (std::abs(t - e.xl) < kSamePlace) {
        return e.yl;
    }
    if (std::abs(t - e.xh) < kSamePlace) {
        return e.yh;
    }
    // An entry that can't be computed (no width, or a height beyond all numbers) is 0.
    const double run = std::abs(e.xh - e.xl);
    if (run == 0.0) {
        return 0.0;
    }
    const double height = e.yl + (e.yh - e.yl) / run * std::abs(t - e.xl);
    return std::isfinite(height) ? height : 0.0;
}

/// Heights at falling abscissas over a run of points whose place in the run only moves on.
class HauteurStation {
  public:
    HauteurStation(long count, const PointList &x, const PointList &y) : n_(count), x_(x), y_(y) {}

    /// The height at x = 1 - f. `f` must not fall from call to call: the search goes on where it
    /// stopped, so that all stations together cost one walk along the run.
    double operator()(double f) {
        const double t = 1.0 - f;
        while (k_ <= n_ && x_(k_) > t) {
            ++k_;
        }
        return InterpoleStation(t, k_ > n_ ? BehindTheRun() : Bracket());
    }

  private:
    long n_;
    const PointList &x_;
    const PointList &y_;
    long k_ = 1;

    Encadrement Bracket() const {
        // In front of the first point there is nothing to read, which counts as 0.
        return k_ == 1 ? Encadrement{} : Encadrement{x_(k_ - 1), y_(k_ - 1), x_(k_), y_(k_)};
    }
    /// The upper surface goes on with the contour's next point; a list that ends here gives 0.
    Encadrement BehindTheRun() const {
        if (n_ < 1) {
            return {};
        }
        // A bracket without width answers 0, unless the station lies on the point itself.
        const long next = x_.Holds(n_ + 1) ? n_ + 1 : n_;
        return {x_(n_), y_(n_), x_(next), y_(next)};
    }
};

} // namespace

double InterpoleAitken(const PointList &xs, const PointList &ys, long centre, double v) {
    std::array<double, kWindow> q{};
    std::array<double, kWindow> d{};
    for (std::size_t k = 0; k < kWindow; ++k) {
        const long j = centre - 2 + static_cast<long>(k);
        q[k] = ys(j);
        d[k] = xs(j) - v;
    }
    for (std::size_t m = 1; m < kWindow; ++m) {
        for (std::size_t k = m; k < kWindow; ++k) {
            q[k] = Quotient(d[m - 1] * q[k] - d[k] * q[m - 1], d[m - 1] - d[k]);
        }
    }
    return q[kWindow - 1];
}

void Alocate(Profil &rib) {
    const long n = rib.NbPoints;
    const long middle = n / 2;
    rib.ContourX.Clear();
    rib.ContourY.Clear();
    rib.ContourX.Reserve(SamplesOf(n));
    rib.ContourY.Reserve(SamplesOf(n));
    rib.NbContour = 0;
    rib.faute = {};
    AppendSample(rib, rib.ProfilX(1), rib.ProfilY(1));
    SegmentAlongX(rib, 1, 3);
    SegmentAlongX(rib, 2, 3);
    for (long i = 3; i + 3 < n; ++i) {
        SegmentAlongX(rib, i, i);
        if (i == middle - kNoseReach) {
            while (i != middle + kNoseReach) {
                ++i;
                SegmentAlongY(rib, i);
            }
        }
    }
    // The segment from n - 3 to n - 2 is passed over: contours have always run straight across it.
    SegmentAlongX(rib, n - 2, n - 3);
    SegmentAlongX(rib, n - 1, n - 3);
    AppendSample(rib, rib.ProfilX(n), rib.ProfilY(n));
}

void MiniX(Profil &rib) {
    rib.MiniX = 1.0;
    rib.NbExtrados = 1;
    const int bound = ToInt((rib.NbContour + 60) / 2.0);
    for (int i = 1; i <= bound; ++i) {
        if (rib.MiniX > rib.ContourX(i)) {
            rib.MiniX = rib.ContourX(i);
            // Counts the minima and not their places: the station tables are matched to this.
            Increment(rib.NbExtrados);
        }
    }
}

void CalculExtradosMaxi(Profil &rib) {
    rib.ExtradosMaxi = 0;
    const int last = ToInt(rib.NbPoints / 2.0);
    for (int i = 1; i <= last; ++i) {
        rib.ExtradosMaxi = std::max(rib.ExtradosMaxi, rib.ProfilY(i));
    }
}

void CalculIntradosMini(Profil &rib) {
    rib.IntradosMini = 0;
    for (int i = ToInt(rib.NbPoints / 2.0); i <= rib.NbPoints; ++i) {
        rib.IntradosMini = std::min(rib.IntradosMini, rib.ProfilY(i));
    }
}

void SepareIntrados(Profil &rib) {
    rib.IntradosX.Clear();
    rib.IntradosY.Clear();
    for (long i = rib.NbContour; i >= rib.NbExtrados; --i) {
        rib.IntradosX.Append(rib.ContourX(i));
        rib.IntradosY.Append(rib.ContourY(i));
    }
    rib.NbIntrados = ToInt16(static_cast<double>(rib.IntradosX.Count()));
}

void TableStations(Profil &rib) {
    HauteurStation upper(rib.NbExtrados, rib.ContourX, rib.ContourY);
    HauteurStation lower(rib.NbIntrados, rib.IntradosX, rib.IntradosY);
    rib.TabExtrados[0] = 0;
    rib.TabIntrados[0] = 0;
    for (std::size_t i = 1; i <= kLastStation; ++i) {
        const double f = static_cast<double>(i) / kLastStation;
        rib.TabExtrados[i] = upper(f);
        rib.TabIntrados[i] = lower(f);
    }
}

void CalculEpMaxi(Profil &rib) {
    rib.EpMaxi = 0;
    rib.PosEpMaxi = -1;
    for (std::size_t i = 0; i <= kLastStation; ++i) {
        const double t = rib.TabExtrados[i] - rib.TabIntrados[i];
        if (t > rib.EpMaxi) {
            rib.EpMaxi = t;
            rib.PosEpMaxi += 1;
        }
    }
}

void CalculCambrure(Profil &rib) {
    rib.CambrureMaxi = 0;
    rib.PosCambrure = -1;
    for (std::size_t i = 0; i <= kLastStation; ++i) {
        const double c = (rib.TabExtrados[i] + rib.TabIntrados[i]) * 0.5;
        if (c > rib.CambrureMaxi) {
            rib.CambrureMaxi = c;
            Increment(rib.PosCambrure);
        }
    }
}

namespace {

void CherchePointsExtremes(Profil &rib) {
    MiniX(rib);
    CalculExtradosMaxi(rib);
    CalculIntradosMini(rib);
}

/// What is taken from a contour that has been made.
void MesureContour(Profil &rib) {
    SepareIntrados(rib);
    TableStations(rib);
    CalculEpMaxi(rib);
    CalculCambrure(rib);
}

} // namespace

void FaitContour(Profil &rib) {
    Alocate(rib);
    CherchePointsExtremes(rib);
    MesureContour(rib);
}

Preparation PrepareContourSeul(RibModel &rib, const Messages &messages) {
    Preparation result = Preparation::complete;
    try {
        Alocate(rib);
    } catch (const Failure &failure) {
        RapporteFaute(rib, messages, failure, " Calcul/Alocate", TexteFaute);
        result = Preparation::incomplete;
    }
    try {
        CherchePointsExtremes(rib);
    } catch (const Failure &failure) {
        if (result == Preparation::complete) {
            // Nothing failed before: the few points there are don't make a contour long enough.
            rib.faute.cause = CauseContour::trop_court;
        }
        RapporteFaute(rib, messages, failure, " Calcul/MiniX", TexteSansContour);
        return Preparation::impossible;
    }
    return result;
}

Preparation PrepareContour(RibModel &rib, const Messages &messages) {
    const Preparation result = PrepareContourSeul(rib, messages);
    if (result == Preparation::impossible) {
        return result;
    }
    MesureContour(rib);
    return result;
}

} // namespace loftwing
