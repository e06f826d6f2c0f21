#include "base/number_text.h"

#include "base/decimal_digits.h"
#include "base/failure.h"
#include "base/picture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace loftwing {

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

/// Length of the number at the start of `text`, which holds no sign. A blank ends it.
std::size_t NumberLength(std::string_view text) {
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
long long ExponentOf(std::string_view number, std::size_t mark) {
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
bool IsTooLarge(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const auto point = static_cast<long long>(std::min(number.find('.'), mark));
    const auto first = static_cast<long long>(number.find_first_of("123456789"));
    const long long power = mark < number.size() ? ExponentOf(number, mark) : 0;
    return point - first + power > 0;
}

double ParseNumber(std::string_view number) {
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

bool MayBeOfANumber(char character) {
    return IsDigit(character) || character == '.' || character == 'e' || character == 'E' ||
           character == '+' || character == '-';
}

/// Whether the number in front of `rest` may go on behind a blank there.
bool GoesOnBehindABlank(std::string_view rest) {
    const auto *const end = std::find_if_not(rest.begin(), rest.end(), MayBeOfANumber);
    rest.remove_prefix(static_cast<std::size_t>(end - rest.begin()));
    const std::string_view next = TrimLeft(rest);
    return next.size() < rest.size() && !next.empty() && MayBeOfANumber(next[0]);
}

std::string WithoutBlanks(std::string_view text) {
    std::string compact(text);
    std::erase(compact, ' ');
    return compact;
}

/// A value digit by digit: 0.digits times 10 to the power `exponent`.
struct DigitRun {
    bool negative = false;
    std::array<char, 20> digits{};
    int count = 0; ///< without zeros at the end; 0 for the value 0
    int exponent = 0;

    /// Digit `index` behind the first one. On both sides stand zeros.
    char Digit(int index) const {
        return index >= 0 && index < count ? digits[static_cast<std::size_t>(index)] : '0';
    }
    /// How many stand before the point, none for a value below 1, and behind it.
    int Whole() const { return std::max(exponent, 0); }
    int Fraction() const { return std::max(count - exponent, 0); }

    char *WriteWhole(char *to, int first, int end) const {
        for (int index = first; index < end; ++index) {
            *to++ = Digit(index);
        }
        return to;
    }
    char *WriteFraction(char *to) const {
        *to++ = '.';
        return WriteWhole(to, exponent, exponent + Fraction());
    }
};

/// `number` with its last `decimals` digits behind the point; a negative count of them stands for
/// zeros before it.
DigitRun RunOf(bool negative, std::uint64_t number, int decimals) {
    DigitRun run;
    run.negative = negative;
    if (number == 0) {
        return run;
    }
    char *const first = run.digits.data();
    const char *end = std::to_chars(first, first + run.digits.size(), number).ptr;
    run.exponent = static_cast<int>(end - first) - decimals;
    while (end[-1] == '0') {
        --end;
    }
    run.count = static_cast<int>(end - first);
    return run;
}

DigitRun RunOf(const Decimal &decimal, int significant) {
    return RunOf(decimal.negative, decimal.digits, significant - decimal.exponent);
}

char *WriteExponent(char *to, const DigitRun &run) {
    *to++ = run.Digit(0);
    if (run.count > 1) {
        *to++ = '.';
        to = run.WriteWhole(to, 1, run.count);
    }
    const int power = run.exponent - 1;
    *to++ = 'E';
    *to++ = power < 0 ? '-' : '+';
    constexpr int kTwoDigits = 10;
    constexpr int kMostDigits = 3;
    if (std::abs(power) < kTwoDigits) {
        *to++ = '0';
    }
    return std::to_chars(to, to + kMostDigits, std::abs(power)).ptr;
}

std::string DigitsOf(double value, int significant, ZeroBeforePoint zero) {
    const DigitRun run = RunOf(ToDecimal(value, significant), significant);
    if (run.count == 0) {
        return "0";
    }
    std::array<char, 48> buffer{}; // twice the 15 places and a few signs
    char *to = buffer.data();
    if (run.negative) {
        *to++ = '-';
    }
    if (run.exponent > significant || run.Fraction() > significant) {
        return {buffer.data(), WriteExponent(to, run)};
    }
    if (run.exponent <= 0 && zero == ZeroBeforePoint::yes) {
        *to++ = '0';
    }
    to = run.WriteWhole(to, 0, run.Whole());
    return {buffer.data(), run.Fraction() > 0 ? run.WriteFraction(to) : to};
}

/// `decimal` with `places` digits behind the point, rounded half away from zero.
DigitRun Rounded(const Decimal &decimal, int significant, int places) {
    constexpr std::uint64_t kFive = 5;
    const int decimals = significant - decimal.exponent;
    const int beyond = decimals - places;
    if (beyond <= 0) {
        return RunOf(decimal, significant);
    }
    if (beyond > significant) {
        return RunOf(decimal.negative, 0, places); // what is left out begins with a 0
    }
    const std::uint64_t rounded =
        (decimal.digits + kFive * PowerOfTen(beyond - 1)) / PowerOfTen(beyond);
    return RunOf(decimal.negative, rounded, places);
}

/// The part of a picture before its point, which takes the digits from its right end.
char *WriteBefore(char *to, std::string_view part, const DigitRun &run) {
    const int whole = run.Whole();
    const int places = Picture::CountPlaces(part);
    int left = places; // places from here to the point
    for (const char character : part) {
        if (!Picture::IsPlace(character)) {
            *to++ = character;
            continue;
        }
        if (left == places) {
            // What has no place of its own stands in front of the leftmost one.
            to = run.WriteWhole(to, 0, whole - places);
        }
        if (left <= whole) {
            *to++ = run.Digit(whole - left);
        } else if (character == '0') {
            *to++ = '0';
        }
        --left;
    }
    // Without a place for them the digits stand right before the point.
    return places == 0 ? run.WriteWhole(to, 0, whole) : to;
}

/// The part of a picture behind its point, which takes the digits from its left end.
char *WriteBehind(char *to, const Picture &picture, const DigitRun &run) {
    const std::string_view part = picture.behind;
    const int significant = run.Fraction();
    const auto forced = static_cast<std::size_t>(picture.forced); // a place before it is forced too
    int next = 0;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (!Picture::IsPlace(part[i])) {
            *to++ = part[i];
            continue;
        }
        if (next < significant || i < forced) {
            *to++ = run.Digit(run.exponent + next);
        }
        ++next;
    }
    return to;
}

void AppendRounded(std::string &out, double value, int significant, const Picture &picture) {
    const Decimal decimal = ToDecimal(value, significant);
    const DigitRun run = Rounded(decimal, significant, picture.places);
    // A character of the picture becomes one at most, and so does a digit before the point.
    const std::size_t before = out.size();
    out.resize(before + 2 + picture.before.size() + picture.behind.size() +
               static_cast<std::size_t>(run.Whole()));
    char *const first = out.data();
    char *to = first + before;
    if (run.negative) {
        *to++ = '-';
    }
    to = WriteBefore(to, picture.before, run);
    if (picture.pointed) {
        *to++ = '.';
        to = WriteBehind(to, picture, run);
    }
    out.resize(static_cast<std::size_t>(to - first));
}

/// |value| in units of its last decimal place, where a plain product tells it for sure: neither its
/// rounding nor one to 15 digits before it reaches from here to the next half.
std::optional<std::uint64_t> SureDecimals(double value, int places) {
    constexpr double kLargest = 1e10; // is rounded by less than 4e-6, and to 15 digits by 5e-6
    constexpr double kHalf = 0.5;
    constexpr double kNearAHalf = 1e-4;
    const double scaled = std::abs(value) * static_cast<double>(PowerOfTen(places));
    if (!(scaled < kLargest)) {
        return std::nullopt;
    }
    const auto whole = static_cast<std::int64_t>(scaled);
    const double part = scaled - static_cast<double>(whole);
    if (std::abs(part - kHalf) < kNearAHalf) {
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(whole + (part > kHalf ? 1 : 0));
}

/// A number of digits alone, the last `places` of them behind the point, and how many it has on
/// either side at least.
struct PlainNumber {
    bool negative;
    std::uint64_t digits;
    int places;
    int least_before, least_behind;
    bool always_pointed; ///< has its point even with no digit behind it
};

void AppendPlain(std::string &out, const PlainNumber &number) {
    constexpr std::size_t kZeros = 32; // in front, more than are ever wanted
    constexpr std::size_t kMostDigits = 20;
    constexpr std::size_t kMostPlaces = 16;
    std::array<char, kZeros + kMostDigits + kMostPlaces + 1> buffer{};
    std::fill_n(buffer.begin(), kZeros, '0');
    char *const first = buffer.data() + kZeros;
    const char *end =
        number.digits == 0 ? first : std::to_chars(first, first + kMostDigits, number.digits).ptr;
    char *const point = first + (end - first - number.places);
    char *start = std::min(first, point - number.least_before);
    while (end > point + number.least_behind && end[-1] == '0') {
        --end;
    }
    if (number.always_pointed || end > point) {
        std::memmove(point + 1, point, kMostPlaces); // always as many: so it takes no call
        *point = '.';
        ++end;
    }
    if (number.negative) {
        *--start = '-';
    }
    out.append(start, static_cast<std::size_t>(end - start));
}

/// AppendFixed for what ScaledDigits doesn't reach.
void AppendFixedByText(std::string &out, double value, int decimals) {
    std::array<char, 400> buffer{}; // the largest value has 309 digits before the point
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    if (text.find('.') != std::string_view::npos) {
        text = text.substr(0, text.find_last_not_of('0') + 1);
        text = text.substr(0, text.size() - (text.ends_with('.') ? 1 : 0));
    }
    out += text == "-0" ? "0" : text;
}

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

} // namespace

double LeadingNumber(std::string_view text) {
    std::string_view number = TrimLeft(text);
    bool negative = false;
    if (!number.empty() && (number[0] == '+' || number[0] == '-')) {
        negative = number[0] == '-';
        number.remove_prefix(1);
    }
    std::size_t length = NumberLength(number);
    std::string compact; // a copy only where a blank stands inside the number
    if (GoesOnBehindABlank(number.substr(length))) {
        number = compact = WithoutBlanks(number);
        length = NumberLength(number);
    }
    if (length == 0) {
        return 0.0;
    }
    const double value = ParseNumber(number.substr(0, length));
    return negative ? -value : value;
}

std::string NumberText(double value, ZeroBeforePoint zero) {
    return DigitsOf(value, kDoubleDigits, zero);
}

std::string NumberText(float value, ZeroBeforePoint zero) {
    return DigitsOf(Wide(value), kSingleDigits, zero);
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
    std::string text;
    AppendFormat(text, value, picture);
    return text;
}

std::string Format(float value, std::string_view picture) {
    std::string text;
    AppendRounded(text, Wide(value), kSingleDigits, Picture(picture));
    return text;
}

void AppendFormat(std::string &out, double value, std::string_view picture) {
    AppendFormat(out, value, Picture(picture));
}

void AppendFormat(std::string &out, double value, const Picture &picture) {
    if (picture.plain) {
        if (const auto digits = SureDecimals(value, picture.places)) {
            AppendPlain(out, {value < 0.0, *digits, picture.places, picture.forced_before,
                              picture.forced, true});
            return;
        }
    }
    AppendRounded(out, value, kDoubleDigits, picture);
}

void AppendFixed(std::string &out, double value, int decimals) {
    std::optional<std::uint64_t> digits = SureDecimals(value, decimals);
    if (!digits) {
        digits = ScaledDigits(value, decimals);
    }
    if (!digits) {
        AppendFixedByText(out, value, decimals);
        return;
    }
    AppendPlain(out, {value < 0.0 && *digits != 0, *digits, decimals, 1, 0, false});
}

void AppendWhole(std::string &out, long value) {
    std::array<char, 24> buffer{};
    out.append(buffer.data(),
               std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
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
