#include "output/piece_outline.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

/// Coordinates of areas are rounded to it, so an end of the chord may lie that far off.
constexpr double kArrondi = 2e-6; // mm

} // namespace

double Silhouette::Arete::A(double x) const {
    return a.y + (b.y - a.y) * ((x - a.x) / (b.x - a.x));
}

Silhouette::Silhouette(const Surface &surface) {
    std::vector<PointMm> all;
    for (const Anneau &ring : surface) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const PointMm &a = ring[i];
            const PointMm &b = Suivant(ring, i);
            aretes_.push_back(a.x <= b.x ? Arete{a, b} : Arete{b, a});
            all.push_back(a);
        }
    }
    std::sort(aretes_.begin(), aretes_.end(),
              [](const Arete &l, const Arete &r) { return l.a.x < r.a.x; });
    boite_ = BoiteAutour(all);
}

std::optional<HauteursA> Silhouette::A(double x) const {
    if (Vide() || x < boite_.bas_gauche.x - kArrondi || x > boite_.haut_droite.x + kArrondi) {
        return std::nullopt;
    }
    x = std::clamp(x, boite_.bas_gauche.x, boite_.haut_droite.x);
    std::optional<HauteursA> found;
    const auto take = [&](double y) {
        found =
            found ? HauteursA{std::min(found->bas, y), std::max(found->haut, y)} : HauteursA{y, y};
    };
    for (const Arete &edge : aretes_) {
        if (edge.a.x > x) {
            break;
        }
        if (edge.b.x < x) {
            continue;
        }
        if (edge.b.x == edge.a.x) {
            take(edge.a.y);
            take(edge.b.y);
        } else {
            take(edge.A(x));
        }
    }
    return found;
}

HauteursA Silhouette::Pres(double x) const {
    x = std::clamp(x, boite_.bas_gauche.x, boite_.haut_droite.x);
    if (const auto here = A(x)) {
        return *here;
    }
    // A gap between two parts: the nearest end of an edge.
    const Arete *nearest = &aretes_.front();
    double least = std::abs(nearest->a.x - x);
    for (const Arete &edge : aretes_) {
        const double distance = std::min(std::abs(edge.a.x - x), std::abs(edge.b.x - x));
        if (distance < least) {
            least = distance;
            nearest = &edge;
        }
    }
    const bool front = std::abs(nearest->a.x - x) <= std::abs(nearest->b.x - x);
    return A(front ? nearest->a.x : nearest->b.x).value_or(HauteursA{});
}

std::vector<double> Silhouette::Abscisses(double x0, double x1) const {
    std::vector<double> all = {x0, x1};
    for (const Arete &edge : aretes_) {
        for (const double x : {edge.a.x, edge.b.x}) {
            if (x > x0 && x < x1) {
                all.push_back(x);
            }
        }
    }
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

std::vector<TrancheContour> Silhouette::Tranches(double x0, double x1) const {
    x0 = std::max(x0, boite_.bas_gauche.x);
    x1 = std::min(x1, boite_.haut_droite.x);
    std::vector<TrancheContour> slices;
    if (Vide() || !(x0 < x1)) {
        return slices;
    }
    const std::vector<double> xs = Abscisses(x0, x1);
    std::vector<const Arete *> open; // the edges over the present slice
    auto next = aretes_.begin();
    for (std::size_t i = 0; i + 1 < xs.size(); ++i) {
        const double from = xs[i];
        const double to = xs[i + 1];
        for (; next != aretes_.end() && next->a.x <= from; ++next) {
            open.push_back(&*next);
        }
        std::erase_if(open, [&](const Arete *edge) { return edge->b.x <= from; });
        if (open.empty()) {
            continue;
        }
        const double middle = (from + to) / 2;
        const auto [low, high] =
            std::minmax_element(open.begin(), open.end(), [&](const Arete *a, const Arete *b) {
                return a->A(middle) < b->A(middle);
            });
        slices.push_back(
            {from, to, {(*low)->A(from), (*high)->A(from)}, {(*low)->A(to), (*high)->A(to)}});
    }
    return slices;
}

BoitePiece BoiteAutour(const std::vector<PointMm> &points) {
    if (points.empty()) {
        return {};
    }
    BoitePiece box{points.front(), points.front()};
    for (const PointMm &point : points) {
        box.bas_gauche.x = std::min(box.bas_gauche.x, point.x);
        box.bas_gauche.y = std::min(box.bas_gauche.y, point.y);
        box.haut_droite.x = std::max(box.haut_droite.x, point.x);
        box.haut_droite.y = std::max(box.haut_droite.y, point.y);
    }
    return box;
}

Anneau Rectangle(double x0, double y0, double x1, double y1) {
    const double left = std::min(x0, x1);
    const double right = std::max(x0, x1);
    const double low = std::min(y0, y1);
    const double high = std::max(y0, y1);
    return {{left, low}, {right, low}, {right, high}, {left, high}};
}

} // namespace loftwing
