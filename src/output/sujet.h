/// Which part of the rib a line of the drawing belongs to.
#pragma once

namespace loftwing {

enum class GenreSujet {
    aucun, ///< contour, sheeting, reference line and what else can't be taken by itself
    longeron,
    trou,
    baguette_ba, ///< leading edge stock
    baguette_bf, ///< trailing edge stock
    carre,       ///< square of the V-notch
    talon,
    gabarit, ///< foam template
    texte
};

struct SujetTrace {
    GenreSujet genre = GenreSujet::aucun;
    int slot = 0; ///< of a spar or hole, from 0

    explicit operator bool() const { return genre != GenreSujet::aucun; }
    bool operator==(const SujetTrace &) const = default;
};

} // namespace loftwing
