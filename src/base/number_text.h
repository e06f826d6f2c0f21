/// Numbers to text and back. Nothing here depends on the locale.
#pragma once

#include <string>
#include <string_view>

namespace loftwing {

/// The leading-number conversion: the longest decimal number (sign, digits, one point, exponent) at
/// the start of `text`; 0 if there is none. Blanks are skipped wherever they stand, since the
/// program's own pictures set one between thousands. Failure 6 for a number beyond 64 bits.
double LeadingNumber(std::string_view text);

/// Whether a 0 stands before the point of a number below 1: 0.375 or .375.
enum class ZeroBeforePoint { yes, no };

/// The number-to-text step: 15 significant digits (a 32-bit value: 7), no trailing zeros; fixed
/// notation as long as the digits and the zeros behind the point fit into 15 (7) places and the
/// value is below 1E+15 (1E+07), otherwise like 3.01821227375942E-03. Failure 6 for a value that is
/// not finite.
std::string NumberText(double value, ZeroBeforePoint zero = ZeroBeforePoint::yes);
std::string NumberText(float value, ZeroBeforePoint zero = ZeroBeforePoint::yes);

/// The shortest text without exponent that reads back to the same 32-bit value. Failure 6 for a
/// value that is not finite.
std::string ShortestText(float value);

/// Pictures of Format.
inline constexpr std::string_view kPictureThreeDecimals = "# ###.###";
inline constexpr std::string_view kPictureTwoFixed = "# ###.00";
inline constexpr std::string_view kPictureTwoWithZero = "# ###0.00";

/// `value` under a picture: '#' optional digit, '0' forced digit, '.' point, any other character a
/// literal that is always written; the minus in front of all. Rounds halves away from zero on the
/// 15-digit (a 32-bit value: 7-digit) text. 12.3 under "# ###.00" is " 12.30".
std::string Format(double value, std::string_view picture);
std::string Format(float value, std::string_view picture);

/// The same behind what `out` holds, for writers of many. Nothing is added where it fails.
void AppendFormat(std::string &out, double value, std::string_view picture);

/// Adds `value` with up to `decimals` digits behind the point, 1 to 15, without zeros at the end
/// and never as a 0 with a minus. Rounds the exact value, halves to even. A value that is not
/// finite becomes the word for it.
void AppendFixed(std::string &out, double value, int decimals);

/// Adds a whole number.
void AppendWhole(std::string &out, long value);

/// `text` without the blanks at its start, its end, or both. Only blanks count, not tabs.
std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);
std::string_view Trim(std::string_view text);

} // namespace loftwing
