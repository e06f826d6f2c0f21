#include "support/naive_panel_text.h"

#include "support/naive_panel.h"
#include "support/naive_rib.h"

#include <array>
#include <charconv>
#include <cmath>

namespace loftwing::naive {

namespace {

std::string Written(double value, std::chars_format form, int digits) {
    std::array<char, 400> text{};
    return {text.data(),
            std::to_chars(text.data(), text.data() + text.size(), value, form, digits).ptr};
}

/// Digits of a positive value, of which the last `behind` stand behind the point.
std::string DigitsOf(double value, int digits, int behind) {
    const std::string text = Written(value, std::chars_format::scientific, digits - 1);
    std::string all = text.substr(0, 1) + text.substr(2, static_cast<std::size_t>(digits) - 1);
    const int exponent = std::stoi(text.substr(text.find('e') + 1));
    // The point stands behind exponent + 1 digits.
    for (int i = exponent; i < 0; ++i) {
        all = "0" + all;
    }
    const int whole = exponent < 0 ? 1 : exponent + 1;
    all.resize(static_cast<std::size_t>(whole + behind), '0');
    return all;
}

} // namespace

double PanelNumber(const std::string &text) {
    std::string dense;
    for (const char letter : text) {
        if (letter != ' ') {
            dense += letter;
        }
    }
    double value = 0;
    std::from_chars(dense.data(), dense.data() + dense.size(), value);
    return value;
}

double Significant(double value, int digits) {
    return PanelNumber(Written(value, std::chars_format::general, digits));
}

std::string Decimals(double value, int digits, int places) {
    if (value == 0) {
        return "0." + std::string(static_cast<std::size_t>(places), '0');
    }
    const std::string all = DigitsOf(std::abs(value), digits, places + 1);
    std::string kept =
        std::to_string(std::stoll(all.substr(0, all.size() - 1)) + (all.back() >= '5' ? 1 : 0));
    while (kept.size() <= static_cast<std::size_t>(places)) {
        kept = "0" + kept;
    }
    kept.insert(kept.size() - static_cast<std::size_t>(places), ".");
    return (value < 0 ? "-" : "") + kept;
}

std::string Blended(double mm, bool inches) {
    std::string text = Written(inches ? mm / 25.4 : mm, std::chars_format::fixed, inches ? 5 : 3);
    while (text.back() == '0') {
        text.pop_back();
    }
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string TitleChord(double mm, bool inches, bool narrow) {
    if (inches) {
        return InInches(narrow ? Significant(mm, 7) : mm);
    }
    const std::string text = Decimals(mm, narrow ? 7 : 15, 2);
    const std::size_t whole = text.size() - 3;
    const std::size_t head = whole > 3 ? whole - 3 : 0;
    return text.substr(0, head) + " " + text.substr(head);
}

std::string Shortest(float value) {
    for (int digits = 1; digits <= 9; ++digits) {
        const std::string text =
            Written(static_cast<double>(value), std::chars_format::general, digits);
        if (static_cast<float>(PanelNumber(text)) == value) {
            return text; // angles here are never so small that they get an exponent
        }
    }
    return "";
}

std::string SevenDigits(float value) {
    const double wide = static_cast<double>(value);
    const std::string text = Written(wide, std::chars_format::general, 7);
    const std::size_t point = text.find('.');
    const bool small = wide != 0 && std::abs(wide) < 1;
    if (!small || (text.find('e') == std::string::npos && text.size() - point <= 8)) {
        return text;
    }
    // Zeros behind the point and digits together have room for seven.
    std::string apart = Written(wide, std::chars_format::scientific, 6);
    const std::size_t mark = apart.find('e');
    std::string digits = apart.substr(0, mark);
    while (digits.back() == '0' || digits.back() == '.') {
        digits.pop_back();
    }
    return digits + "E" + apart.substr(mark + 1);
}

double PanelLength(const std::string &text, bool inches) {
    if (!inches || text == "0" || text.empty()) {
        return PanelNumber(text);
    }
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos) {
        return Significant(PanelNumber(text) * 25.4, 15);
    }
    const std::size_t point = text.find('.');
    const bool mixed = point != std::string::npos && point < slash;
    const double whole = mixed ? PanelNumber(text.substr(0, point)) : 0;
    // A fraction without whole inches has no point in front of it.
    const double above =
        PanelNumber(mixed ? text.substr(point + 1, slash - point - 1) : text.substr(0, slash));
    return Significant((whole + above / PanelNumber(text.substr(slash + 1))) * 25.4, 15);
}

} // namespace loftwing::naive
