#include "base/failure.h"

#include <cmath>
#include <limits>

namespace loftwing {

namespace {

template <class Whole>
Whole ToWhole(double value) {
    const double rounded = RoundHalfEven(value);
    // Written so that a value that is not a number fails too.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Whole>::max()))) {
        throw MakeFailure(kOverflow);
    }
    return static_cast<Whole>(rounded);
}

} // namespace

Failure MakeFailure(FailureNumber number, const std::string &detail) {
    return Failure{number, detail};
}

void Fail(FailureNumber number) {
    throw MakeFailure(number);
}

double RoundHalfEven(double value) {
    // The default rounding mode rounds halves to even; the program never sets another.
    return std::nearbyint(value);
}

std::int16_t ToInt16(double value) {
    return ToWhole<std::int16_t>(value);
}

std::uint8_t ToByte(double value) {
    return ToWhole<std::uint8_t>(value);
}

int ToInt(double value) {
    return ToWhole<int>(value);
}

void Increment(std::int16_t &count) {
    if (count == std::numeric_limits<std::int16_t>::max()) {
        throw MakeFailure(kOverflow);
    }
    ++count;
}

} // namespace loftwing
