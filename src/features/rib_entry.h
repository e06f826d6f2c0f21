/// The dimensions of a rib that are typed one at a time, and what follows them. The entry window
/// and the command line take them through the same routines.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <array>
#include <string>
#include <string_view>

namespace loftwing {

/// What became of a typed value.
enum class FinSaisie {
    prise,   ///< stored
    ramenee, ///< out of range or unreadable; a box told so, and the rib has 0 or the limit
    refusee  ///< a box told why; the user types again
};

/// Chord. A chord of 0 is refused; its text is stored all the same and the number stays. Else the
/// heel, the template's length and a label that stands as the inserted text follow. While two
/// airfoils are compared the rib doesn't count as changed. `titre` is the title of the boxes.
FinSaisie SaisitCorde(RibModel &rib, const std::string &typed, const Saisie &saisie,
                      const std::string &titre);

/// Sheeting thickness; the heel follows. It is held against nothing.
FinSaisie SaisitCoffrage(RibModel &rib, const std::string &typed, const Saisie &saisie,
                         const std::string &titre);

/// Leading and trailing edge stock. Above the chord the number becomes 0 and the text stays, so
/// that the user meets it again. A leading edge stock takes the place of a V-notch square.
FinSaisie SaisitBordAttaque(RibModel &rib, const std::string &typed, const Saisie &saisie,
                            const std::string &titre);
FinSaisie SaisitBordFuite(RibModel &rib, const std::string &typed, const Saisie &saisie,
                          const std::string &titre);

/// Number of station lines, a count and no length: rounded (halves to even), at most 255. Failure 6
/// below 0.
FinSaisie SaisitReperes(RibModel &rib, const std::string &typed, const Saisie &saisie,
                        const std::string &titre);

/// What the entry window needs to know of one of its values.
struct ModeEntree {
    std::string_view ModeSaisie;
    LngKey message;
    LngKey titre;
    bool avec_unite; ///< the title ends in the unit
    int aide;        ///< help context
    std::string (*texte)(const RibModel &rib);
    FinSaisie (*saisit)(RibModel &rib, const std::string &typed, const Saisie &saisie,
                        const std::string &titre);
    /// The same for a rib whose other values are given: nothing follows.
    FinSaisie (*saisit_seul)(RibModel &rib, const std::string &typed, const Saisie &saisie,
                             const std::string &titre);
};

/// The row of "corde", "epcof", "ba", "bf" or "rep". Failure 5 for another text.
const ModeEntree &ModeDe(std::string_view ModeSaisie);

/// The caption of the entry window, which titles its boxes too.
std::string TitreSaisie(const ModeEntree &mode, const Saisie &saisie);

/// What follows a typed value.
enum class Suite { tout, rien };

/// Takes a typed value: the mode's routine with its failures caught. A number beyond its bounds or
/// "1/0" inches is reported, counts as refused, and leaves the rib as it was.
FinSaisie ValideSaisie(const ModeEntree &mode, RibModel &rib, const std::string &typed,
                       const Saisie &saisie, Suite suite = Suite::tout);

/// Keeps the inserted text and the heel's heights in step with a rib that has changes. The text
/// that is the user's own stays, and so do the heights of a washed-out rib. Failures as VersMm.
void MajGabarit(RibModel &rib, const Saisie &saisie);

} // namespace loftwing
