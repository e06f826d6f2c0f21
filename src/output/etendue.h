/// How large a drawing is, and where it has ink.
#pragma once

#include "output/plot_device.h"

#include <limits>
#include <string>
#include <vector>

namespace loftwing {

/// An extent in mm; empty at first.
struct Etendue {
    double gauche = std::numeric_limits<double>::infinity();
    double haut = std::numeric_limits<double>::infinity();
    double droite = -std::numeric_limits<double>::infinity();
    double bas = -std::numeric_limits<double>::infinity();

    bool Vide() const { return gauche > droite; }
    void Prend(double x, double y); ///< mm
    void Prend(const Etendue &other);
    /// Whether the two have a point in common.
    bool Touche(const Etendue &other) const;
};

/// A surface that only measures; the text given is kept apart from the rest.
class Metre : public PlotDevice {
  public:
    explicit Metre(std::string insere = {}) : insere_(std::move(insere)) {}

    Etendue dessin;
    Etendue texte;
    /// Everything drawn, the text too: the box of each circle and text, of long slanting lines
    /// several, so that a line leaves the corners of its own box free.
    std::vector<Etendue> encres;

    /// Both together.
    Etendue Tout() const;

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override;
    void CircleOutline(double x, double y, double radius, const Pen &pen) override;
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override;

  private:
    std::string insere_;
};

} // namespace loftwing
