#include "base/number_text.h"

#include "base/failure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace loftwing {

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// A decimal value as its significant digits: 0.digits times 10 to the power `exponent`.
struct Decimal {
    bool negative = false;
    std::string digits; // without zeros at either end; empty for 0
    int exponent = 0;
};

std::size_t SkipDigits(const std::string &text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

/// Length of the number at the start of `text`, which holds neither blanks nor a sign.
std::size_t NumberLength(const std::string &text) {
    const std::size_t whole = SkipDigits(text, 0);
    std::size_t end = whole;
    std::size_t digits = whole;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = SkipDigits(text, end + 1);
        digits += fraction - end - 1;
        end = fraction;
    }
    if (digits == 0) {
        return 0;
    }
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) {
            ++exponent;
        }
        const std::size_t after = SkipDigits(text, exponent);
        if (after > exponent) {
            end = after;
        }
    }
    return end;
}

/// The exponent behind the mark at `mark`, which may have any number of digits.
long long ExponentOf(const std::string &number, std::size_t mark) {
    constexpr long long kBeyondAll = 1'000'000'000'000; // no text is as long as that
    const bool negative = number[mark + 1] == '-';
    const std::size_t first = mark + (negative || number[mark + 1] == '+' ? 2 : 1);
    long long power = 0;
    const auto result =
        std::from_chars(number.data() + first, number.data() + number.size(), power);
    if (result.ec == std::errc::result_out_of_range || power > kBeyondAll) {
        power = kBeyondAll;
    }
    return negative ? -power : power;
}

/// Whether a number that 64 bits can't hold is too large rather than too small: where its first
/// digit that is not 0 stands, counted from the point, and its exponent tell.
bool IsTooLarge(const std::string &number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const auto point = static_cast<long long>(std::min(number.find('.'), mark));
    const auto first = static_cast<long long>(number.find_first_of("123456789"));
    const long long power = mark < number.size() ? ExponentOf(number, mark) : 0;
    return point - first + power > 0;
}

double ParseNumber(const std::string &number) {
    double value = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (IsTooLarge(number)) {
            throw MakeFailure(kOverflow);
        }
        return 0.0;
    }
    return value;
}

template <class Real>
Decimal ToDecimal(Real value, int significant) {
    Finite(static_cast<double>(value));
    Decimal decimal;
    if (value == Real{0}) {
        return decimal;
    }
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                      std::chars_format::scientific, significant - 1);
    const std::string text(buffer.data(), result.ptr);
    const std::size_t mark = text.find('e');
    decimal.negative = value < Real{0};
    decimal.digits = text.substr(0, mark);
    std::erase(decimal.digits, '.');
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    const char *exponent = text.data() + mark + 1;
    if (*exponent == '+') {
        ++exponent;
    }
    std::from_chars(exponent, text.data() + text.size(), decimal.exponent);
    ++decimal.exponent;
    return decimal;
}

std::string ExponentText(const Decimal &decimal) {
    std::string text(1, decimal.digits[0]);
    if (decimal.digits.size() > 1) {
        text += '.' + decimal.digits.substr(1);
    }
    const int exponent = decimal.exponent - 1;
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

/// Digits before the point; empty for a value below 1.
std::string WholeDigits(const Decimal &decimal) {
    if (decimal.exponent <= 0) {
        return {};
    }
    std::string whole = decimal.digits.substr(0, static_cast<std::size_t>(decimal.exponent));
    whole.resize(static_cast<std::size_t>(decimal.exponent), '0');
    return whole;
}

/// Digits behind the point; empty for a whole number.
std::string FractionDigits(const Decimal &decimal) {
    if (decimal.exponent <= 0) {
        return std::string(static_cast<std::size_t>(-decimal.exponent), '0') + decimal.digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent);
    return whole < decimal.digits.size() ? decimal.digits.substr(whole) : std::string();
}

std::string TextOf(const Decimal &decimal, int significant, ZeroBeforePoint zero) {
    if (decimal.digits.empty()) {
        return "0";
    }
    const std::string sign = decimal.negative ? "-" : "";
    const std::string fraction =
        decimal.exponent > significant ? std::string() : FractionDigits(decimal);
    if (decimal.exponent > significant || static_cast<int>(fraction.size()) > significant) {
        return sign + ExponentText(decimal);
    }
    std::string whole = WholeDigits(decimal);
    if (whole.empty() && zero == ZeroBeforePoint::yes) {
        whole = "0";
    }
    return sign + whole + (fraction.empty() ? "" : "." + fraction);
}

bool IsPlace(char character) {
    return character == '#' || character == '0';
}

/// The digits of |value| with `places` digits behind the point, rounded half away from zero.
void RoundDigits(const Decimal &decimal, std::size_t places, std::string &whole,
                 std::string &fraction) {
    whole = WholeDigits(decimal);
    fraction = decimal.digits.empty() ? std::string() : FractionDigits(decimal);
    const bool up = fraction.size() > places && fraction[places] >= '5';
    fraction.resize(places, '0');
    if (up) {
        std::string all = whole + fraction;
        auto digit = all.rbegin();
        while (digit != all.rend() && *digit == '9') {
            *digit++ = '0';
        }
        if (digit == all.rend()) {
            all.insert(all.begin(), '1');
        } else {
            ++*digit;
        }
        whole = all.substr(0, all.size() - places);
        fraction = all.substr(all.size() - places);
    }
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
}

/// The part of a picture before its point, filled from the right.
std::string FillWhole(std::string_view picture, const std::string &whole) {
    std::string reversed;
    auto left = std::count_if(picture.begin(), picture.end(), IsPlace);
    if (left == 0) {
        // Without a place for them the digits stand right before the point.
        return std::string(picture) + whole;
    }
    auto digit = whole.rbegin();
    for (auto place = picture.rbegin(); place != picture.rend(); ++place) {
        if (!IsPlace(*place)) {
            reversed += *place;
            continue;
        }
        if (digit != whole.rend()) {
            reversed += *digit++;
        } else if (*place == '0') {
            reversed += '0';
        }
        if (--left == 0) {
            // What has no place of its own stands in front of the leftmost one.
            reversed.append(digit, whole.rend());
        }
    }
    return {reversed.rbegin(), reversed.rend()};
}

/// The part of a picture behind its point, filled from the left.
std::string FillFraction(std::string_view picture, const std::string &fraction) {
    const std::size_t significant = fraction.find_last_not_of('0') + 1;
    const std::size_t forced = picture.find_last_of('0') + 1; // a place before it is forced too
    std::string text;
    std::size_t next = 0;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        if (!IsPlace(picture[i])) {
            text += picture[i];
            continue;
        }
        if (next < significant || i < forced) {
            text += fraction[next];
        }
        ++next;
    }
    return text;
}

std::string FormatDecimal(const Decimal &decimal, std::string_view picture) {
    const std::size_t point = picture.find('.');
    const std::string_view before = picture.substr(0, point);
    const std::string_view behind =
        point == std::string_view::npos ? std::string_view() : picture.substr(point + 1);
    const auto places =
        static_cast<std::size_t>(std::count_if(behind.begin(), behind.end(), IsPlace));
    std::string whole;
    std::string fraction;
    RoundDigits(decimal, places, whole, fraction);
    std::string text = (decimal.negative ? "-" : "") + FillWhole(before, whole);
    if (point != std::string_view::npos) {
        text += '.' + FillFraction(behind, fraction);
    }
    return text;
}

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

} // namespace

double LeadingNumber(std::string_view text) {
    std::string compact(text);
    std::erase(compact, ' ');
    bool negative = false;
    if (!compact.empty() && (compact[0] == '+' || compact[0] == '-')) {
        negative = compact[0] == '-';
        compact.erase(0, 1);
    }
    const std::size_t length = NumberLength(compact);
    if (length == 0) {
        return 0.0;
    }
    const double value = ParseNumber(compact.substr(0, length));
    return negative ? -value : value;
}

std::string NumberText(double value, ZeroBeforePoint zero) {
    return TextOf(ToDecimal(value, kDoubleDigits), kDoubleDigits, zero);
}

std::string NumberText(float value, ZeroBeforePoint zero) {
    return TextOf(ToDecimal(value, kSingleDigits), kSingleDigits, zero);
}

std::string ShortestText(float value) {
    Finite(Wide(value));
    if (value == 0.0F) {
        return "0"; // not "-0"
    }
    std::array<char, 64> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

std::string Format(double value, std::string_view picture) {
    return FormatDecimal(ToDecimal(value, kDoubleDigits), picture);
}

std::string Format(float value, std::string_view picture) {
    return FormatDecimal(ToDecimal(value, kSingleDigits), picture);
}

std::string_view TrimLeft(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

std::string_view TrimRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trim(std::string_view text) {
    return TrimRight(TrimLeft(text));
}

} // namespace loftwing
