#include "support/naive_contour.h"

#include <cmath>
#include <cstddef>

namespace loftwing {

namespace {

/// What ends a computation: a read outside a list, a division by 0, a count or number too large.
struct Abandoned {};

constexpr long kMostPoints = 32767;

double Read(const std::vector<double> &list, long index) {
    if (index < 1 || index >= static_cast<long>(list.size())) {
        throw Abandoned{};
    }
    return list[static_cast<std::size_t>(index)];
}

double Checked(double value) {
    if (!(std::abs(value) <= 1.7976931348623157e308)) {
        throw Abandoned{};
    }
    return value;
}

float Single(double value) {
    const volatile float single = static_cast<float>(value); // surely 32 bits
    Checked(static_cast<double>(single));
    return single;
}

/// Half of a whole number, rounded, a half to the even neighbour.
long HalfRounded(long number) {
    const long half = number / 2;
    return number % 2 == 0 ? half : half + half % 2;
}

double Aitken(const std::vector<double> &xs, const std::vector<double> &ys, long c, double v) {
    double q[7];
    double d[7];
    for (long k = 1; k <= 6; ++k) {
        const long j = c - 3 + k;
        q[k] = Read(ys, j);
        d[k] = Read(xs, j) - v;
    }
    for (long m = 2; m <= 6; ++m) {
        for (long k = m; k <= 6; ++k) {
            const double divisor = d[m - 1] - d[k];
            if (divisor == 0.0) {
                throw Abandoned{};
            }
            q[k] = Checked((d[m - 1] * q[k] - d[k] * q[m - 1]) / divisor);
        }
    }
    return q[6];
}

class Densifier {
  public:
    Densifier(const NaiveAirfoil &airfoil, NaiveAirfoil &contour) : p_(airfoil), c_(contour) {}

    void Run() {
        const long n = p_.Count();
        Append(Read(p_.x, 1), Read(p_.y, 1));
        AlongX(1, 3);
        AlongX(2, 3);
        long i = 3;
        while (i + 3 < n) {
            AlongX(i, i);
            if (i == n / 2 - 4) {
                do {
                    i = i + 1;
                    AlongY(i);
                } while (i != n / 2 + 4);
            }
            i = i + 1;
        }
        long j = n - 3;
        while (j < n - 1) {
            j = j + 1;
            AlongX(j, n - 3);
        }
        Append(Read(p_.x, n), Read(p_.y, n));
    }

  private:
    const NaiveAirfoil &p_;
    NaiveAirfoil &c_;

    void Append(double x, double y) {
        if (c_.Count() == kMostPoints) {
            throw Abandoned{};
        }
        c_.Add(x, y);
    }

    struct Value {
        double v;
        bool endless; ///< the step doesn't change it: the loop never gets past it
    };

    /// The values of the counted loop from `from` to `to`.
    static std::vector<Value> Values(double from, double to) {
        const float step = Single((to - from) / 10.0);
        const float end = Single(to);
        std::vector<Value> values;
        for (float v = Single(from); step < 0.0F ? v >= end : v <= end;) {
            const volatile float next = v + step;
            values.push_back({static_cast<double>(v), next == v});
            if (next == v) {
                break;
            }
            v = next;
        }
        return values;
    }

    void AlongX(long i, long centre) {
        for (const Value &value : Values(Read(p_.x, i), Read(p_.x, i + 1))) {
            do {
                if (Read(p_.x, i) != value.v) {
                    Append(value.v, Aitken(p_.x, p_.y, centre, value.v));
                } else if (value.endless) {
                    throw Abandoned{}; // no point, for ever
                }
            } while (value.endless);
        }
    }
    void AlongY(long i) {
        for (const Value &value : Values(Read(p_.y, i), Read(p_.y, i + 1))) {
            do {
                Append(Aitken(p_.y, p_.x, i, value.v), value.v);
            } while (value.endless);
        }
    }
};

/// The height at x = 1 - f on the first n points of a list. What can't be had is 0.
double Height(long n, const NaiveAirfoil &list, double f) {
    const double t = 1.0 - f;
    long lo = 0;
    long hi = 0;
    for (long k = 1; k <= n; ++k) {
        if (list.x[static_cast<std::size_t>(k)] <= t) {
            break;
        }
        lo = k;
        hi = k + 1;
    }
    if (lo == 0) {
        return 0.0; // index 0 reads as the point (0, 0), and so do both ends of the bracket
    }
    const double xl = Read(list.x, lo);
    const double yl = Read(list.y, lo);
    if (std::abs(t - xl) < 1e-6) {
        return yl;
    }
    if (hi > list.Count()) {
        return 0.0;
    }
    const double xh = Read(list.x, hi);
    const double yh = Read(list.y, hi);
    if (std::abs(t - xh) < 1e-6) {
        return yh;
    }
    if (xl == xh) {
        return 0.0;
    }
    const double height = yl + (yh - yl) / std::abs(xh - xl) * std::abs(t - xl);
    return std::isfinite(height) ? height : 0.0;
}

void FindNose(NaiveContour &r) {
    r.MiniX = 1.0;
    r.NbExtrados = 1;
    for (long i = 1; i <= HalfRounded(r.contour.Count() + 60); ++i) {
        const double x = Read(r.contour.x, i);
        if (r.MiniX > x) {
            r.MiniX = x;
            r.NbExtrados = r.NbExtrados + 1;
        }
    }
}

void FindExtremes(const NaiveAirfoil &airfoil, NaiveContour &r) {
    const long n = airfoil.Count();
    for (long i = 1; i <= HalfRounded(n); ++i) {
        const double y = Read(airfoil.y, i);
        r.ExtradosMaxi = y > r.ExtradosMaxi ? y : r.ExtradosMaxi;
    }
    for (long i = HalfRounded(n); i <= n; ++i) {
        const double y = Read(airfoil.y, i);
        r.IntradosMini = y < r.IntradosMini ? y : r.IntradosMini;
    }
}

void FillTables(NaiveContour &r) {
    r.TabExtrados.assign(401, 0.0);
    r.TabIntrados.assign(401, 0.0);
    for (std::size_t i = 1; i <= 400; ++i) {
        const double f = static_cast<double>(i) / 400.0;
        r.TabExtrados[i] = Height(r.NbExtrados, r.contour, f);
        r.TabIntrados[i] = Height(r.intrados.Count(), r.intrados, f);
    }
}

void FindMaxima(NaiveContour &r) {
    r.PosEpMaxi = -1;
    r.PosCambrure = -1;
    for (std::size_t i = 0; i <= 400; ++i) {
        const double thickness = r.TabExtrados[i] - r.TabIntrados[i];
        if (thickness > r.EpMaxi) {
            r.EpMaxi = thickness;
            r.PosEpMaxi = r.PosEpMaxi + 1;
        }
        const double camber = (r.TabExtrados[i] + r.TabIntrados[i]) * 0.5;
        if (camber > r.CambrureMaxi) {
            r.CambrureMaxi = camber;
            r.PosCambrure = r.PosCambrure + 1;
        }
    }
}

} // namespace

NaiveContour ComputeNaively(const NaiveAirfoil &airfoil) {
    NaiveContour r;
    try {
        Densifier(airfoil, r.contour).Run();
    } catch (const Abandoned &) {
        r.alocate_failed = true;
    }
    try {
        FindNose(r);
        FindExtremes(airfoil, r);
    } catch (const Abandoned &) {
        r.minix_failed = true;
        return r;
    }
    for (long i = r.contour.Count(); i >= r.NbExtrados; --i) {
        r.intrados.Add(Read(r.contour.x, i), Read(r.contour.y, i));
    }
    FillTables(r);
    FindMaxima(r);
    return r;
}

} // namespace loftwing
