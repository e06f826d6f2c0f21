// Numbers as texts, by a way of their own.

#include "support/naive_run.h"

#include <charconv>
#include <cstdlib>

namespace loftwing::naive {

namespace {

/// 15 digits of a positive value and the place of the point behind the first `point` of them.
std::string FifteenDigits(double value, int &point) {
    char buffer[40];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, 14).ptr;
    const std::string text(buffer, end);
    point = std::atoi(text.c_str() + 17) + 1;
    return text.substr(0, 1) + text.substr(2, 14);
}

/// Whole part and decimals of a value, as digits; neither is short.
void Split(double value, std::string &whole, std::string &decimals) {
    int point = 0;
    std::string digits = FifteenDigits(std::abs(value), point);
    if (value == 0) {
        digits = "0";
        point = 1;
    }
    while (point <= 0) {
        digits = "0" + digits;
        ++point;
    }
    digits += std::string(40, '0');
    whole = digits.substr(0, static_cast<std::size_t>(point));
    decimals = digits.substr(static_cast<std::size_t>(point), 30);
}

} // namespace

std::string General(double value, bool zero) {
    std::string whole;
    std::string decimals;
    Split(value, whole, decimals);
    decimals.resize(15);
    while (!decimals.empty() && decimals.back() == '0') {
        decimals.pop_back();
    }
    if (whole == "0" && !zero && !decimals.empty()) {
        whole.clear();
    }
    return (value < 0 ? "-" : "") + whole + (decimals.empty() ? "" : "." + decimals);
}

namespace {

/// "# ###." and `places` decimals, rounded half up.
std::string Thousands(double value, unsigned places) {
    std::string whole;
    std::string decimals;
    Split(value, whole, decimals);
    long long units = std::atoll((whole + decimals.substr(0, places)).c_str());
    if (decimals[places] >= '5') {
        units += 1;
    }
    std::string digits = std::to_string(units);
    while (digits.size() <= places) {
        digits = "0" + digits;
    }
    whole = digits.substr(0, digits.size() - places);
    decimals = digits.substr(digits.size() - places);
    if (whole == "0") {
        whole.clear();
    }
    const std::size_t head = whole.size() > 3 ? whole.size() - 3 : 0;
    return (value < 0 ? "-" : "") + whole.substr(0, head) + " " + whole.substr(head) + "." +
           decimals;
}

} // namespace

std::string TwoDecimals(double value) {
    return Thousands(value, 2);
}

std::string InInches(double mm) {
    const auto number = [](const std::string &digits) {
        double value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return value;
    };
    std::string text = General(mm, true);
    if (text == "0") {
        return "0";
    }
    text = General(number(text) / 25.4, false);
    const std::size_t point = text.find('.');
    std::string shown;
    if (point != std::string::npos) {
        const double f = number("0" + text.substr(point));
        for (int denominator = 2; denominator <= 64 && shown.empty(); denominator *= 2) {
            const double w = f * denominator;
            if (w == std::floor(w)) {
                shown = (point == 0 ? "" : text.substr(0, point + 1)) + General(w, true) + "/" +
                        std::to_string(denominator);
            }
        }
    }
    if (shown.empty()) {
        shown = Thousands(number(text), 3);
        while (shown.back() == '0') {
            shown.pop_back();
        }
        shown.erase(0, shown.find_first_not_of(' '));
    }
    if (shown[0] == '.') {
        shown = "0" + shown;
    }
    if (shown.find('.') == shown.size() - 1) {
        shown.pop_back();
    }
    return shown;
}

} // namespace loftwing::naive
