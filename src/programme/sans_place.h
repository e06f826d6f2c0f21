/// What of a rib has no room on the chord of an airfoil that is being opened.
#pragma once

#include "programme/programme.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// The elements that don't fit. Slots count from 0 and ascend.
struct SansPlace {
    bool EpBA = false; ///< the stocks: one that is wider than the chord, or both that are together
    bool EpBF = false;
    std::vector<int> longerons;
    std::vector<int> trous;
    bool gabarit = false;         ///< the heel or the template, whichever is in use
    std::optional<Failure> echec; ///< without all of them the rib can't be drawn either

    bool Rien() const {
        return !EpBA && !EpBF && longerons.empty() && trous.empty() && !gabarit && !echec;
    }
};

/// Tries the rib with its contour and values of now as a typed chord is tried; where that fails,
/// each element by itself. The rib stays what it is.
SansPlace ChercheSansPlace(Programme &programme);

/// Takes them off the rib: stocks become 0, heel or template goes out of use and keeps its
/// measures.
void RetireSansPlace(RibModel &rib, const SansPlace &found);

/// The question that names airfoil, chord and elements.
std::string QuestionSansPlace(const Programme &programme, const SansPlace &found);

/// Whether the airfoil that has taken over the rib may stay. What fits is not asked about. For
/// what doesn't the user decides: without it, which takes it off, or not at all. Where nothing
/// can be drawn a box says why.
bool AccepteProfil(Programme &programme);

} // namespace loftwing
