// The levelling heel as wood: from its foot up to the body.

#include "core/stations.h"
#include "features/talon.h"
#include "output/piece_steps.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

/// The heel laps over the body by that much, so that the two become one part, and the line between
/// them is looked for within it.
constexpr double kRecouvrement = 1e-4; // mm
constexpr double kTraitMini = 0.05;    // mm; shorter lines are the ends of a joint
constexpr double kArrondi = 2e-6;      // mm

/// The foot: the chord line moved by the heel's height and turned by the washout.
class Pied {
  public:
    explicit Pied(const RibModel &rib) {
        const double angle = EnRadians(Wide(rib.vrillage));
        const double height = HauteurTalon(rib.talon);
        x_ = std::sin(angle) * height;
        y_ = -std::cos(angle) * height;
        pente_ = std::tan(angle);
    }
    double Y(double x) const { return y_ + (x - x_) * pente_; }

  private:
    double x_, y_, pente_;
};

double SansBoite(const std::string &afich, const Etabli &etabli) {
    return ValeurPourcent(TexteOuZero(afich, etabli.saisie), etabli.rib.corde, etabli.saisie);
}

bool HorsProfil(const Pied &foot, const std::vector<TrancheContour> &slices, bool dessus) {
    const auto outside = [&](double x, const HauteursA &faces) {
        return dessus ? foot.Y(x) >= faces.haut - kArrondi : foot.Y(x) <= faces.bas + kArrondi;
    };
    return std::all_of(slices.begin(), slices.end(), [&](const TrancheContour &slice) {
        return outside(slice.x0, slice.debut) && outside(slice.x1, slice.fin);
    });
}

/// Between the foot and the line half-way between the surfaces.
Anneau JusquauMilieu(const Pied &foot, const std::vector<TrancheContour> &slices) {
    Anneau ring;
    for (const TrancheContour &slice : slices) {
        ring.push_back({slice.x0, (slice.debut.bas + slice.debut.haut) / 2});
        ring.push_back({slice.x1, (slice.fin.bas + slice.fin.haut) / 2});
    }
    const double front = slices.front().x0;
    const double rear = slices.back().x1;
    ring.push_back({rear, foot.Y(rear)});
    ring.push_back({front, foot.Y(front)});
    return ring;
}

/// The airfoil where the stocks are; nothing where none reaches between `from` and `to`.
Surface DansLesBords(const Etabli &etabli, double from, double to) {
    const RibModel &rib = etabli.rib;
    const BoitePiece &box = etabli.faces.Boite();
    const double low = box.bas_gauche.y - etabli.loin;
    const double high = box.haut_droite.y + etabli.loin;
    Surface stocks;
    if (rib.TypeBA == 1 && Wide(rib.EpBA) > std::max(box.bas_gauche.x, from)) {
        stocks.push_back(Rectangle(box.bas_gauche.x - etabli.loin, low, Wide(rib.EpBA), high));
    }
    const double rear = etabli.corde - Wide(rib.EpBF);
    if (rear < std::min(box.haut_droite.x, to)) {
        stocks.push_back(Rectangle(rear, low, box.haut_droite.x + etabli.loin, high));
    }
    return stocks.empty() ? stocks : Commun(etabli.contour, stocks);
}

/// What of the body's edge lies at the heel.
std::vector<Ligne> Separation(const Surface &corps, const Surface &heel) {
    // Wider than the lap: what runs along its edge must lie well inside.
    const Surface near = Deplace(heel, 10 * kRecouvrement, Coins::vifs);
    std::vector<Ligne> lines;
    for (const Anneau &ring : corps) {
        Ligne closed = ring;
        closed.push_back(ring.front());
        for (Ligne &line : Dedans(closed, near)) {
            const BoitePiece box = BoiteAutour(line);
            if (box.haut_droite.x - box.bas_gauche.x > kTraitMini) {
                lines.push_back(std::move(line));
            }
        }
    }
    return lines;
}

} // namespace

TalonPiece FaitTalon(const Etabli &etabli, const Surface &corps,
                     const std::vector<Decoupe> &encoches) {
    TalonPiece heel;
    const Talon &talon = etabli.rib.talon;
    if (etabli.rib.TypeGabarit != kGabaritTalon) {
        return heel;
    }
    const double front_margin = SansBoite(talon.TalonBAAfich, etabli);
    const double rear_margin = SansBoite(talon.TalonBFAfich, etabli);
    const std::vector<TrancheContour> slices = etabli.faces.Tranches(
        etabli.corde - (front_margin + rear_margin), etabli.corde - rear_margin);
    if (slices.empty()) {
        heel.vide = true;
        return heel;
    }
    const Pied foot(etabli.rib);
    if (!HorsProfil(foot, slices, talon.OptTalon != 0)) {
        throw RefusPiece{RefusDePiece::talon_dans_profil};
    }
    Surface away = DansLesBords(etabli, slices.front().x0, slices.back().x1);
    for (const Decoupe &notch : encoches) {
        if (!notch.cercle) {
            away.push_back(notch.aire);
        }
    }
    const Surface body = Deplace(corps, -kRecouvrement, Coins::vifs);
    away.insert(away.end(), body.begin(), body.end());
    heel.aire = SansMiettes(Moins({JusquauMilieu(foot, slices)}, away), kMiette);
    heel.separation = Separation(corps, heel.aire);
    return heel;
}

} // namespace loftwing
