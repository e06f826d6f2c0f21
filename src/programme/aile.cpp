#include "programme/aile.h"

#include "core/stations.h"
#include "features/longeron.h"
#include "output/rib_measures.h"
#include "programme/developpe.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace loftwing {

namespace {

constexpr double kMoitie = 0.5;

/// A straight line through two points, continued beyond them.
struct Droite {
    double x1, y1, x2, y2;

    double En(double x) const { return x2 == x1 ? y1 : y1 + (y2 - y1) * (x - x1) / (x2 - x1); }
};

/// Where the ribs of a panel stand: middles from the root's outer face, and their thicknesses.
struct Espacement {
    std::vector<double> milieux;
    std::vector<double> epaisseurs;
    double longueur = 0;
};

std::variant<Espacement, RefusAile> EspacementRegulier(int nombre, double longueur,
                                                       double epaisseur) {
    if (!(longueur > 0)) {
        return RefusAile::sans_longueur;
    }
    const double gap = EcartRegulier(longueur, nombre - 2, epaisseur);
    if (gap < 0) {
        return RefusAile::trop_epais;
    }
    Espacement made{{}, {}, longueur};
    for (int i = 0; i < nombre; ++i) {
        made.milieux.push_back(epaisseur * kMoitie + i * (gap + epaisseur));
        made.epaisseurs.push_back(epaisseur);
    }
    return made;
}

Espacement EspacementVariable(const SaisieJeu &jeu, int nombre, const Saisie &saisie) {
    Espacement made;
    for (int i = 0; i < nombre; ++i) {
        const double thickness = NombreMm(At(jeu.epaisseurs, i), saisie);
        made.milieux.push_back(made.longueur + thickness * kMoitie);
        made.epaisseurs.push_back(thickness);
        made.longueur += thickness + (i + 1 < nombre ? NombreMm(At(jeu.ecarts, i), saisie) : 0);
    }
    return made;
}

std::variant<Espacement, RefusAile> EspacementDe(const PanneauMonte &monte, const Saisie &saisie) {
    const SaisieJeu &jeu = monte.panneau.jeu;
    const int nombre = static_cast<int>(monte.fait.nervures.size());
    if (!jeu.ecarts.empty()) {
        return EspacementVariable(jeu, nombre, saisie);
    }
    const double thickness = jeu.epaisseurs.empty() ? 0 : NombreMm(jeu.epaisseurs.front(), saisie);
    return EspacementRegulier(nombre, monte.reglage.longueur, thickness);
}

double HauteurA(const TableStation &table, const PartiesRib &rib, double x) {
    const double corde = Wide(rib.corde);
    return HauteurEntre(table, kLastStation * (1 - Quotient(x, corde))) * corde;
}

double EpaisseurA(const PartiesRib &rib, double x) {
    return HauteurA(rib.TabExtrados, rib, x) - HauteurA(rib.TabIntrados, rib, x);
}

/// Depth of the stock at the leading edge, of which a V-notch has none.
double StockBA(const PartiesRib &rib) {
    return rib.TypeBA == 1 ? std::max(0.0, Wide(rib.EpBA)) : 0;
}

double StockBF(const PartiesRib &rib) {
    return std::max(0.0, Wide(rib.EpBF));
}

/// Lays what the ribs of one panel carry on the board.
class Monteur {
  public:
    Monteur(const PanneauMonte &monte, Espacement places, const Saisie &saisie,
            PanneauAile &panneau)
        : monte_(monte), places_(std::move(places)), saisie_(saisie),
          elements_(Elements(monte.panneau, saisie)), panneau_(panneau) {}

    void Nervures();
    void Batons();
    void Trous();
    void Coffrages();

  private:
    const PanneauMonte &monte_;
    const Espacement places_;
    const Saisie &saisie_;
    const std::vector<ElementPanneau> elements_;
    PanneauAile &panneau_;

    int Nombre() const { return static_cast<int>(monte_.fait.nervures.size()); }
    const PartiesRib &Rib(int numero) const { return At(monte_.fait.nervures, numero - 1).rib; }
    /// From the wing's root.
    double Milieu(int numero) const { return panneau_.x + At(places_.milieux, numero - 1); }
    double Face(int numero, double cote) const {
        return Milieu(numero) + cote * kMoitie * At(places_.epaisseurs, numero - 1);
    }
    /// The leading edge at a place along the wing.
    double BordAttaque(double x) const {
        return panneau_.y + panneau_.reglage.recul * (x - panneau_.x) / panneau_.longueur;
    }
    PorteePanneau Portee(const ElementPanneau &element) const;
    std::optional<PorteePanneau> Debout(const ElementPanneau &element) const;
    void Pose(BatonAile baton, const PorteePanneau &range,
              const std::function<BoutBaton(int numero)> &bout);
    void PoseLongeron(const ElementPanneau &spar, bool upper);
    BoutBaton BoutLongeron(const ElementPanneau &spar, bool upper, int numero) const;
    void PoseBaguettes();
    LigneAile Ligne(int numero, const PorteePanneau &range,
                    const std::function<double(int numero)> &place) const;
    CoffrageAile CoffrageDe(bool upper) const;
};

PorteePanneau Monteur::Portee(const ElementPanneau &element) const {
    const auto range = monte_.panneau.portees.find(element);
    return range == monte_.panneau.portees.end() ? PorteePanneau{1, Nombre()} : range->second;
}

/// The ribs in which a spar or hole has a slot.
std::optional<PorteePanneau> Monteur::Debout(const ElementPanneau &element) const {
    std::optional<PorteePanneau> range;
    for (int numero = 1; numero <= Nombre(); ++numero) {
        if (SlotDe(monte_.panneau, elements_, element, numero)) {
            range = {range ? range->de : numero, numero};
        }
    }
    return range;
}

void Monteur::Nervures() {
    panneau_.longueur = places_.longueur;
    for (int numero = 1; numero <= Nombre(); ++numero) {
        const PartiesRib &rib = Rib(numero);
        const double corde = Wide(rib.corde);
        const double x = Milieu(numero);
        panneau_.nervures.push_back({monte_.premier + numero - 1, x,
                                     At(places_.epaisseurs, numero - 1), BordAttaque(x), corde,
                                     rib.ExtradosMaxi * corde, rib.IntradosMini * corde,
                                     At(monte_.fait.nervures, numero - 1).aire});
    }
    const NervureAile &root = panneau_.nervures.front();
    const NervureAile &tip = panneau_.nervures.back();
    const Droite chord{root.x, root.corde, tip.x, tip.corde};
    panneau_.cordes = {chord.En(panneau_.x), chord.En(panneau_.Fin())};
}

/// Lays a stick from face to face of its ribs. In the middles of the two end ribs it is as `bout`
/// says, y counted from the leading edge; it goes on straight.
void Monteur::Pose(BatonAile baton, const PorteePanneau &range,
                   const std::function<BoutBaton(int numero)> &bout) {
    baton.de = monte_.premier + range.de - 1;
    baton.a = monte_.premier + range.a - 1;
    const BoutBaton first = bout(range.de);
    const BoutBaton last = bout(range.a);
    baton.coupes = {{{first.largeur, first.hauteur}, {last.largeur, last.hauteur}}};
    const std::array<double, 2> faces = {Face(range.de, -1), Face(range.a, 1)};
    for (const std::size_t end : {0U, 1U}) {
        const double x = faces[end];
        const auto at = [&](double BoutBaton::*what) {
            return Droite{Milieu(range.de), first.*what, Milieu(range.a), last.*what}.En(x);
        };
        baton.bouts[end] = {x, BordAttaque(x) + at(&BoutBaton::y), at(&BoutBaton::z),
                            std::max(0.0, at(&BoutBaton::largeur)),
                            std::max(0.0, at(&BoutBaton::hauteur))};
    }
    panneau_.batons.push_back(baton);
}

BoutBaton Monteur::BoutLongeron(const ElementPanneau &spar, bool upper, int numero) const {
    const PartiesRib &rib = Rib(numero);
    const Longeron &record =
        At(rib.longeron, SlotDe(monte_.panneau, elements_, spar, numero).value());
    const double y = Wide(PlaceDepuis(record.PosLongAfich, record.RefLong, rib.corde, saisie_));
    const std::uint8_t option = upper ? record.OptLongExt : record.OptLongInt;
    const double sheeting = option == kEncocheCoffrage ? Wide(rib.EpCoffrage) : 0;
    const bool round = record.TypeLong == kLongeronRond;
    const double depth = Wide(record.HautLong);
    const double apart = record.TypeLong == kLongeronSurface ? 0 : Wide(record.DistLong);
    const double deep = sheeting + apart + (round ? depth : depth * kMoitie);
    const double surface = HauteurA(upper ? rib.TabExtrados : rib.TabIntrados, rib, y);
    const double width = Wide(record.LargLong);
    return {0, y, upper ? surface - deep : surface + deep, width, round ? width : depth};
}

void Monteur::PoseLongeron(const ElementPanneau &spar, bool upper) {
    const auto range = Debout(spar);
    if (!range) {
        return;
    }
    const Longeron &record =
        At(Rib(range->de).longeron, SlotDe(monte_.panneau, elements_, spar, range->de).value());
    if ((upper ? record.OptLongExt : record.OptLongInt) == 0) {
        return;
    }
    BatonAile stick;
    stick.numero = spar.numero;
    stick.dessus = upper;
    stick.rond = record.TypeLong == kLongeronRond;
    Pose(stick, *range, [&](int numero) { return BoutLongeron(spar, upper, numero); });
}

/// Stocks at the edges, or the square of a V-notch.
void Monteur::PoseBaguettes() {
    for (const ElementPanneau &element : elements_) {
        BatonAile stick;
        if (element.genre == GenreElement::ba) {
            stick.genre = GenreBaton::ba;
            Pose(stick, Portee(element), [this](int numero) -> BoutBaton {
                const double deep = StockBA(Rib(numero));
                return {0, deep * kMoitie, 0, deep, EpaisseurA(Rib(numero), deep)};
            });
        } else if (element.genre == GenreElement::bf) {
            stick.genre = GenreBaton::bf;
            Pose(stick, Portee(element), [this](int numero) -> BoutBaton {
                const PartiesRib &rib = Rib(numero);
                const double deep = StockBF(rib);
                const double front = Wide(rib.corde) - deep;
                return {0, front + deep * kMoitie, 0, deep, EpaisseurA(rib, front)};
            });
        } else if (element.genre == GenreElement::carre) {
            stick.genre = GenreBaton::carre;
            stick.sur_pointe = true;
            Pose(stick, Portee(element), [this](int numero) -> BoutBaton {
                const CarreBord &square = Rib(numero).carre;
                return {0, Wide(square.CarreBAX), Wide(square.CarreBAY), Wide(square.CarreBA),
                        Wide(square.CarreBA)};
            });
        }
    }
}

void Monteur::Batons() {
    for (const ElementPanneau &element : elements_) {
        if (element.genre == GenreElement::longeron) {
            PoseLongeron(element, true);
            PoseLongeron(element, false);
        }
    }
    PoseBaguettes();
}

/// Through the places of all its ribs, straight on to the outer faces.
LigneAile Monteur::Ligne(int numero, const PorteePanneau &range,
                         const std::function<double(int numero)> &place) const {
    LigneAile line{numero, {}};
    const auto straight = [&](int near, int other, double x) {
        const Droite through{Milieu(near), place(near), Milieu(other), place(other)};
        line.points.push_back({x, BordAttaque(x) + through.En(x)});
    };
    straight(range.de, std::min(range.de + 1, range.a), Face(range.de, -1));
    for (int rib = range.de; rib <= range.a; ++rib) {
        line.points.push_back({Milieu(rib), BordAttaque(Milieu(rib)) + place(rib)});
    }
    straight(range.a, std::max(range.a - 1, range.de), Face(range.a, 1));
    return line;
}

void Monteur::Trous() {
    for (const ElementPanneau &element : elements_) {
        const auto range = element.genre == GenreElement::trou ? Debout(element) : std::nullopt;
        if (!range) {
            continue;
        }
        panneau_.trous.push_back(Ligne(element.numero, *range, [&](int numero) {
            const PartiesRib &rib = Rib(numero);
            const Trou &hole =
                At(rib.trou, SlotDe(monte_.panneau, elements_, element, numero).value());
            return Wide(PlaceDepuis(hole.PosTrouAfich, hole.RefTrou, rib.corde, saisie_));
        }));
    }
}

CoffrageAile Monteur::CoffrageDe(bool upper) const {
    CoffrageAile sheet{upper, Wide(Rib(1).EpCoffrage), 0, {}, 0};
    std::vector<CourseCoffrage> runs;
    std::vector<PointMm> flat;
    const auto unroll = [&](double x, double y, double arc) {
        flat.push_back({x, y});
        flat.push_back({x, y + arc});
    };
    for (int numero = 1; numero <= Nombre(); ++numero) {
        const PartiesRib &rib = Rib(numero);
        const double x = Milieu(numero);
        const double front = StockBA(rib);
        runs.push_back(
            CourseDe(rib, upper, front, Wide(rib.corde) - StockBF(rib), x, BordAttaque(x)));
        const double arc = LongueurDe(runs.back());
        sheet.arc_maxi = std::max(sheet.arc_maxi, arc);
        for (const double at : {Face(numero, -1), Face(numero, 1)}) {
            unroll(at, BordAttaque(at) + front, arc);
        }
        if (numero > 1) {
            sheet.aire += AireReglee(runs[runs.size() - 2], runs.back());
        }
        if (numero == 1 || numero == Nombre()) {
            sheet.aire += arc * At(places_.epaisseurs, numero - 1) * kMoitie;
        }
    }
    const PointMm &last_front = flat[flat.size() - 2];
    sheet.rectangle =
        RectangleAutour(flat, {{1, 0},
                               {last_front.x - flat[0].x, last_front.y - flat[0].y},
                               {flat.back().x - flat[1].x, flat.back().y - flat[1].y}});
    return sheet;
}

void Monteur::Coffrages() {
    if (!(Rib(1).EpCoffrage > 0.0F)) {
        return;
    }
    const PorteePanneau all{1, Nombre()};
    panneau_.bords_coffrage = {Ligne(0, all, [this](int numero) { return StockBA(Rib(numero)); }),
                               Ligne(0, all, [this](int numero) {
                                   return Wide(Rib(numero).corde) - StockBF(Rib(numero));
                               })};
    panneau_.coffrages = {CoffrageDe(true), CoffrageDe(false)};
}

} // namespace

double BatonAile::Longueur() const {
    return std::hypot(bouts[1].x - bouts[0].x, bouts[1].y - bouts[0].y, bouts[1].z - bouts[0].z);
}

double BatonAile::LargeurVue(std::size_t bout) const {
    const double width = bouts.at(bout).largeur;
    return sur_pointe ? width * kDiagonaleCarre : width;
}

std::optional<RefusAile> AjoutePanneau(Aile &aile, const PanneauMonte &monte,
                                       const Saisie &saisie) {
    const auto places = EspacementDe(monte, saisie);
    if (const auto *refused = std::get_if<RefusAile>(&places)) {
        return *refused;
    }
    PanneauAile panel;
    panel.nom = monte.nom;
    panel.reglage = monte.reglage;
    if (!aile.panneaux.empty()) {
        panel.x = aile.panneaux.back().Fin();
        panel.y = aile.panneaux.back().YFin();
    }
    Monteur fitter(monte, std::get<Espacement>(places), saisie, panel);
    fitter.Nervures();
    fitter.Batons();
    fitter.Trous();
    fitter.Coffrages();
    aile.panneaux.push_back(std::move(panel));
    return std::nullopt;
}

int NumeroSuivant(const Aile &aile) {
    return aile.panneaux.empty() ? 1 : aile.panneaux.back().nervures.back().numero + 1;
}

double HauteurSous(const Aile &aile, std::size_t i) {
    double height = 0;
    for (std::size_t k = 0; k <= i; ++k) {
        const PanneauAile &panel = aile.panneaux.at(k);
        height += panel.longueur * std::sin(EnRadians(panel.reglage.diedre));
    }
    return height;
}

double AngleDeJoint(const Aile &aile, std::size_t i) {
    return aile.panneaux.at(i).reglage.diedre -
           (i == 0 ? 0 : aile.panneaux.at(i - 1).reglage.diedre);
}

} // namespace loftwing
