/// Numbers, attributes and texts as SVG writes them.
#pragma once

#include "output/plot_device.h"

#include <string>

namespace loftwing {

/// Faces of Arial's widths stand in where it isn't installed.
inline constexpr const char *kSvgFaces = "Arial, Liberation Sans, Helvetica, sans-serif";

/// Up to `decimals` decimals, without zeros at the end; never a 0 with a minus.
std::string SvgNumber(double value, int decimals);

/// "#rrggbb".
std::string SvgColour(Colour colour);

/// One attribute with the blank before it. `value` must need no escape.
std::string SvgAttribute(const std::string &name, const std::string &value);

/// How lines of a pen are drawn: colour, width and dashes in mm.
std::string SvgStroke(const Pen &pen);

/// Text as XML takes it. Control characters have no place in it, and file names may hold bytes that
/// are no UTF-8.
std::string SvgText(const std::string &text);

/// Letters on a drawing in mm; numbers as they are to be written.
struct SvgLettres {
    std::string x, y; ///< on the line that they stand on
    std::string taille;
    Colour couleur = 0;
    std::string texte;
    std::string appui = {}; ///< "middle" or "end" where that stands at x, otherwise the start
};
std::string SvgTexte(const SvgLettres &lettres);

/// What belongs together, by its name.
std::string SvgGroupe(const std::string &nom, const std::string &elements);

/// A file around its elements. One unit of the view box is one millimetre.
struct SvgPage {
    std::string coin; ///< upper left corner, "x y"
    std::string largeur, hauteur;
    std::string titre;
};
std::string SvgFichier(const SvgPage &page, const std::string &elements);

/// Nothing in a file is farther from its origin, mm: readers lose count.
inline constexpr double kSvgMaxi = 1'000'000;

} // namespace loftwing
