/// The set of ribs with variable spacing: chord and blend follow the distance along the panel,
/// measured on the centre lines of the ribs.
#pragma once

#include "core/feature_records.h"
#include "core/units.h"
#include "utilities/rib_set.h"

#include <array>

namespace loftwing {

/// Most intermediate ribs.
inline constexpr int kNervuresVariables = 12;

/// What the user typed and chose for the ends. Index 0 is the root, 1 the tip.
struct SaisieRibevol2 {
    std::array<std::string, 2> txtprofil; ///< names; empty where none was chosen
    std::array<std::string, 2> txtcorde;
    std::array<std::string, 2> txtEpR; ///< thickness of the end ribs
};

/// What is computed beside JeuNervures; lengths in mm.
struct Ribevol2 {
    std::array<float, kNervuresJeu> PasNerv{};   ///< from one centre line to the next
    std::array<float, kNervuresJeu> CumulNerv{}; ///< from the root's centre line
    float LongNerv = 0;                          ///< between the centre lines of the end ribs
    float LongTotale = 0;                        ///< of the panel, end ribs included
    std::string LongTotaleAfich;                 ///< with its unit
    std::array<double, kNervureMin> RapportNerv{};
    double PenteCorde = 0;         ///< chord lost per mm along the panel
    std::int16_t NervCourante = 0; ///< gap selected last
    std::string CordeMaxAfich;
    std::string CordeMinAfich;
};

/// The number of intermediate ribs that an answer means: the whole number nearest to it. What no
/// 16 bits hold counts as too many.
int NombreVariable(const std::string &answer);
/// The question for it, after an answer that is out of range; the first time `answer` is 1.
std::string QuestionNombre(int answer, const Messages &messages);

/// Checks the ends and takes them into `jeu` and `set`. The first fault, or nothing.
std::optional<RefusJeu> ValideRibevol2(const SaisieRibevol2 &typed, const Saisie &saisie,
                                       JeuNervures &jeu, Ribevol2 &set);

/// Takes gap `set.NervCourante` (1 to NbNervInter + 1) with the thickness of the rib before it,
/// which the first gap doesn't read since that is the root's, and sums the panel anew. Failure 6
/// for a length beyond 32 bits.
void AppliqueEcart(const std::string &TextEprNevure, const std::string &TextEcartNevure,
                   const Saisie &saisie, JeuNervures &jeu, Ribevol2 &set);

/// Whether every gap has been applied, as far as a thickness or gap of 0 tells.
std::optional<RefusJeu> VerifieEcarts(const JeuNervures &jeu, const Messages &messages);

/// Chords and blends of the intermediate ribs. Failure 11 for a panel without length.
void CalculeRibevol2(JeuNervures &jeu, Ribevol2 &set);

/// The files of a set, for SaveProfil: both airfoils are brought to common stations. Failures as
/// CalculProfils.
JeuDeNervures ComposeRibevol2(const JeuNervures &jeu, const Ribevol2 &set,
                              const std::array<ProfilJeu, 2> &profils, const std::string &dossier,
                              const Saisie &saisie);

/// What the user reads after a run.
std::string ResultatRibevol2(const JeuDeNervures &jeu, const Messages &messages);

} // namespace loftwing
