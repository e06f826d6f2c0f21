/// Run-time failures with a number and what they concern, and the checked arithmetic that raises
/// them.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace loftwing {

/// A run-time failure. It is thrown where it happens and caught by the routine that owns the
/// failure's label, which shows the one standard box. What the number means is said in the user's
/// language when the failure is shown; see lang/failure_words.h.
struct Failure {
    int number;
    std::string detail; ///< what it concerns (a path, a slot); empty where there is no more to say

    /// Adds to the detail what a caller knows of it.
    void Precise(const std::string &more) { detail += (detail.empty() ? "" : ": ") + more; }
};

/// Numbers of the failures that the program raises itself.
enum FailureNumber : int {
    kInvalidProcedureCall = 5,
    kOverflow = 6,
    kOutOfMemory = 7,
    kSubscriptOutOfRange = 9,
    kDivisionByZero = 11,
    kTypeMismatch = 13,
    kFileNotFound = 53,
    kDeviceError = 57,
    kDiskFull = 61,
    kInputPastEnd = 62,
    kPermissionDenied = 70,
    kPathFileAccess = 75,
    kPathNotFound = 76,
    kCancel = 32755
};

Failure MakeFailure(FailureNumber number, const std::string &detail = {});

/// The same thrown. What checks each of many values is compiled into its place and comes here only
/// when it fails.
[[noreturn]] void Fail(FailureNumber number);

/// `value` itself; failure 6 when it is infinite or not a number.
inline double Finite(double value) {
    if (!std::isfinite(value)) {
        Fail(kOverflow);
    }
    return value;
}

/// `dividend` / `divisor`. Failure 11 for a divisor of 0, 6 for a result beyond 64 bits.
inline double Quotient(double dividend, double divisor) {
    if (divisor == 0.0) {
        Fail(kDivisionByZero);
    }
    return Finite(dividend / divisor);
}

/// `value` rounded once to 32 bits. Failure 6 when it doesn't fit.
inline float ToSingle(double value) {
    const float single = static_cast<float>(value);
    if (!std::isfinite(single)) {
        Fail(kOverflow);
    }
    return single;
}

/// A 32-bit value for a 64-bit expression; it loses nothing.
constexpr double Wide(float value) {
    return static_cast<double>(value);
}

/// `value` rounded to the nearest whole number, halves to even. The one rounding of real numbers to
/// indexes and counts.
double RoundHalfEven(double value);

/// `value` rounded (halves to even) to a signed 16-bit, unsigned 8-bit or 32-bit whole number.
/// Failure 6 when it doesn't fit.
std::int16_t ToInt16(double value);
std::uint8_t ToByte(double value);
int ToInt(double value);

/// Adds 1 to a 16-bit count. Failure 6 at 32767.
void Increment(std::int16_t &count);

/// The element at `index`, counted from 0. Failure 9 outside the list.
template <class List>
auto &At(List &list, long index) {
    if (index < 0 || static_cast<std::size_t>(index) >= list.size()) {
        Fail(kSubscriptOutOfRange);
    }
    return list[static_cast<std::size_t>(index)];
}

/// A list of 64-bit reals that counts from 1, as point lists do in the trade's files.
class PointList {
  public:
    /// The value at `index`, 1 to Count(). Failure 9 outside.
    double operator()(long index) const { return At(values_, index - 1); }
    double &operator()(long index) { return At(values_, index - 1); }

    void Append(double value) { values_.push_back(value); }
    void Clear() { values_.clear(); }
    void Reserve(std::size_t count) { values_.reserve(count); }
    long Count() const { return static_cast<long>(values_.size()); }
    bool Holds(long index) const { return index >= 1 && index <= Count(); }
    const std::vector<double> &Values() const { return values_; }

    bool operator==(const PointList &) const = default;

  private:
    std::vector<double> values_;
};

} // namespace loftwing
