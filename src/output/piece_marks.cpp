// What is drawn on the wood: straight lines across it and the line at which a heel is cut off.

#include "output/piece_steps.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kTraitMini = 0.01; // mm
constexpr double kSurLeBord = 1e-5; // mm from an edge within which a line lies on it

/// What of the line from a to b lies in the wood. Its own arithmetic, since many lines cross one
/// area and each meets few edges.
class DroiteDansBois {
  public:
    DroiteDansBois(const PointMm &a, const PointMm &b)
        : a_(a), run_{b.x - a.x, b.y - a.y}, length_(std::hypot(run_.x, run_.y)) {}

    std::vector<Ligne> Dans(const Surface &wood) {
        std::vector<Ligne> lines;
        if (!(length_ > 0)) {
            return lines;
        }
        cuts_ = {0, 1};
        for (const Anneau &ring : wood) {
            for (std::size_t i = 0; i < ring.size(); ++i) {
                Croise(ring[i], Suivant(ring, i));
            }
        }
        std::sort(cuts_.begin(), cuts_.end());
        for (std::size_t i = 0; i + 1 < cuts_.size(); ++i) {
            if ((cuts_[i + 1] - cuts_[i]) * length_ >= kTraitMini &&
                EnPleinBois(wood, (cuts_[i] + cuts_[i + 1]) / 2)) {
                Ajoute(lines, cuts_[i], cuts_[i + 1]);
            }
        }
        return lines;
    }

  private:
    PointMm a_, run_;
    double length_;
    std::vector<double> cuts_; ///< from 0 at a to 1 at b

    PointMm A(double t) const { return {a_.x + t * run_.x, a_.y + t * run_.y}; }
    /// Signed distance of a point from the line.
    double Ecart(const PointMm &p) const {
        return ((p.y - a_.y) * run_.x - (p.x - a_.x) * run_.y) / length_;
    }

    void Croise(const PointMm &p, const PointMm &q) {
        const double dp = Ecart(p);
        const double dq = Ecart(q);
        if ((dp > 0) == (dq > 0)) {
            return;
        }
        const double s = dp / (dp - dq);
        const PointMm at{p.x + s * (q.x - p.x), p.y + s * (q.y - p.y)};
        const double t = ((at.x - a_.x) * run_.x + (at.y - a_.y) * run_.y) / (length_ * length_);
        if (t > 0 && t < 1) {
            cuts_.push_back(t);
        }
    }

    /// To either side of the line: one that runs along an edge is no mark on the wood.
    bool EnPleinBois(const Surface &wood, double t) const {
        const PointMm at = A(t);
        const PointMm aside{-run_.y / length_ * kSurLeBord, run_.x / length_ * kSurLeBord};
        return Contient(wood, {at.x + aside.x, at.y + aside.y}) &&
               Contient(wood, {at.x - aside.x, at.y - aside.y});
    }

    void Ajoute(std::vector<Ligne> &lines, double from, double to) const {
        if (!lines.empty() && lines.back().back() == A(from)) {
            lines.back().back() = A(to);
        } else {
            lines.push_back({A(from), A(to)});
        }
    }
};

void AjouteDroite(GenreMarque genre, const PointMm &a, const PointMm &b, const Surface &wood,
                  Piece &piece) {
    for (Ligne &line : DroiteDansBois(a, b).Dans(wood)) {
        piece.traits.push_back({genre, std::move(line)});
    }
}

void AjouteVerticale(GenreMarque genre, const BoitePiece &box, double x, const Surface &wood,
                     Piece &piece) {
    AjouteDroite(genre, {x, box.bas_gauche.y}, {x, box.haut_droite.y}, wood, piece);
}

} // namespace

std::vector<double> PlacesStations(const RibModel &rib) {
    std::vector<double> places;
    if (rib.NbRep == 0) {
        return places;
    }
    const int parts = rib.NbRep + 1;
    for (int i = 0; i <= parts; ++i) {
        places.push_back(Wide(rib.corde) / parts * i);
    }
    return places;
}

void TraceMarques(const Etabli &etabli, const DemandePiece &demande, const BoitePiece &etendue,
                  const Surface &bois, Piece &piece) {
    if (demande.reference) {
        AjouteDroite(GenreMarque::reference, {0, 0}, {etabli.corde, 0}, bois, piece);
    }
    if (demande.stations) {
        for (const double place : PlacesStations(etabli.rib)) {
            AjouteVerticale(GenreMarque::station, etendue, place, bois, piece);
        }
    }
    if (demande.axes) {
        for (const double place : PlacesLongerons(etabli.rib, etabli.saisie)) {
            AjouteVerticale(GenreMarque::axe, etendue, place, bois, piece);
        }
    }
}

} // namespace loftwing
