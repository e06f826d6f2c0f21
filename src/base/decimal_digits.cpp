#include "base/decimal_digits.h"

#include "base/failure.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>

namespace loftwing {

namespace {

template <std::size_t Count>
constexpr std::array<std::uint64_t, Count> PowersOf(std::uint64_t base) {
    std::array<std::uint64_t, Count> powers{};
    std::uint64_t power = 1;
    for (std::uint64_t &entry : powers) {
        entry = power;
        power *= base;
    }
    return powers;
}

constexpr auto kPowersOfTen = PowersOf<19>(10);
constexpr auto kPowersOfFive = PowersOf<28>(5); // the last that 64 bits hold is 27

/// The whole 128 bits of a product.
struct Product {
    std::uint64_t high, low;
};

// By halves of 32 bits, since not every compiler has a number of 128.
Product Times(std::uint64_t a, std::uint64_t b) {
    constexpr std::uint64_t kHalf = 0xFFFFFFFF;
    const std::uint64_t low = (a & kHalf) * (b & kHalf);
    const std::uint64_t one = (a >> 32U) * (b & kHalf) + (low >> 32U);
    const std::uint64_t other = (a & kHalf) * (b >> 32U) + (one & kHalf);
    return {(a >> 32U) * (b >> 32U) + (one >> 32U) + (other >> 32U),
            (other << 32U) | (low & kHalf)};
}

/// A number of 64 bits and what lies behind its point.
struct Shifted {
    std::uint64_t whole;
    std::uint64_t part; ///< the first 64 bits behind the point
    bool more;          ///< a bit is set behind those
};

/// `number` divided by 2 to the power `shift`, 1 to 127; the result must have 64 bits.
Shifted ShiftDown(const Product &number, unsigned shift) {
    constexpr unsigned kBits = 64;
    if (shift < kBits) {
        return {(number.high << (kBits - shift)) | (number.low >> shift),
                number.low << (kBits - shift), false};
    }
    if (shift == kBits) {
        return {number.high, number.low, false};
    }
    const unsigned rest = shift - kBits;
    return {number.high >> rest, (number.high << (kBits - rest)) | (number.low >> rest),
            number.low << (kBits - rest) != 0};
}

std::uint64_t RoundedHalfEven(const Shifted &number) {
    constexpr std::uint64_t kHalf = 0x8000000000000000;
    const bool odd = (number.whole & 1U) != 0;
    const bool up = number.part > kHalf || (number.part == kHalf && (number.more || odd));
    return number.whole + (up ? 1 : 0);
}

constexpr unsigned kFractionBits = 52;
constexpr int kExponentBias = 1023;

int BinaryExponentField(double value) {
    constexpr std::uint64_t kField = 0x7FF;
    return static_cast<int>((std::bit_cast<std::uint64_t>(value) >> kFractionBits) & kField);
}

/// Of |value|, by a text: for those that the quick way doesn't reach.
Decimal DecimalByText(double value, int significant) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, significant - 1)
                         .ptr;
    Decimal decimal;
    const char *next = buffer.data();
    for (; *next != 'e'; ++next) {
        if (*next != '.') {
            decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*next - '0');
        }
    }
    ++next;
    if (*next == '+') {
        ++next;
    }
    std::from_chars(next, end, decimal.exponent);
    ++decimal.exponent;
    return decimal;
}

/// Of |value|; nothing where ScaledDigits has nothing.
std::optional<Decimal> QuickDecimal(double value, int significant) {
    // The power of ten at the value's own power of two: right or one too low, and never too high,
    // which would let 9.99 pass for 10 with a digit less.
    constexpr int kLog2 = 78913; // of 2, times 2 to the power 18, rounded down
    constexpr unsigned kLog2Bits = 18;
    const int binary = BinaryExponentField(value) - kExponentBias;
    int exponent = ((binary * kLog2) >> kLog2Bits) + 1;
    auto digits = ScaledDigits(value, significant - exponent);
    if (digits && *digits >= PowerOfTen(significant)) {
        ++exponent;
        digits = ScaledDigits(value, significant - exponent);
    }
    return digits ? std::optional(Decimal{false, *digits, exponent}) : std::nullopt;
}

} // namespace

std::uint64_t PowerOfTen(int power) {
    return kPowersOfTen[static_cast<std::size_t>(power)];
}

std::optional<std::uint64_t> ScaledDigits(double value, int power) {
    constexpr std::uint64_t kFraction = (std::uint64_t{1} << kFractionBits) - 1;
    constexpr int kLastPower = static_cast<int>(kPowersOfFive.size()) - 1;
    constexpr unsigned kAllBits = 128;
    constexpr unsigned kBits = 64;
    if (value == 0.0) {
        return 0;
    }
    const int field = BinaryExponentField(value);
    // The value is 53 bits times 2 to this power. What is left to divide by is a power of two.
    const int binary = field - kExponentBias - static_cast<int>(kFractionBits);
    if (field == 0 || power < 0 || power > kLastPower || binary + power >= 0) {
        return std::nullopt;
    }
    const std::uint64_t bits = (std::bit_cast<std::uint64_t>(value) & kFraction) | (kFraction + 1);
    const Product product = Times(bits, kPowersOfFive[static_cast<std::size_t>(power)]);
    const auto shift = static_cast<unsigned>(-(binary + power));
    if (shift >= kAllBits) {
        return 0; // the product has 116 bits at most, so this is far below a half
    }
    if (shift < kBits && (product.high >> (shift - 1)) != 0) {
        return std::nullopt;
    }
    return RoundedHalfEven(ShiftDown(product, shift));
}

Decimal ToDecimal(double value, int significant) {
    Finite(value);
    if (value == 0.0) {
        return {};
    }
    const auto quick = QuickDecimal(value, significant);
    Decimal decimal = quick ? *quick : DecimalByText(std::abs(value), significant);
    decimal.negative = value < 0.0;
    return decimal;
}

} // namespace loftwing
