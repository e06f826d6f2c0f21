/// A wing as it is built: one panel or several in a row, each flat on the board with its ribs,
/// sticks, holes and sheeting where they stand. Building plan, front view and list of parts are
/// made from it. Lengths in mm: x along the panels from the root's outer face of the first one, y
/// from the root's leading edge towards the trailing edges, z up from the reference line of the
/// ribs. A panel counts along itself, so x is true on the board whatever the dihedral.
#pragma once

#include "output/surface.h"
#include "programme/panel_steps.h"

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace loftwing {

/// Largest dihedral of a panel either way, degrees, and sweep, mm.
inline constexpr double kDiedreMaxi = 60;
inline constexpr double kReculMaxi = 5000;
/// Longest panel that has a plan, mm.
inline constexpr double kLongueurMaxi = 20000;
/// Density of wood, kg/m3.
inline constexpr double kDensiteMaxi = 2000;

/// What a panel's place in the wing needs beside its ribs.
struct ReglageAile {
    double longueur = 0; ///< from face to face; not read where the gaps are given
    double recul = 0;   ///< sweep: how far the tip's leading edge lies behind the root's, from face
                        ///< to face of the panel
    double diedre = 0;  ///< of this panel against the board, degrees
    double densite = 0; ///< of the ribs' wood, kg/m3; 0 where weights aren't wanted
};

struct NervureAile {
    int numero = 0; ///< as labels have it
    double x = 0;   ///< of its middle
    double epaisseur = 0;
    double y = 0; ///< of its leading edge
    double corde = 0;
    double haut = 0; ///< of its highest and lowest place, from the reference line
    double bas = 0;
    double aire = 0; ///< of its wood as it is cut, without kerf, mm2
};

enum class GenreBaton { longeron, carre, ba, bf };

/// A stick of one section at its one end: its middle, and how large it is there.
struct BoutBaton {
    double x = 0, y = 0, z = 0;
    double largeur = 0; ///< along the chord; the side of a square, the diameter of a round one
    double hauteur = 0; ///< across it
};

/// What a stick is cut from.
struct CoupeBaton {
    double largeur = 0;
    double hauteur = 0;
};

/// A spar, a stock or the square of a V-notch, straight from face to face of the ribs in which it
/// stands. A spar with notches in both surfaces is two sticks.
struct BatonAile {
    GenreBaton genre = GenreBaton::longeron;
    int numero = 0;      ///< of a spar, from 1
    bool dessus = false; ///< a spar in the upper surface
    bool rond = false;
    bool sur_pointe = false; ///< a square on its corner
    int de = 0;              ///< numbers of its first and last rib
    int a = 0;
    std::array<BoutBaton, 2> bouts;
    std::array<CoupeBaton, 2> coupes{}; ///< in its end ribs, as these have it

    /// True length: sweep, taper and the height of the surface counted. The dihedral turns a panel
    /// as a whole and makes no stick of it longer.
    double Longueur() const;
    /// How wide it is in the plan, at an end.
    double LargeurVue(std::size_t bout) const;
};

/// A run of points over the ribs, of a hole's centre or an edge of the sheeting.
struct LigneAile {
    int numero = 0; ///< of the hole, from 1; 0 for the sheeting
    std::vector<PointMm> points;
};

/// The sheeting of one surface.
struct CoffrageAile {
    bool dessus = true;
    double epaisseur = 0;              ///< mm, of the root
    double aire = 0;                   ///< developed, mm2
    std::array<double, 2> rectangle{}; ///< the board that holds it unrolled: length, width
    double arc_maxi = 0;               ///< greatest length across, along a rib
};

struct PanneauAile {
    std::string nom;
    double x = 0, y = 0; ///< of its root's outer face on the leading edge
    double longueur = 0;
    ReglageAile reglage;
    std::array<double, 2> cordes{}; ///< at both faces
    std::vector<NervureAile> nervures;
    std::vector<BatonAile> batons;
    std::vector<LigneAile> trous;
    std::vector<LigneAile> bords_coffrage; ///< front and rear edge; none without sheeting
    std::vector<CoffrageAile> coffrages;   ///< upper, lower; none without sheeting

    double Fin() const { return x + longueur; }
    double YFin() const { return y + reglage.recul; }
};

struct Aile {
    std::string nom;
    std::vector<PanneauAile> panneaux;
};

/// A panel with all that was made of it.
struct PanneauMonte {
    std::string nom;
    const Panneau &panneau;
    const PanneauFait &fait; ///< nothing refused, all ribs made
    int premier = 1;         ///< number of its first rib
    ReglageAile reglage;
};

/// Why there is no plan.
enum class RefusAile {
    sans_longueur, ///< ribs in equal steps want the length of the panel
    trop_epais     ///< the ribs together are thicker than the panel is long
};

/// Adds a panel to a wing: it begins where the last one ends. Failures as PosDepuisBA.
std::optional<RefusAile> AjoutePanneau(Aile &aile, const PanneauMonte &monte, const Saisie &saisie);

/// Number of the first rib of the next panel.
int NumeroSuivant(const Aile &aile);

/// How much higher the reference line lies at the end of panel `i`, from 0, than at the root, mm.
double HauteurSous(const Aile &aile, std::size_t i);
/// The angle between panel `i` and the one before it, degrees; for the first one its dihedral.
double AngleDeJoint(const Aile &aile, std::size_t i);

} // namespace loftwing
