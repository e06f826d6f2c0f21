#include "output/surface_parallel.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

/// A mitre of limit 2 is one whose corner is at most two shifts away: 1 + cos(turn) is then 0.5.
constexpr double kOnglet = 0.5;
constexpr double kDroit = 1e-9; // sine of a turn that is none

struct Arete {
    PointMm normale; ///< to the right, of length 1
    double longueur;
};

class Coin {
  public:
    Coin(const PointMm &at, const Arete &before, const Arete &after, double mm, double ecart)
        : at_(at), before_(before), after_(after), mm_(mm), ecart_(ecart),
          sine_(before.normale.x * after.normale.y - after.normale.x * before.normale.y),
          cosine_(before.normale.x * after.normale.x + before.normale.y * after.normale.y) {}

    void Ajoute(Anneau &ring, Coins coins) const {
        if (std::abs(sine_) < kDroit && cosine_ > 0) {
            ring.push_back(A(after_.normale, mm_));
        } else if (sine_ * mm_ < 0) {
            Rentrant(ring);
        } else if (coins == Coins::ronds) {
            Rond(ring);
        } else if (1 + cosine_ >= kOnglet) {
            ring.push_back(Onglet());
        } else {
            Coupe(ring);
        }
    }

  private:
    PointMm at_;
    const Arete &before_;
    const Arete &after_;
    double mm_, ecart_, sine_, cosine_;

    PointMm A(const PointMm &direction, double far) const {
        return {at_.x + direction.x * far, at_.y + direction.y * far};
    }
    PointMm Onglet() const {
        return A({before_.normale.x + after_.normale.x, before_.normale.y + after_.normale.y},
                 mm_ / (1 + cosine_));
    }

    /// Where the shifted edges overlap they end at their crossing, as long as that takes less than
    /// half of each. Else both go to their ends and over the corner itself, whose loop runs
    /// clockwise.
    void Rentrant(Anneau &ring) const {
        const double shorter = std::min(before_.longueur, after_.longueur) / 2;
        if (1 + cosine_ > kOnglet && std::abs(mm_ * sine_) < shorter * (1 + cosine_)) {
            ring.push_back(Onglet());
            return;
        }
        ring.push_back(A(before_.normale, mm_));
        ring.push_back(at_);
        ring.push_back(A(after_.normale, mm_));
    }

    void Rond(Anneau &ring) const {
        const double half = std::sqrt(std::max(0.0, 1 + cosine_) / 2); // cosine of half the turn
        if (std::abs(mm_) * (1 - half) < ecart_ * half) {
            ring.push_back(Onglet());
            return;
        }
        const double turn = std::atan2(sine_, cosine_);
        const double share = 2 * std::acos(std::max(0.0, 1 - ecart_ / std::abs(mm_)));
        const int steps = std::max(1, static_cast<int>(std::ceil(std::abs(turn) / share)));
        for (int i = 0; i <= steps; ++i) {
            const double angle = turn * i / steps;
            const double c = std::cos(angle);
            const double s = std::sin(angle);
            const PointMm &n = before_.normale;
            ring.push_back(A({n.x * c - n.y * s, n.x * s + n.y * c}, mm_));
        }
    }

    /// Square across the corner, at the distance of the shift.
    void Coupe(Anneau &ring) const {
        const double part = std::tan(std::atan2(sine_, cosine_) / 4);
        const PointMm &n = before_.normale;
        const PointMm &m = after_.normale;
        ring.push_back(A({n.x - n.y * part, n.y + n.x * part}, mm_));
        ring.push_back(A({m.x + m.y * part, m.y - m.x * part}, mm_));
    }
};

std::vector<Arete> AretesDe(const Anneau &ring) {
    std::vector<Arete> edges;
    edges.reserve(ring.size());
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PointMm &a = ring[i];
        const PointMm &b = Suivant(ring, i);
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        edges.push_back({{(b.y - a.y) / length, (a.x - b.x) / length}, length});
    }
    return edges;
}

} // namespace

Anneau Parallele(const Anneau &ring, double mm, Coins coins, double ecart) {
    if (mm == 0) {
        return ring;
    }
    const std::vector<Arete> edges = AretesDe(ring);
    Anneau moved;
    moved.reserve(ring.size() * 2);
    for (std::size_t i = 0; i < ring.size(); ++i) {
        Coin(ring[i], edges[i == 0 ? edges.size() - 1 : i - 1], edges[i], mm, ecart)
            .Ajoute(moved, coins);
    }
    return moved;
}

} // namespace loftwing
