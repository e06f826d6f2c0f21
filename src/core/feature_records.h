/// Records of what is added to a rib. A length is a number in mm and the text it was typed as
/// (ending Afich, in the user's unit).
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace loftwing {

/// Spars and holes have slots 0 to 12: finished ones below the count, the one being edited at the
/// count, which stays at most 11.
inline constexpr int kSlots = 13;

struct Longeron {
    std::string PosLongAfich = "0"; ///< place along the chord, a length or a percentage
    float PosLong = 0;              ///< mm from the leading edge to the centre
    std::string LargLongAfich = "0";
    float LargLong = 0; ///< width along the chord, diameter of a round one, mm
    std::string HautLongAfich = "0";
    float HautLong = 0; ///< depth across the chord, mm
    std::string DistLongAfich = "0";
    float DistLong = 0;          ///< distance from the surface, mm
    std::uint8_t OptLongExt = 0; ///< upper surface: 0 none, 1 from the sheeting, 2 from the contour
    std::uint8_t OptLongInt = 0; ///< the same on the lower surface
    std::uint8_t TypeLong = 0;   ///< 0 along the surface, 1 square, 2 round, 3 square at a distance
    std::uint8_t RefLong = 0;    ///< PosLongAfich counts from 0 the leading, 1 the trailing edge
    std::string ResLong;         ///< spare; only the rib components file knows it

    bool operator==(const Longeron &) const = default;
};

struct Trou {
    std::string PosTrouAfich = "0"; ///< place along the chord, a length or a percentage
    float PosTrou = 0;              ///< mm from the leading edge to the centre
    std::string DiaTrouAfich = "0";
    float DiaTrou = 0; ///< diameter, or width of a rectangle, mm
    std::string HautTrouAfich = "0";
    float HautTrou = 0; ///< height of a rectangle, mm
    std::string DecalTrouAfich = "0";
    float DecalTrou = 0;       ///< mm above the reference line
    float ChkCentre = 0;       ///< 1 in the middle of the thickness; a flag that files keep as real
    std::uint8_t RefTrou = 0;  ///< PosTrouAfich counts from 0 the leading, 1 the trailing edge
    std::uint8_t TypeTrou = 0; ///< 0 circle, 1 rectangle
    std::string ResTrou;       ///< spare; only the rib components file knows it

    bool operator==(const Trou &) const = default;
};

/// Square stick on its corner in a V-notch at the leading edge.
struct CarreBord {
    std::string CarreBAAfich = "0";
    float CarreBA = 0; ///< side, mm
    std::string CarreBAXAfich = "0";
    float CarreBAX = 0; ///< axis from the leading edge, mm
    std::string CarreBAYAfich = "0";
    float CarreBAY = 0; ///< axis above the reference line, mm

    bool operator==(const CarreBord &) const = default;
};

/// What a levelling heel loses when another airfoil takes over the rib.
struct HauteursTalon {
    std::int16_t OptTalon = 0; ///< 0 under the lower surface, 1 on the upper surface
    std::string TalonIntraAfich = "0";
    double TalonIntra = 0; ///< height under the lower surface, mm
    std::string TalonExtraAfich = "0";
    double TalonExtra = 0; ///< height on the upper surface, mm, negated

    bool operator==(const HauteursTalon &) const = default;
};

/// Levelling heel.
struct Talon : HauteursTalon {
    std::string TalonBAAfich = "0";
    double TalonBA = 0; ///< margin at the leading edge, mm
    std::string TalonBFAfich = "0";
    double TalonBF = 0;   ///< margin at the trailing edge, mm
    double TalonLong = 0; ///< both margins together, mm

    bool operator==(const Talon &) const = default;
};

/// Template for cutting foam.
struct Bloc {
    std::string HTbasblocAfich = "0";
    float HTbasbloc = 0; ///< height under the reference line, mm
    std::string BAblocAfich = "0";
    float BAbloc = 0; ///< ramp before the leading edge, mm
    std::string BFblocAfich = "0";
    float BFbloc = 0; ///< ramp behind the trailing edge, mm
    std::string CoupeBFAfich = "0";
    float CoupeBF = 0; ///< thickness left at the trailing edge, mm
    std::string HTblocAfich;
    float HTbloc = 0;          ///< total height, mm
    float LongBloc = 0;        ///< chord and both ramps, mm
    std::uint8_t Optquebf = 0; ///< the tail starts from 0 the upper, 1 the lower surface

    bool operator==(const Bloc &) const = default;
};

/// The line of text on a rib.
struct TexteInsere {
    std::string InsTexte;
    std::string InsTextXAfich = "0";
    float InsTextX = 0; ///< mm from the leading edge
    std::string InsTextYAfich = "0";
    float InsTextY = 0;            ///< mm above the reference line
    float TailleFont = 9;          ///< points
    bool TexteUtilisateur = false; ///< the user's own words, never made anew

    bool operator==(const TexteInsere &) const = default;
};

/// Slot of the rib at the tip in a set with variable spacing, whatever the number of ribs.
inline constexpr int kNervureMin = 13;
inline constexpr int kNervuresJeu = kNervureMin + 1;

/// Ribs and gaps of a set with variable spacing, mm. Slot 0 is the rib at the root, 1 to
/// NbNervInter are the intermediate ones, kNervureMin is the tip's; gap i lies before rib i, the
/// last one before the tip's.
struct JeuNervures {
    std::int16_t NbNervInter = 0; ///< 1 to 12
    std::array<float, kNervuresJeu> CordeNerv{};
    std::array<float, kNervuresJeu> EprNerv{}; ///< thickness of the ribs
    std::array<std::string, kNervuresJeu> EprNervAfich;
    std::array<float, kNervuresJeu> EcartNerv{}; ///< clear width of the gaps
    std::array<std::string, kNervuresJeu> EcartNervAfich;
};

} // namespace loftwing
