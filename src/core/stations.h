/// Lengths and percentages as stations of the chord.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <string>

namespace loftwing {

/// pi as the program makes it.
double Pi();

/// Degrees to radians.
double EnRadians(double degrees);

/// Station, possibly between two, of a distance in mm from the trailing or the leading edge; 0 is
/// the trailing edge, 400 the leading edge. Failure 11 for a chord of 0.
float StationDepuisBF(double distance, float corde);
float StationDepuisBA(double distance, float corde);

/// The height in fractions of the chord at `station`, rounded to the nearest (halves to even).
/// Failure 9 when that is no station.
double Hauteur(const TableStation &table, double station);
/// The same between two stations, straight from the one to the other; beyond the chord that of its
/// end.
double HauteurEntre(const TableStation &table, double station);

/// The mm of a display text that is a length or, with "%" as last character, a part of the chord.
/// Failures as VersMm.
double ValeurPourcent(const std::string &text, float corde, const Saisie &saisie);
/// The chord less ValeurPourcent.
double ValeurPourcentBF(const std::string &text, float corde, const Saisie &saisie);

/// Place of a spar or hole in mm from the leading edge, out of its text that counts from the
/// leading or from the trailing edge, as 32-bit records keep it. An empty text counts as 0.
/// Failures as VersMm, and 6 for a place beyond 32 bits.
float PosDepuisBA(const std::string &text, float corde, const Saisie &saisie);
float PosDepuisBF(const std::string &text, float corde, const Saisie &saisie);

} // namespace loftwing
