#include "support/naive_number_text.h"

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace loftwing::naive {

namespace {

/// What the C library prints, with a point under every locale.
std::string Printed(const char *format, int digits, double value) {
    std::vector<char> buffer(1000);
    const int length = std::snprintf(buffer.data(), buffer.size(), format, digits, value);
    std::string text(buffer.data(), static_cast<std::size_t>(length));
    const std::string comma = std::localeconv()->decimal_point;
    const std::size_t at = text.find(comma);
    return at == std::string::npos ? text : text.replace(at, comma.size(), ".");
}

void DropLastZeros(std::string &text) {
    while (!text.empty() && text.back() == '0') {
        text.pop_back();
    }
}

void DropFirstZeros(std::string &text) {
    while (!text.empty() && text.front() == '0') {
        text.erase(0, 1);
    }
}

/// |value| written out: what stands before the point and behind it.
struct WrittenOut {
    std::string whole, fraction; ///< without zeros that say nothing
    std::string mantissa;        ///< the digits alone
    int power = 0;               ///< of ten, of the first digit
};

WrittenOut WriteOut(double value, int significant) {
    const std::string text = Printed("%.*e", significant - 1, std::abs(value));
    const std::size_t mark = text.find('e');
    WrittenOut out;
    for (const char character : text.substr(0, mark)) {
        if (character != '.') {
            out.mantissa += character;
        }
    }
    out.power = std::atoi(text.c_str() + mark + 1);
    if (out.power >= 0) {
        out.whole = out.mantissa;
        while (static_cast<int>(out.whole.size()) <= out.power) {
            out.whole += '0';
        }
        out.fraction = out.whole.substr(static_cast<std::size_t>(out.power) + 1);
        out.whole.resize(static_cast<std::size_t>(out.power) + 1);
    } else {
        out.fraction = std::string(static_cast<std::size_t>(-out.power - 1), '0') + out.mantissa;
    }
    DropFirstZeros(out.whole);
    DropLastZeros(out.fraction);
    DropLastZeros(out.mantissa);
    return out;
}

bool IsPlace(char character) {
    return character == '#' || character == '0';
}

std::size_t CountPlaces(const std::string &picture) {
    std::size_t count = 0;
    for (const char character : picture) {
        count += IsPlace(character) ? 1 : 0;
    }
    return count;
}

/// Adds one to the last digit of a number of digits alone.
void CountUp(std::string &digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(0, "1");
}

std::string FilledBefore(const std::string &picture, std::string whole) {
    if (CountPlaces(picture) == 0) {
        return picture + whole;
    }
    std::size_t places = CountPlaces(picture);
    std::string text;
    for (std::size_t i = picture.size(); i-- > 0;) {
        if (!IsPlace(picture[i])) {
            text.insert(0, 1, picture[i]);
            continue;
        }
        --places;
        if (places == 0) {
            const bool forced = whole.empty() && picture[i] == '0';
            text.insert(0, forced ? "0" : whole);
        } else if (!whole.empty()) {
            text.insert(0, 1, whole.back());
            whole.pop_back();
        } else if (picture[i] == '0') {
            text.insert(0, 1, '0');
        }
    }
    return text;
}

std::string FilledBehind(const std::string &picture, const std::string &fraction) {
    std::string shown = fraction;
    DropLastZeros(shown);
    std::string text;
    std::size_t place = 0;
    for (std::size_t i = 0; i < picture.size(); ++i) {
        if (!IsPlace(picture[i])) {
            text += picture[i];
            continue;
        }
        const bool forced = picture.find('0', i) != std::string::npos;
        if (place < shown.size() || forced) {
            text += fraction[place];
        }
        ++place;
    }
    return text;
}

bool IsDigit(const std::string &text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

} // namespace

std::string NumberText(double value, int significant, bool zero_before_point) {
    if (value == 0) {
        return "0";
    }
    const std::string sign = value < 0 ? "-" : "";
    const WrittenOut out = WriteOut(value, significant);
    const auto places = static_cast<std::size_t>(significant);
    if (out.power >= significant || out.fraction.size() > places) {
        const std::string more = out.mantissa.substr(1);
        const std::string power = std::to_string(std::abs(out.power));
        return sign + out.mantissa[0] + (more.empty() ? "" : "." + more) + "E" +
               (out.power < 0 ? "-" : "+") + (power.size() == 1 ? "0" : "") + power;
    }
    const std::string whole = out.whole.empty() && zero_before_point ? "0" : out.whole;
    return sign + whole + (out.fraction.empty() ? "" : "." + out.fraction);
}

std::string Formatted(double value, int significant, std::string_view picture) {
    const std::string all(picture);
    const std::size_t point = all.find('.');
    const std::string before = all.substr(0, point);
    const std::string behind = point == std::string::npos ? "" : all.substr(point + 1);
    WrittenOut out = value == 0 ? WrittenOut{} : WriteOut(value, significant);
    const std::size_t places = CountPlaces(behind);
    const bool up = out.fraction.size() > places && out.fraction[places] >= '5';
    out.fraction.resize(places, '0');
    std::string digits = out.whole + out.fraction;
    if (up) {
        CountUp(digits);
    }
    std::string whole = digits.substr(0, digits.size() - places);
    DropFirstZeros(whole);
    const std::string fraction = digits.substr(digits.size() - places);
    return (value < 0 ? "-" : "") + FilledBefore(before, whole) +
           (point == std::string::npos ? "" : "." + FilledBehind(behind, fraction));
}

std::string Fixed(double value, int decimals) {
    std::string text = Printed("%.*f", decimals, value);
    DropLastZeros(text);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::optional<double> LeadingNumber(std::string_view text) {
    std::string compact;
    for (const char character : text) {
        if (character != ' ') {
            compact += character;
        }
    }
    std::size_t at = !compact.empty() && (compact[0] == '-' || compact[0] == '+') ? 1 : 0;
    std::size_t digits = 0;
    for (; IsDigit(compact, at); ++at) {
        ++digits;
    }
    const std::size_t point = at;
    if (at < compact.size() && compact[at] == '.') {
        for (++at; IsDigit(compact, at); ++at) {
            ++digits;
        }
    }
    if (digits == 0) {
        return 0.0;
    }
    if (at < compact.size() && (compact[at] == 'e' || compact[at] == 'E')) {
        std::size_t power = at + 1;
        if (power < compact.size() && (compact[power] == '-' || compact[power] == '+')) {
            ++power;
        }
        if (IsDigit(compact, power)) {
            for (at = power; IsDigit(compact, at);) {
                ++at;
            }
        }
    }
    std::string number = compact.substr(0, at);
    if (point < number.size() && number[point] == '.') {
        number.replace(point, 1, std::localeconv()->decimal_point);
    }
    const double value = std::strtod(number.c_str(), nullptr);
    return std::isinf(value) ? std::nullopt : std::optional(value);
}

} // namespace loftwing::naive
