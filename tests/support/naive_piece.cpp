#include "support/naive_piece.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace loftwing::naive {

namespace {

constexpr double kFar = 1e6;

double Place(const std::string &text, double corde) {
    const double number = std::atof(text.c_str());
    return text.find('%') != std::string::npos ? number * corde / 100 : number;
}

void Minus(Stretches &all, Stretch away) {
    Stretches left;
    for (const Stretch &one : all) {
        if (one.first < std::min(one.second, away.first)) {
            left.emplace_back(one.first, std::min(one.second, away.first));
        }
        if (std::max(one.first, away.second) < one.second) {
            left.emplace_back(std::max(one.first, away.second), one.second);
        }
    }
    all = left;
}

double Sum(const Stretches &all) {
    double sum = 0;
    for (const Stretch &one : all) {
        sum += one.second - one.first;
    }
    return sum;
}

} // namespace

NaivePiece::NaivePiece(const RibModel &rib)
    : rib_(rib), corde_(static_cast<double>(rib.corde)), e_(static_cast<double>(rib.EpCoffrage)) {
    for (int i = 1; i <= rib.NbContour; ++i) {
        xs_.push_back(rib.ContourX(i) * corde_);
        ys_.push_back(rib.ContourY(i) * corde_);
    }
    for (int slot = 0; slot <= rib.NbLongeron; ++slot) {
        const Longeron &spar = rib.longeron[static_cast<std::size_t>(slot)];
        if (Place(spar.PosLongAfich, corde_) == 0) {
            break;
        }
        AddNotches(spar);
    }
    for (int slot = 0; slot <= rib.NbTrou; ++slot) {
        const Trou &hole = rib.trou[static_cast<std::size_t>(slot)];
        const double x = Place(hole.PosTrouAfich, corde_);
        double y = static_cast<double>(hole.DecalTrou);
        if (hole.ChkCentre == 1.0F) {
            y += (PFaces(x).first + PFaces(x).second) / 2;
        }
        holes_.push_back({x, y, static_cast<double>(hole.DiaTrou) / 2,
                          static_cast<double>(hole.HautTrou) / 2, hole.TypeTrou == 0});
    }
}

void NaivePiece::AddNotches(const Longeron &spar) {
    const double x = Place(spar.PosLongAfich, corde_);
    const double half = static_cast<double>(spar.LargLong) / 2;
    const double h = static_cast<double>(spar.HautLong);
    const double d = static_cast<double>(spar.DistLong);
    for (const bool above : {true, false}) {
        const int option = above ? spar.OptLongExt : spar.OptLongInt;
        if (option == 0) {
            continue;
        }
        const auto face = [&](double at) {
            const Stretch p = PFaces(at);
            return option == 1 ? BodyFace(at, above) : above ? p.second : p.first;
        };
        const double in = above ? -1 : 1;
        if (spar.TypeLong == 2) {
            notches_.push_back({x, face(x) + in * (d + h), 1, 0, 0, in, half, 0, 0, true});
        } else if (spar.TypeLong == 0) {
            const double rise = face(x + half) - face(x - half);
            const double length = std::sqrt(rise * rise + 4 * half * half);
            const double c = 2 * half / length;
            const double s = rise / length;
            notches_.push_back({x, (face(x + half) + face(x - half)) / 2, c, s, -in * s, in * c,
                                half, h > 0 ? -kFar : 0, h, false});
        } else {
            notches_.push_back({x, face(x), 1, 0, 0, in, half, d == 0 ? -kFar : d, d + h, false});
        }
    }
}

bool NaivePiece::InP(double x, double y) const {
    bool in = false;
    for (std::size_t i = 0, j = xs_.size() - 1; i < xs_.size(); j = i++) {
        if ((ys_[i] > y) != (ys_[j] > y) &&
            x < xs_[i] + (xs_[j] - xs_[i]) * (y - ys_[i]) / (ys_[j] - ys_[i])) {
            in = !in;
        }
    }
    return in;
}

double NaivePiece::DistanceToP(double x, double y) const {
    double least = kFar * kFar;
    for (std::size_t i = 0, j = xs_.size() - 1; i < xs_.size(); j = i++) {
        const double dx = xs_[j] - xs_[i];
        const double dy = ys_[j] - ys_[i];
        const double square = dx * dx + dy * dy;
        double t = square == 0 ? 0 : ((x - xs_[i]) * dx + (y - ys_[i]) * dy) / square;
        t = std::max(0.0, std::min(1.0, t));
        const double px = xs_[i] + t * dx - x;
        const double py = ys_[i] + t * dy - y;
        least = std::min(least, px * px + py * py);
    }
    return std::sqrt(least);
}

bool NaivePiece::InBody(double x, double y) const {
    return InP(x, y) && (e_ == 0 || DistanceToP(x, y) >= e_);
}

bool NaivePiece::BetweenStocks(double x) const {
    return (rib_.TypeBA != 1 || x >= static_cast<double>(rib_.EpBA)) &&
           x <= corde_ - static_cast<double>(rib_.EpBF);
}

Stretches NaivePiece::POver(double x) const {
    std::vector<double> ys;
    for (std::size_t i = 0, j = xs_.size() - 1; i < xs_.size(); j = i++) {
        if ((xs_[i] > x) != (xs_[j] > x)) {
            ys.push_back(ys_[i] + (ys_[j] - ys_[i]) * (x - xs_[i]) / (xs_[j] - xs_[i]));
        }
    }
    std::sort(ys.begin(), ys.end());
    Stretches all;
    for (std::size_t i = 0; i + 1 < ys.size(); i += 2) {
        all.emplace_back(ys[i], ys[i + 1]);
    }
    return all;
}

Stretch NaivePiece::PFaces(double x) const {
    const Stretches all = POver(x);
    return all.empty() ? Stretch{0, 0} : Stretch{all.front().first, all.back().second};
}

/// Looks from the airfoil's surface inward for the first place that is deep enough.
double NaivePiece::BodyFace(double x, bool above) const {
    const Stretch p = PFaces(x);
    double outside = above ? p.second : p.first;
    double inside = outside;
    const double step = above ? -0.1 : 0.1;
    while (!InBody(x, inside)) {
        outside = inside;
        inside += step;
    }
    for (int i = 0; i < 40; ++i) {
        const double middle = (outside + inside) / 2;
        (InBody(x, middle) ? inside : outside) = middle;
    }
    return inside;
}

double NaivePiece::Foot(double x) const {
    const double angle = static_cast<double>(rib_.vrillage) * std::acos(-1.0) / 180;
    const double h = rib_.talon.OptTalon != 0 ? rib_.talon.TalonExtra : rib_.talon.TalonIntra;
    return -h * std::cos(angle) + (x - h * std::sin(angle)) * std::tan(angle);
}

bool NaivePiece::InVNotch(double x, double y) const {
    if (rib_.TypeBA == 1 || rib_.carre.CarreBA == 0.0F) {
        return false;
    }
    const double dx = x - static_cast<double>(rib_.carre.CarreBAX);
    const double dy = y - static_cast<double>(rib_.carre.CarreBAY);
    const double half = static_cast<double>(rib_.carre.CarreBA) * std::sqrt(0.5);
    return dx < 0 || std::abs(dx) + std::abs(dy) < half;
}

bool NaivePiece::InNotch(double x, double y) const {
    return std::any_of(notches_.begin(), notches_.end(), [&](const Notch &n) {
        const double u = (x - n.cx) * n.ux + (y - n.cy) * n.uy;
        const double v = (x - n.cx) * n.vx + (y - n.cy) * n.vy;
        return n.round ? std::hypot(u, v) < n.half : std::abs(u) < n.half && v > n.from && v < n.to;
    });
}

bool NaivePiece::InHole(double x, double y) const {
    return std::any_of(holes_.begin(), holes_.end(), [&](const Hole &hole) {
        return hole.round
                   ? std::hypot(x - hole.x, y - hole.y) < hole.half
                   : std::abs(x - hole.x) < hole.half && std::abs(y - hole.y) < hole.half_height;
    });
}

bool NaivePiece::InHeel(double x, double y) const {
    if (rib_.TypeGabarit != kGabaritTalon) {
        return false;
    }
    const double rear = corde_ - Place(rib_.talon.TalonBFAfich, corde_);
    const double front = rear - Place(rib_.talon.TalonBAAfich, corde_);
    if (x < front || x > rear || POver(x).empty()) {
        return false;
    }
    const double middle = (PFaces(x).first + PFaces(x).second) / 2;
    const double foot = Foot(x);
    return y > std::min(foot, middle) && y < std::max(foot, middle) &&
           !(BetweenStocks(x) ? InBody(x, y) : InP(x, y)) && !InNotch(x, y);
}

bool NaivePiece::Wood(double x, double y) const {
    const bool body =
        BetweenStocks(x) && InBody(x, y) && !InVNotch(x, y) && !InNotch(x, y) && !InHole(x, y);
    return body || InHeel(x, y);
}

Stretches NaivePiece::NotchesOver(double x) const {
    Stretches all;
    for (const Notch &n : notches_) {
        const double dx = x - n.cx;
        if (n.round) {
            const double half = std::sqrt(std::max(0.0, n.half * n.half - dx * dx));
            all.emplace_back(n.cy - half, n.cy + half);
            continue;
        }
        // Two bands cross: along the surface and into the wood.
        double low = -kFar * 2;
        double high = kFar * 2;
        const auto band = [&](double a, double b, double from, double to) {
            // from < a * dx + b * dy < to
            if (b == 0) {
                if (a * dx <= from || a * dx >= to) {
                    high = low;
                }
                return;
            }
            const double p = n.cy + (from - a * dx) / b;
            const double q = n.cy + (to - a * dx) / b;
            low = std::max(low, std::min(p, q));
            high = std::min(high, std::max(p, q));
        };
        band(n.ux, n.uy, -n.half, n.half);
        band(n.vx, n.vy, n.from, n.to);
        if (low < high) {
            all.emplace_back(low, high);
        }
    }
    return all;
}

/// What is cut out of the body over `x` beside its notches.
Stretches NaivePiece::Cuts(double x) const {
    Stretches all;
    if (rib_.TypeBA != 1 && rib_.carre.CarreBA != 0.0F) {
        const double dx = x - static_cast<double>(rib_.carre.CarreBAX);
        const double y = static_cast<double>(rib_.carre.CarreBAY);
        const double half = static_cast<double>(rib_.carre.CarreBA) * std::sqrt(0.5) - std::abs(dx);
        if (dx < 0) {
            all.emplace_back(-kFar, kFar);
        } else if (half > 0) {
            all.emplace_back(y - half, y + half);
        }
    }
    for (const Hole &hole : holes_) {
        const double dx = std::abs(x - hole.x);
        const double half = !hole.round ? (dx < hole.half ? hole.half_height : 0)
                                        : std::sqrt(std::max(0.0, hole.half * hole.half - dx * dx));
        all.emplace_back(hole.y - half, hole.y + half);
    }
    return all;
}

double NaivePiece::WoodOver(double x) const {
    const Stretches p = POver(x);
    const Stretches body_whole = BetweenStocks(x) ? p : Stretches{};
    Stretches body = body_whole;
    for (const Stretches &cuts : {Cuts(x), NotchesOver(x)}) {
        for (const Stretch &cut : cuts) {
            Minus(body, cut);
        }
    }
    Stretches heel;
    const double rear = corde_ - Place(rib_.talon.TalonBFAfich, corde_);
    const double front = rear - Place(rib_.talon.TalonBAAfich, corde_);
    if (rib_.TypeGabarit == kGabaritTalon && x > front && x < rear && !p.empty()) {
        const double middle = (PFaces(x).first + PFaces(x).second) / 2;
        heel = {{std::min(middle, Foot(x)), std::max(middle, Foot(x))}};
        for (const Stretches &cuts : {p, NotchesOver(x)}) {
            for (const Stretch &cut : cuts) {
                Minus(heel, cut); // without sheeting the body fills the airfoil
            }
        }
    }
    return Sum(body) + Sum(heel);
}

} // namespace loftwing::naive
