/// Whether a colour can be told from the ground that it stands on.
#pragma once

#include <QColor>

namespace loftwing {

/// The least contrast at which most people read a text, or see a line.
inline constexpr double kContrasteTexte = 4.5;
inline constexpr double kContrasteTrait = 3.0;

/// From 1 (no difference) to 21 (black on white), as the guidelines for web content measure it.
double Contraste(const QColor &one, const QColor &other);

/// `colour`, or where that has less contrast to `ground` than `least`, the first shade of it that
/// has enough, towards black or white. Colours of a desktop aren't chosen for our grounds.
QColor Lisible(const QColor &colour, const QColor &ground, double least);

/// `part` of the way from one colour to another.
QColor Melange(const QColor &from, const QColor &to, double part);

} // namespace loftwing
