/// Numbers of the naive panel as texts, and back.
#pragma once

#include <string>

namespace loftwing::naive {

double PanelNumber(const std::string &text);
/// That many significant digits, as a number again.
double Significant(double value, int digits);
/// That many decimals, halves up, on a value of `digits` significant digits.
std::string Decimals(double value, int digits, int places);
/// A computed length in a rib components file.
std::string Blended(double mm, bool inches);
/// A chord in a title; `narrow`: it was kept in 32 bits.
std::string TitleChord(double mm, bool inches, bool narrow);
/// The shortest text of a 32-bit value.
std::string Shortest(float value);
/// Seven digits of a 32-bit value.
std::string SevenDigits(float value);

} // namespace loftwing::naive
