/// Values as decimal digits, made by whole numbers alone.
#pragma once

#include <cstdint>
#include <optional>

namespace loftwing {

/// |value| times 10 to the power `power`, rounded to the nearest whole number, halves to even, as
/// if all decimals of the value had been written out. Nothing for what this quick way doesn't
/// reach: a value that is not finite, too small for its 53 bits or of 2^(52 - power) and more, a
/// power outside 0 to 27, a result of 2^63 and more.
std::optional<std::uint64_t> ScaledDigits(double value, int power);

/// A value as 0.digits times 10 to the power `exponent`.
struct Decimal {
    bool negative = false;
    std::uint64_t digits = 0; ///< as many as were asked for, the first not 0; 0 for the value 0
    int exponent = 0;
};

/// `value` rounded to so many significant digits, 1 to 15, halves to even. Failure 6 for a value
/// that is not finite.
Decimal ToDecimal(double value, int significant);

/// 10 to the power `power`, 0 to 18.
std::uint64_t PowerOfTen(int power);

} // namespace loftwing
