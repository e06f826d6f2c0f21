/// Chords and spar places of a tapered panel with equally spaced ribs.
#pragma once

#include "core/units.h"
#include "output/plot_device.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

namespace loftwing {

class Printer;

/// Such a panel. Lengths are in mm, their texts as typed. Rib 1 has the major chord.
struct Nervures {
    float CordeMaj = 0;
    std::string CordeMajAfich;
    float CordeMin = 0;
    std::string CordeMinAfich;
    std::int16_t NbInter = 0; ///< ribs between the two end ribs
    float LongPanneau = 0;
    std::string LongPanneauAfich;
    float LongeronMaj = 0; ///< place of the spar on the major chord
    std::string LongeronMajAfich;
    float LongeronMin = 0;
    std::string LongeronMinAfich;
    float EprNervure = 0; ///< thickness of each rib
    std::string EprNervureAfich;
    double Ecart = 0; ///< clear space between two ribs
    double PasCorde = 0;
    double PasLongeron = 0;
};

/// The texts of the window, by the index of their text box.
inline constexpr int kNervCordeMaj = 0;
inline constexpr int kNervCordeMin = 1;
inline constexpr int kNervNbInter = 2;
inline constexpr int kNervLongPanneau = 3;
inline constexpr int kNervLongeronMaj = 4;
inline constexpr int kNervLongeronMin = 5;
inline constexpr int kNervEpr = 6;
inline constexpr int kChampsNervure = 7;
using TextesNervure = std::array<std::string, kChampsNervure>;

/// Computes the panel from what was typed. A chord of 0, a minor chord above the major one and a
/// missing number of ribs are refused by a box titled `titre`; the result is then the index of the
/// text box to go back to. The fraction of the number of ribs is dropped. Failures of VersMm, and 6
/// for more ribs than 16 bits count.
std::optional<int> CalculeNervures(Nervures &panneau, const TextesNervure &typed,
                                   const Saisie &saisie, const std::string &titre);

/// Whether the panel has no spar: neither place was given, or both are 0.
bool SansLongeron(const Nervures &panneau);

/// The clear space between two ribs as the window shows it.
std::string TexteEcart(const Nervures &panneau, const std::string &Unite);

/// Number of ribs, both end ribs included.
int NombreNervures(const Nervures &panneau);

/// One rib as the list shows it: numbers carry the blank that stands for their sign, typed texts
/// one behind them.
struct RangNervure {
    std::string numero;
    std::string corde;
    std::string longeron; ///< empty without a spar
};

/// Rib `numero`, from 1. The end ribs show what was typed, those between them computed values.
RangNervure RangDe(const Nervures &panneau, int numero, const std::string &Unite);

/// Where the list stands on its surface.
struct PlaceListe {
    int DecalListe = 0; ///< scrolled by so many steps of a fifth of the ribs, 0 or negative
    int HautListe = 2;  ///< top in mm
    /// Lowest place that is seen, device units. What lies below or above the surface isn't drawn.
    double bas = std::numeric_limits<double>::infinity();
};

// Left edges of the list's columns in device units.
inline constexpr double kColonneNumero = 283.5;
inline constexpr double kColonneCorde = 1134.0;
inline constexpr double kColonneLongeron = 2551.5;

/// A part of the list: ribs `premiere` to `derniere`, the first of them at `haut`.
struct TrancheNervures {
    int premiere;
    int derniere;
    double haut; ///< device units
};
/// Draws such a part in the device's current font.
void TraceRangs(PlotDevice &device, const Nervures &panneau, const std::string &Unite,
                const TrancheNervures &tranche);

/// Draws the list of ribs in the device's current font.
void TraceListe(PlotDevice &device, const Nervures &panneau, const std::string &Unite,
                const PlaceListe &place);

/// Draws the sheet of a panel called `nom`: measures, sketch and list. A list that is longer than
/// the sheet goes on on further ones. The job isn't ended.
void TraceFeuille(Printer &printer, const Nervures &panneau, const std::string &nom,
                  const Saisie &saisie);

/// Asks for the name of the sheet and for the printer, and prints it. Without a name or a printer
/// nothing happens. A failure drops the job and is told under `titre`.
void ImprimeNervures(const Nervures &panneau, const Saisie &saisie, const std::string &titre);

} // namespace loftwing
