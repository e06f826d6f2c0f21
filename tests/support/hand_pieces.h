/// Pieces made by hand.
#pragma once

#include "output/piece.h"

namespace loftwing {

/// A board of 40 by 20 mm with a square hole, a round one, a reference line and a label.
inline Piece Planchette() {
    Piece piece;
    piece.parties = {{{{0, -10}, {40, -10}, {40, 10}, {0, 10}},
                      {{{5, -2}, {5, 2}, {10, 2}, {10, -2}}},
                      {{{25, 0}, 3.5}}}};
    piece.traits = {{GenreMarque::reference, {{0, 0}, {40, 0}}}};
    piece.textes = {{GenreMarque::etiquette, {12, -5}, 2.864, "A & \xC3\xA9"}};
    return piece;
}

} // namespace loftwing
