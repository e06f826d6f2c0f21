/// What a plot works with and leaves behind.
#pragma once

#include "core/rib_model.h"

namespace loftwing {

/// Offsets of the inner sheeting line at each station: angle in degrees, shift along and across the
/// chord in fractions of it.
struct DecalageCoffrage {
    TableStation Angle{};
    TableStation DecalX{};
    TableStation DecalY{};
};

/// The same at one station.
struct DecalageStation {
    double Angle = 0;
    double DecalX = 0;
    double DecalY = 0;
};

/// Where the plot set a spar or a hole: stations of its front edge, its rear edge and its centre,
/// and the surface heights there in fractions of the chord. Of a hole only the centre is looked up,
/// since it may poke out of the rib.
struct PlaceTracee {
    float kf = 0;
    float kr = 0;
    float kc = 0;
    double Uf = 0; ///< upper surface
    double Ur = 0;
    double Uc = 0;
    double Lf = 0; ///< lower surface
    double Lr = 0;
    double Lc = 0;
};

/// Scale, origin and derived values of the last plot. They live as long as the program: a plot that
/// computes only some of them reads the others as an earlier one left them, and so does the DXF
/// writer.
struct PlotState {
    // Set by whoever calls a plot routine, in device units.
    float CordeEchelle = 0; ///< chord
    float OrigineX = 0;     ///< leading edge on the reference line; the plot moves it itself
    float OrigineY = 0;

    // Computed by the plot.
    float Echelle = 0;       ///< device units per mm
    float EchelleY = 0;      ///< the same with the sign of the y direction
    float CordeEchelleY = 0; ///< CordeEchelle with that sign
    float EpRel = 0;         ///< sheeting in fractions of the chord
    float CoupeRel = 0;      ///< cutting allowance of the foam template, fraction of the chord
    float CoupeDev = 0;      ///< what of it goes beyond the sheeting, device units
    double DemiBF = 0;       ///< height of the middle of the trailing edge, fraction of the chord
    float StationBA = 0;     ///< stations of the stock lines
    float StationBF = 0;
    double BlocBA = 0; ///< working copies for the foam template
    double BlocEp = 0;
    double BlocHaut = 0;
    double BlocLong = 0;
    double BlocYBF = 0;
    double VrillageRad = 0;
    float DecalCoffr = 0;         ///< shift of a spar notch, fraction of the chord
    std::int16_t IdxFinCoffr = 0; ///< stations at which the two sheeting lines have crossed
    double PosEpDev = 0;          ///< greatest thickness from the leading edge, mm

    DecalageCoffrage extra; ///< upper surface
    DecalageCoffrage intra; ///< lower surface

    std::array<PlaceTracee, kSlots> longerons; ///< of the slots that the plot reached
    std::array<PlaceTracee, kSlots> trous;
};

} // namespace loftwing
