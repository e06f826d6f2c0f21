/// A wing panel between two ribs with all that they carry: the ribs between them, each with its
/// airfoil file and its rib components file. A place counts in mm from its own edge, so that a spar
/// is straight in the plan.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"
#include "utilities/rib_set_typed.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace loftwing {

/// The greatest number that a panel's first rib may have.
inline constexpr int kPremierMaxi = 9999;

/// What may stand in some of the ribs only.
enum class GenreElement {
    longeron,
    trou,
    gabarit, ///< heel or foam template, whichever the ends have
    ba,      ///< stock at the leading edge
    bf,      ///< stock at the trailing edge
    carre    ///< square in a V-notch
};

struct ElementPanneau {
    GenreElement genre = GenreElement::longeron;
    int numero = 0; ///< of a spar's or hole's slot, from 1; 0 where there is one only

    bool operator==(const ElementPanneau &) const = default;
    /// Spars first, each kind by its numbers.
    bool operator<(const ElementPanneau &other) const {
        return std::tie(genre, numero) < std::tie(other.genre, other.numero);
    }
};

/// Ribs of the panel in which an element stands, counted from 1 at the root, both included.
struct PorteePanneau {
    int de = 1;
    int a = 1;

    bool Contient(int rib) const { return rib >= de && rib <= a; }
    /// Whether a panel of so many ribs has all of it.
    bool Dans(int nombre) const { return de >= 1 && de <= a && a <= nombre; }
    bool operator==(const PorteePanneau &) const = default;
};

using PorteesPanneau = std::map<ElementPanneau, PorteePanneau>;

/// What there is to say of a panel: of one of its ribs, of an element, or of the whole.
struct AvisPanneau {
    std::string texte;
    int nervure = 0; ///< the rib's number as labels have it; 0: it isn't about one rib
    std::optional<ElementPanneau> element = std::nullopt;
};

/// What a panel is made from. The spacing's chords are those of the ends.
struct Panneau {
    std::array<PartiesRib, 2> bouts; ///< root and tip, their airfoils as read
    SaisieJeu jeu;
    PorteesPanneau portees; ///< elements that aren't here stand in every rib
};

/// The spar, hole or other element as its word on the command line and in files: "spar2".
std::string NomElement(const ElementPanneau &element);
/// The element of such a word; nothing for another one.
std::optional<ElementPanneau> ElementNomme(const std::string &nom);

/// Whether the element stands in an end: its place isn't 0 and its size is above 0.
bool Present(const PartiesRib &bout, const ElementPanneau &element, const Saisie &saisie);
/// All elements that stand in one end at least, spars first.
std::vector<ElementPanneau> Elements(const Panneau &panneau, const Saisie &saisie);

/// Whether rib `numero`, from 1, is one of those in which the element may stand.
bool DansSaPortee(const Panneau &panneau, const ElementPanneau &element, int numero);

/// The slot in which a spar or hole of `elements`, which are all of the panel's, stands in rib
/// `numero`, from 1, elements before it that don't having closed up; nothing where it doesn't stand
/// there.
std::optional<int> SlotDe(const Panneau &panneau, const std::vector<ElementPanneau> &elements,
                          const ElementPanneau &element, int numero);

/// Why the two ends make no panel of `nombre` ribs: values that must agree and don't, with both of
/// them, elements of one end without a range, ranges that can't be. Empty where they do.
std::vector<AvisPanneau> Desaccords(const Panneau &panneau, int nombre, const Saisie &saisie);
/// What should be known of the ends all the same: sheeting that differs.
std::vector<AvisPanneau> AvisDesBouts(const Panneau &panneau, const Messages &messages);

/// A computed length as files have it: three decimals in mm, five in inches, zeros at the end left
/// off.
std::string TexteFondu(double mm, const std::string &Unite);

/// The clear width between two ribs of a panel of that length, all in mm: `inter` ribs stand
/// between the ends in equal steps.
double EcartRegulier(double longueur, int inter, double epaisseur);

/// The two airfoils of a set, as the ends hold them.
std::array<ProfilJeu, 2> ProfilsDesBouts(const Panneau &panneau);
/// The chords of the ends as their files and fields have them.
std::array<std::string, 2> CordesDesBouts(const Panneau &panneau, const std::string &Unite);

/// Rib `numero`, from 1, of the set that the panel's spacing makes: name and chord are that set's,
/// all else lies between the ends' values by its ratio. Texts are those of a rib components file;
/// numbers follow them when that is read. The points of the airfoil aren't set. The ends must
/// agree. Failures as VersMm, 5 where no washout fits, 6 for a length beyond 32 bits.
PartiesRib NervureDuPanneau(const Panneau &panneau, const JeuDeNervures &jeu, int numero,
                            const Saisie &saisie);

} // namespace loftwing
