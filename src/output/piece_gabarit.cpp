// The two templates that guide a hot wire through a block of foam: each is the block below the path
// of the wire over one surface of the airfoil.

#include "core/stations.h"
#include "output/piece_steps.h"
#include "output/rib_measures.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kArrondi = 1e-6;   // mm
constexpr double kNumeroMaxi = 2.5; // mm, capitals: the numbers stay small beside the label
constexpr double kMmParPoint = 25.4 / 72;
constexpr double kAuDessusDuPied = 1; // mm from the foot to a number
constexpr double kACoteDuTrait = 0.5; // mm from a station line to its number

/// The lower line of the template and its upright ends. The washout turns the block about a point
/// on the reference line, while the airfoil stays level.
class PiedDeBloc {
  public:
    explicit PiedDeBloc(const RibModel &rib) {
        const Bloc &bloc = rib.bloc;
        const double angle = EnRadians(Wide(rib.vrillage));
        const double length = Wide(bloc.BAbloc) + Wide(rib.corde) + Wide(bloc.BFbloc);
        along_ = {std::cos(angle), std::sin(angle)};
        front_ = {-Wide(bloc.BAbloc) + Wide(bloc.HTbasbloc) * along_.y,
                  -Wide(bloc.HTbasbloc) * along_.x};
        rear_ = {front_.x + length * along_.x * along_.x, front_.y + length * along_.x * along_.y};
    }

    const PointMm &Avant() const { return front_; }
    const PointMm &Arriere() const { return rear_; }
    bool EstSous(const PointMm &point) const {
        return along_.x * (point.y - front_.y) - along_.y * (point.x - front_.x) > kArrondi;
    }
    double Y(double x) const { return front_.y + (x - front_.x) * along_.y / along_.x; }

  private:
    PointMm along_, front_, rear_;
};

/// Upside down, so that one routine serves both surfaces.
void Renverse(Ligne &line) {
    for (PointMm &point : line) {
        point.y = -point.y;
    }
}

/// The upper side of an area between two places, from the front to the rear.
Ligne Dessus(const Silhouette &area, double from, double to) {
    Ligne line;
    for (const TrancheContour &slice : area.Tranches(from, to)) {
        const PointMm start{slice.x0, slice.debut.haut};
        if (line.empty() || line.back() != start) {
            line.push_back(start);
        }
        line.push_back({slice.x1, slice.fin.haut});
    }
    return line;
}

/// An upper side moved inward by the sheeting alone: it runs on to the trailing edge where it has
/// long met the other one. There the two passes of the wire leave nothing between them.
Ligne SousCoffrage(const Ligne &face, double sheeting) {
    if (sheeting == 0) {
        return face;
    }
    const PointMm &nose = face.front();
    const PointMm &tail = face.back();
    const PointMm &before = face[face.size() - 2];
    const double slope = std::clamp((tail.y - before.y) / (tail.x - before.x), -1.0, 1.0);
    const double more = 4 * sheeting + 1; // the rear end, which moves too, stays behind the tail
    const PointMm beyond{tail.x + more, tail.y + slope * more};
    Anneau below(face.rbegin(), face.rend());
    const double low = BoiteAutour(below).bas_gauche.y - 2 * more;
    below.insert(below.begin(), {{nose.x, low}, {beyond.x, low}, beyond});
    return Dessus(Silhouette(Deplace({below}, -sheeting, Coins::ronds)), nose.x, tail.x);
}

/// The inner face of the sheeting on one surface. The lower one lies deeper by what is left of the
/// foam at the trailing edge.
Ligne FaceInterne(const Etabli &etabli, GenrePiece genre) {
    const bool lower = genre == GenrePiece::gabarit_intrados;
    Surface contour = etabli.contour;
    if (lower) {
        std::for_each(contour.begin(), contour.end(), Renverse);
    }
    const BoitePiece &box = etabli.faces.Boite();
    Ligne face = SousCoffrage(Dessus(Silhouette(contour), box.bas_gauche.x, box.haut_droite.x),
                              Wide(etabli.rib.EpCoffrage));
    if (lower) {
        Renverse(face);
        for (PointMm &point : face) {
            point.y -= Wide(etabli.rib.bloc.CoupeBF);
        }
    }
    return face;
}

/// Where the wire has left the block: the surface chosen goes on behind the trailing edge as it
/// came in front of it.
PointMm FinDuFil(const Etabli &etabli) {
    const Bloc &bloc = etabli.rib.bloc;
    const double ramp = Wide(bloc.BFbloc);
    const HauteursA heights = etabli.faces.Pres(etabli.corde - ramp);
    return {etabli.corde + ramp, bloc.Optquebf == 1 ? -heights.bas : -heights.haut};
}

Ligne TrajetDuFil(const Etabli &etabli, double fil, GenrePiece genre) {
    const double nose = std::min(0.0, etabli.faces.Boite().bas_gauche.x);
    Ligne path = {{-Wide(etabli.rib.bloc.BAbloc), 0}, {nose, 0}};
    const Ligne face = FaceInterne(etabli, genre);
    path.insert(path.end(), face.begin(), face.end());
    path.push_back(FinDuFil(etabli));
    for (PointMm &point : path) {
        point.y -= fil / 2;
    }
    return path;
}

} // namespace

Surface FaitBloc(const Etabli &etabli, double fil, GenrePiece genre) {
    const PiedDeBloc foot(etabli.rib);
    const Ligne path = TrajetDuFil(etabli, fil, genre);
    Anneau ring(path.rbegin(), path.rend());
    ring.push_back(foot.Avant());
    ring.push_back(foot.Arriere());
    Surface block = SansMiettes(Rempli({ring}), kMiette);
    const bool above = std::all_of(path.begin(), path.end(),
                                   [&](const PointMm &point) { return foot.EstSous(point); });
    // Ends that lean over the path make more than one ring, or one of another size.
    if (!above || block.size() != 1 || std::abs(Aire(block) - Aire(ring)) > kMiette) {
        throw RefusPiece{RefusDePiece::hors_bloc};
    }
    return block;
}

void NumeroteStations(const Etabli &etabli, const Surface &bois, Piece &piece) {
    const double capitals = Wide(etabli.rib.texte.TailleFont) * kMmParPoint * kCapitales;
    const double height = std::min(capitals, kNumeroMaxi);
    const PiedDeBloc foot(etabli.rib);
    int number = 0;
    for (const double x : PlacesStations(etabli.rib)) {
        const std::string words = std::to_string(number++);
        const PointMm place{x + kACoteDuTrait, foot.Y(x) + kAuDessusDuPied + height};
        if (height > 0 && MotsDansBois(bois, place, height, words)) {
            piece.textes.push_back({GenreMarque::station, place, height, words});
        }
    }
}

} // namespace loftwing
