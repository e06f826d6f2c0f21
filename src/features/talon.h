/// Heights and margins of the levelling heel.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <array>
#include <string>

namespace loftwing {

/// What the heights of a heel follow, in mm. The airfoil's share comes from the rib.
struct MesuresTalon {
    float corde;
    float EpCoffrage;
};

/// Depth of the lower and height of the upper surface from the reference line, without the
/// sheeting, as shown to the user. Negative where the sheeting is thicker than that. Failure 6 for
/// a value beyond 64 bits.
std::string TexteTalonIntra(const RibModel &rib, MesuresTalon mesures, const std::string &Unite);
std::string TexteTalonExtra(const RibModel &rib, MesuresTalon mesures, const std::string &Unite);

/// The rib's heel with the numbers of its heights taken from their texts; TalonExtra is kept
/// negated. Failures of VersMm.
Talon AvecHauteurs(Talon talon, const Saisie &saisie);

/// The rib's heel for other measures. Without washout both heights become the contour's; a
/// washed-out rib keeps what was typed. The rib stays as it is. Failures of VersMm.
Talon TalonPour(const RibModel &rib, MesuresTalon mesures, const Saisie &saisie);

/// Height of the heel in use, mm, as it is kept for its side.
double HauteurTalon(const Talon &talon);
/// The rib's inner face on the heel's side at a station, in fractions of the chord; `EpRel` is the
/// sheeting in the same. Failure 9 outside the tables.
double FaceTalon(const RibModel &rib, float EpRel, double station);

/// The heel with its margins taken from their texts for a chord in mm, and their sum.
Talon AvecMarges(Talon talon, float corde, const Saisie &saisie);

/// Whether the rib carries a heel that is drawn without the margins that its texts have: after a
/// rib components file was opened, until the margins are confirmed. Texts that are no lengths don't
/// count; the heel's window tells of them.
bool MargesEnAttente(const RibModel &rib, const Saisie &saisie);
/// Says so: "The heel's margins from the rib file are not in force : 20 mm, 30 mm. ...".
std::string TexteMargesEnAttente(const RibModel &rib, const Saisie &saisie);
/// Takes the margins into use, as OK of the heel's window would, and nothing else. False when they
/// are too long: a box told so, and the rib stays as it is. Failures of VersMm.
bool PrendMarges(RibModel &rib, const Saisie &saisie);

/// The texts of the heel's window, by the index of their text box.
inline constexpr int kTalonIntra = 0;
inline constexpr int kTalonMargeBA = 1;
inline constexpr int kTalonMargeBF = 2;
inline constexpr int kTalonVrillage = 3; ///< degrees, the negative of the rib's washout
inline constexpr int kTalonExtra = 4;
inline constexpr int kChampsTalon = 5;
using TextesTalon = std::array<std::string, kChampsTalon>;

/// The rib's heel as its window opens: a height of 0 becomes the contour's, unless the rib is
/// washed out, and the numbers follow their texts. Failures of VersMm; the rib is then as it was.
void OuvreTalon(RibModel &rib, const Saisie &saisie);

/// What the text boxes show of the rib.
TextesTalon TextesDuTalon(const RibModel &rib);
/// Caption of the window, which titles its boxes too.
std::string TitreTalon(const RibModel &rib, const Saisie &saisie);
/// Both margins together, with the unit.
std::string TexteMarges(const Talon &talon, const std::string &Unite);

/// Whether a margin, or both together, are longer than the chord. A length equal to it fits.
bool MargesTropLongues(const RibModel &rib);
/// Tells so.
void RefuseMarges(const RibModel &rib, const Saisie &saisie, const std::string &titre);

/// Follows the typing in the box `champ`: margins (one beyond the chord counts as 0) and washout go
/// into the rib at once, in the sign they are typed in. Boxes tell of an angle above 20 degrees,
/// which becomes -20 in the rib, and of margins that are longer than the chord together. True when
/// the angle's box must show kTexteVrillageMaxi instead. Failures of VersMm; the rib is then as it
/// was.
bool SuitTalon(RibModel &rib, int champ, const TextesTalon &typed, const Saisie &saisie,
               const std::string &titre);
inline constexpr const char *kTexteVrillageMaxi = "20";

/// Takes the heel into use: stores all texts and numbers, the washout, and a label that names it.
/// False when the margins are too long: a box told so, texts and lengths are stored as typed, and
/// the rib takes no heel by them. Failures of VersMm; the rib then only counts as changed.
bool ValideTalon(RibModel &rib, const TextesTalon &typed, const Saisie &saisie,
                 const std::string &titre);

} // namespace loftwing
