/// What the parts of the DXF drawing share.
#pragma once

#include "output/dxf_entities.h"

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace loftwing {

/// Handles: each marks a kind of line.
inline constexpr int kDxfContour = 501;
inline constexpr int kDxfAxe = 502;
inline constexpr int kDxfTrait = 503;
inline constexpr int kDxfForme = 504;

/// One run of the DXF export. Places are in the file's unit, y up.
class DxfTrace {
  public:
    DxfTrace(const DxfSource &from, const std::function<void(const DxfEntite &)> &to);

    const DxfSource &source;
    const std::function<void(const DxfEntite &)> &recoit;
    const double diviseur;
    const double corde; ///< in the file's unit

    double Ox() const { return Wide(ox_); }
    double Oy() const { return 0.0; }
    /// Moves the origin behind the foam template's ramp.
    void Avance(double distance);

    double Longueur(double mm) const { return mm / diviseur; }
    double Longueur(float mm) const { return Wide(mm) / diviseur; }
    /// Place of a station, which may lie between two, and of a height in fractions of the chord.
    double X(double station) const;
    double Y(double height) const { return height * corde + Oy(); }
    /// Surface heights at a station rounded to the nearest. Failure 9 outside the tables.
    double U(double station) const;
    double L(double station) const;
    /// Cutting allowance of the foam template, a fraction of the chord; 0 without one.
    double CoupeRel() const;

    void Polyligne(int handle, std::string_view calque, std::vector<DxfPoint> points) const;
    void Cercle(std::string_view calque, DxfPoint centre, double rayon) const;

  private:
    float ox_ = 0;
};

/// The parts, each in the unit of what it draws.
void DxfGabarit(DxfTrace &trace);
void DxfTalon(const DxfTrace &trace);
void DxfCoffrage(const DxfTrace &trace);
void DxfLongerons(const DxfTrace &trace);
void DxfTrous(const DxfTrace &trace);

} // namespace loftwing
