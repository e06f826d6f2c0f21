// All that is cut out of the body and added to it.

#include "output/piece_steps.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kContact = 1e-6;      // mm that a circle must keep from all else
constexpr double kEcartRegard = 0.002; // mm that wood is looked at, but not cut, less exactly
constexpr double kContactAire = 1e-4;  // mm2 of a hole outside that open the body

/// Of a point from a line, squared.
double Carre(const PointMm &point, const PointMm &a, const PointMm &b) {
    const PointMm run{b.x - a.x, b.y - a.y};
    const double square = run.x * run.x + run.y * run.y;
    const double along =
        square == 0 ? 0 : ((point.x - a.x) * run.x + (point.y - a.y) * run.y) / square;
    const double t = std::clamp(along, 0.0, 1.0);
    const double dx = a.x + t * run.x - point.x;
    const double dy = a.y + t * run.y - point.y;
    return dx * dx + dy * dy;
}

template <class Test>
bool ToutesAretes(const Surface &surface, Test test) {
    for (const Anneau &ring : surface) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            if (!test(ring[i], Suivant(ring, i))) {
                return false;
            }
        }
    }
    return true;
}

bool CercleDans(const Surface &surface, const CerclePiece &circle) {
    const double apart = circle.rayon + kContact;
    return ToutesAretes(surface,
                        [&](const PointMm &a, const PointMm &b) {
                            return Carre(circle.centre, a, b) > apart * apart;
                        }) &&
           Contient(surface, circle.centre);
}

/// Whether the first circle swallows the second; of two that are the same the earlier one does.
bool Avale(const CerclePiece &a, const CerclePiece &b, bool earlier) {
    const double apart = std::hypot(a.centre.x - b.centre.x, a.centre.y - b.centre.y);
    return apart + b.rayon < a.rayon + (earlier ? kContact : -kContact);
}

bool Separes(const CerclePiece &a, const CerclePiece &b) {
    const double apart = std::hypot(a.centre.x - b.centre.x, a.centre.y - b.centre.y);
    return apart > a.rayon + b.rayon + kContact;
}

/// A round cut and what becomes of it.
struct Rond {
    Decoupe coupe;
    bool longeron;
    bool seul = false;  ///< no other circle touches it, though one may lie in it
    bool garde = false; ///< stays a circle
};

std::vector<Rond> RondsDe(const std::vector<Decoupe> &notches, const std::vector<Decoupe> &holes) {
    std::vector<Rond> circles;
    for (const auto *cuts : {&notches, &holes}) {
        for (const Decoupe &cut : *cuts) {
            if (cut.cercle) {
                circles.push_back({cut, cuts == &notches});
            }
        }
    }
    for (std::size_t i = 0; i < circles.size(); ++i) {
        const CerclePiece &here = *circles[i].coupe.cercle;
        circles[i].seul = true;
        for (std::size_t j = 0; j < circles.size(); ++j) {
            const CerclePiece &other = *circles[j].coupe.cercle;
            circles[i].seul =
                circles[i].seul && (i == j || Separes(here, other) || Avale(here, other, i < j));
        }
    }
    return circles;
}

/// Keeps the circles that lie whole in the wood and cuts the others out of it.
void CoupeRonds(Surface &wood, std::vector<Rond> &circles, bool longerons) {
    for (Rond &circle : circles) {
        circle.garde = circle.garde || (circle.longeron == longerons && circle.seul &&
                                        CercleDans(wood, *circle.coupe.cercle));
    }
    Surface away;
    for (std::size_t i = 0; i < circles.size(); ++i) {
        const Rond &here = circles[i];
        const auto swallows = [&](const Rond &other) {
            return other.garde && Avale(*other.coupe.cercle, *here.coupe.cercle, &other < &here);
        };
        if (!here.garde && here.longeron == longerons &&
            std::none_of(circles.begin(), circles.end(), swallows)) {
            away.push_back(here.coupe.aire);
        }
    }
    if (!away.empty()) {
        wood = Moins(wood, away);
    }
}

/// The cuts that are no circles.
Surface Anguleuses(const std::vector<Decoupe> &cuts) {
    Surface rings;
    for (const Decoupe &cut : cuts) {
        if (!cut.cercle) {
            rings.push_back(cut.aire);
        }
    }
    return rings;
}

/// The body that a hole must not leave: what has been cut into it from its edge is missing, what
/// was cut out of its inside isn't.
Surface SansTrous(const Surface &corps, const std::vector<Decoupe> &notches) {
    Surface open;
    for (const Decoupe &notch : notches) {
        if (notch.cercle && !CercleDans(corps, *notch.cercle)) {
            open.push_back(notch.aire);
        }
    }
    Surface outlines = open.empty() ? corps : Moins(corps, open);
    std::erase_if(outlines, [](const Anneau &ring) { return Aire(ring) < 0; });
    return outlines;
}

void AviseTrous(const Surface &corps, const std::vector<Decoupe> &holes, std::vector<Avis> &avis) {
    for (const Decoupe &hole : holes) {
        const bool inside = hole.cercle ? CercleDans(corps, *hole.cercle)
                                        : BoiteDans(corps, BoiteAutour(hole.aire));
        if (!inside && Aire(Moins({hole.aire}, corps)) > kContactAire) {
            avis.push_back({AvisPiece::trou_ouvert, hole.numero});
        }
    }
}

/// Whether a line has a stretch inside a box.
bool Traverse(const PointMm &a, const PointMm &b, const BoitePiece &box) {
    double from = 0;
    double to = 1;
    const auto clip = [&](double start, double run, double low, double high) {
        if (run == 0) {
            return start > low && start < high;
        }
        const double p = (low - start) / run;
        const double q = (high - start) / run;
        from = std::max(from, std::min(p, q));
        to = std::min(to, std::max(p, q));
        return from < to;
    };
    return clip(a.x, b.x - a.x, box.bas_gauche.x, box.haut_droite.x) &&
           clip(a.y, b.y - a.y, box.bas_gauche.y, box.haut_droite.y);
}

} // namespace

Surface Bois::Tout() const {
    Surface all = Allege(aire, kEcartRegard);
    for (const CerclePiece &circle : cercles) {
        Anneau ring = AnneauRond(circle.centre, circle.rayon, kEcartRegard);
        std::reverse(ring.begin(), ring.end());
        all.push_back(std::move(ring));
    }
    return all;
}

bool BoiteDans(const Surface &surface, const BoitePiece &box) {
    const PointMm middle{(box.bas_gauche.x + box.haut_droite.x) / 2,
                         (box.bas_gauche.y + box.haut_droite.y) / 2};
    return Contient(surface, middle) &&
           ToutesAretes(surface,
                        [&](const PointMm &a, const PointMm &b) { return !Traverse(a, b, box); });
}

Bois TailleBois(const Etabli &etabli, std::vector<Avis> &avis, std::vector<Ligne> &separation) {
    const std::vector<Decoupe> notches = Encoches(etabli);
    const std::vector<Decoupe> holes = Percages(etabli);
    const Surface corps = EntreBords(etabli);
    const TalonPiece heel = FaitTalon(etabli, corps, notches);

    Surface away = EncocheBA(etabli);
    const Surface from_spars = Anguleuses(notches);
    away.insert(away.end(), from_spars.begin(), from_spars.end());
    Surface wood = away.empty() ? corps : Moins(corps, away);
    AviseTrous(SansTrous(wood, notches), holes, avis);
    const Surface from_holes = Anguleuses(holes);
    if (!from_holes.empty()) {
        wood = Moins(wood, from_holes);
    }
    std::vector<Rond> circles = RondsDe(notches, holes);
    CoupeRonds(wood, circles, false);
    if (!heel.aire.empty()) {
        wood = Union(wood, heel.aire);
    }
    CoupeRonds(wood, circles, true);

    for (const int numero : EncochesQuiSeTouchent(etabli, notches)) {
        avis.push_back({AvisPiece::encoches, numero});
    }
    if (heel.vide) {
        avis.push_back({AvisPiece::talon_vide});
    }
    separation = heel.separation;
    Bois bois{SansMiettes(wood, kMiette), {}};
    for (const Rond &circle : circles) {
        if (circle.garde) {
            bois.cercles.push_back(*circle.coupe.cercle);
        }
    }
    return bois;
}

} // namespace loftwing
