#include "core/units.h"

#include "base/number_text.h"

#include <cmath>
#include <optional>

namespace loftwing {

namespace {

constexpr double kMmPerInch = 25.4;

/// What VersMm finds in a text in inches. Positions count from 1, 0 is absent.
struct InchParts {
    std::size_t point;
    std::size_t slash;
    std::string whole;
    std::string numerator;
    std::string denominator;
};

std::size_t PositionFrom1(const std::string &text, char character) {
    const std::size_t at = text.find(character);
    return at == std::string::npos ? 0 : at + 1;
}

InchParts Split(const std::string &text) {
    InchParts parts{PositionFrom1(text, '.'), PositionFrom1(text, '/'), {}, {}, {}};
    if (parts.point > 1) {
        parts.whole = text.substr(0, parts.point - 1);
    }
    if (parts.point < text.size() && parts.point < parts.slash) {
        // Reaches one character past the numerator; the slash does the conversion no harm.
        parts.numerator = text.substr(parts.point, parts.slash - parts.point);
    }
    parts.denominator = text.substr(parts.slash);
    return parts;
}

std::string BareText(double value) {
    return NumberText(value, ZeroBeforePoint::no);
}

std::string InchesToMm(std::string text) {
    if (text.empty()) {
        return text;
    }
    const InchParts parts = Split(text);
    if (parts.slash == 0) {
        if (text.back() == '.') {
            text.pop_back();
        }
        text = BareText(Finite(LeadingNumber(text) * kMmPerInch));
    } else if (!parts.denominator.empty()) {
        const double fraction =
            Quotient(LeadingNumber(parts.numerator), LeadingNumber(parts.denominator));
        text = BareText(Finite((LeadingNumber(parts.whole) + fraction) * kMmPerInch));
    }
    return text.starts_with('.') ? '0' + text : text;
}

std::string ThreeDecimals(double value) {
    return std::string(TrimLeft(Format(value, kPictureThreeDecimals)));
}

/// `text`, a number in inches, with its decimals as a fraction when 64ths give them exactly; empty
/// otherwise.
std::string AsFraction(const std::string &text) {
    const std::size_t point = text.find('.');
    if (point == std::string::npos) {
        return {};
    }
    constexpr int kLastPower = 6; // 2, 4, 8, ... 64
    double numerator = LeadingNumber(text.substr(point));
    for (int power = 1; power <= kLastPower; ++power) {
        numerator *= 2.0;
        if (numerator == std::floor(numerator)) {
            const std::string fraction =
                text.substr(0, point + 1) + BareText(numerator) + '/' + std::to_string(1 << power);
            return fraction.starts_with('.') ? fraction.substr(1) : fraction;
        }
    }
    return {};
}

std::string MmToInches(const std::string &text) {
    if (text.empty()) {
        return text;
    }
    if (text.find('.') == text.size() - 1) {
        return ThreeDecimals(LeadingNumber(text.substr(0, text.size() - 1)) / kMmPerInch);
    }
    const std::string inches = BareText(LeadingNumber(text) / kMmPerInch);
    const std::string fraction = AsFraction(inches);
    return fraction.empty() ? ThreeDecimals(LeadingNumber(inches)) : fraction;
}

/// The number of a text in mm, nothing for one that gives none. Tells nobody.
std::optional<float> Lue(const std::string &text, const std::string &Unite) {
    if (EstRefusee(text, Unite)) {
        return std::nullopt;
    }
    try {
        const bool inches = Unite == kUniteIn && text != "0";
        return ToSingle(LeadingNumber(inches ? InchesToMm(text) : text));
    } catch (const Failure &) {
        return std::nullopt;
    }
}

} // namespace

bool EstRefusee(const std::string &text, const std::string &Unite) {
    return Unite == kUniteIn && (text.find("./") != std::string::npos || text.starts_with('/'));
}

std::string VersMm(const std::string &text, const Saisie &saisie) {
    if (text == "0" || saisie.Unite != kUniteIn) {
        return text;
    }
    if (EstRefusee(text, saisie.Unite)) {
        saisie.messages.Inform(saisie.messages.Text({"Message", "20"}) + "\nxx.yy/zz ou xx.yy",
                               "Enter error");
        return {};
    }
    return InchesToMm(text);
}

std::string DepuisMm(const std::string &text, const std::string &Unite) {
    if (text == "0" || Unite != kUniteIn) {
        return text;
    }
    std::string shown = MmToInches(text);
    if (shown.starts_with('.')) {
        shown.insert(0, 1, '0');
    }
    if (!shown.empty() && shown.find('.') == shown.size() - 1) {
        shown.pop_back();
    }
    return shown;
}

std::string DepuisMm(double mm, const std::string &Unite) {
    return DepuisMm(NumberText(mm), Unite);
}

std::string DepuisMm(float mm, const std::string &Unite) {
    return DepuisMm(NumberText(mm), Unite);
}

double NombreMm(const std::string &text, const Saisie &saisie) {
    return LeadingNumber(VersMm(text, saisie));
}

void StockeLongueur(const std::string &typed, const Saisie &saisie, std::string &afich,
                    float &number) {
    afich = typed;
    number = ToSingle(NombreMm(typed, saisie));
}

std::string TexteEnVigueur(const std::string &afich, float mm, const std::string &Unite) {
    if (Lue(afich, Unite) == mm) {
        return afich;
    }
    const std::string shown = DepuisMm(mm, Unite);
    // A chord from a title is shown with fewer digits than it has; its text wasn't refused.
    return Trim(afich) == shown ? afich : shown;
}

std::string LongueurCalculee(double mm, const std::string &Unite) {
    return Unite == kUniteIn ? DepuisMm(mm, Unite) : Format(mm, kPictureTwoFixed);
}

std::string FormatAffiche(const std::string &shown, std::string_view picture) {
    const bool fraction = shown.find('/') != std::string::npos;
    return shown.empty() || fraction ? shown : Format(LeadingNumber(shown), picture);
}

std::string_view TouchesSelonUnite(const std::string &Unite, std::string_view mm,
                                   std::string_view in) {
    return Unite == kUniteIn ? in : mm;
}

} // namespace loftwing
