/// Lengths as the user types and reads them. The program thinks in millimetres; what it stores is
/// the typed text, so both conversions work on texts.
#pragma once

#include "core/messages.h"

#include <string>
#include <string_view>

namespace loftwing {

/// The two units of display, with the blank that sets them off behind a value.
inline constexpr std::string_view kUniteMm = " mm";
inline constexpr std::string_view kUniteIn = " in";

/// The unit that isn't in force.
constexpr std::string_view AutreUnite(std::string_view Unite) {
    return Unite == kUniteMm ? kUniteIn : kUniteMm;
}

/// What the conversion of a typed text needs to know: the unit in force and who hears of a refusal.
struct Saisie {
    const std::string &Unite;
    const Messages &messages;
};

/// A typed text to a text in mm. In inches "2.3/8" is two and three eighths. A text that is no
/// length in inches ("2./8", "/8") is refused by a box and gives the empty text, which reads as 0.
/// Failure 11 for a fraction with denominator 0, 6 for a number beyond 64 bits.
std::string VersMm(const std::string &text, const Saisie &saisie);

/// Whether VersMm refuses a text.
bool EstRefusee(const std::string &text, const std::string &Unite);

/// A text in mm to what is shown in `Unite`: in inches a fraction when the value is a multiple of
/// 1/64, else up to three decimals. Failure 6 for a number beyond 64 bits.
std::string DepuisMm(const std::string &text, const std::string &Unite);
std::string DepuisMm(double mm, const std::string &Unite);
std::string DepuisMm(float mm, const std::string &Unite);

/// The number of a typed text, in mm: VersMm, then the leading number.
double NombreMm(const std::string &text, const Saisie &saisie);

/// Sets the pair that every length is: `afich` becomes the text as typed, `number` its value in mm.
/// Failures as VersMm, and 6 for a value beyond 32 bits; the text has then been stored already, so
/// that the user finds in the field what was typed.
void StockeLongueur(const std::string &typed, const Saisie &saisie, std::string &afich,
                    float &number);

/// What a file says of a length whose number in force is `mm`: the text as typed, or, where that
/// was refused and so gives another number or none, the number's own text.
std::string TexteEnVigueur(const std::string &afich, float mm, const std::string &Unite);

/// A computed length as shown behind labels: "# ###.00" in mm, DepuisMm in inches.
std::string LongueurCalculee(double mm, const std::string &Unite);

/// `shown` (what DepuisMm gave) under a picture. A fraction or an empty text passes unchanged.
std::string FormatAffiche(const std::string &shown, std::string_view picture);

/// Characters that a numeric field admits, beside backspace.
inline constexpr std::string_view kTouchesEntier = "1234567890";
inline constexpr std::string_view kTouchesPositif = "1234567890.";
inline constexpr std::string_view kTouchesFraction = "1234567890./";
inline constexpr std::string_view kTouchesSigne = "1234567890.-";
inline constexpr std::string_view kTouchesFractionSigne = "1234567890./-";
inline constexpr std::string_view kTouchesPourcent = "1234567890.%";
inline constexpr std::string_view kTouchesFractionPourcent = "1234567890./%";

/// `mm` or `in`, whichever the unit asks for: only inches take a fraction.
std::string_view TouchesSelonUnite(const std::string &Unite, std::string_view mm,
                                   std::string_view in);

} // namespace loftwing
