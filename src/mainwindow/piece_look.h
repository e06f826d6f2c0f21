/// How a piece looks on the screen: wood on white paper, whatever the desktop's theme.
#pragma once

#include "output/piece.h"

#include <QPainterPath>
#include <QTransform>

#include <vector>

class QPainter;

namespace loftwing {

/// The wood of each piece, its holes left open. `to` leads from mm, y up, to where it is painted.
std::vector<QPainterPath> BoisDe(const std::vector<Piece> &pieces, const QTransform &to);

/// Fills it in the colour of wood, with its edge in a darker one.
void PeintBois(QPainter &painter, const std::vector<QPainterPath> &wood);

} // namespace loftwing
