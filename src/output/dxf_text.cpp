#include "output/dxf_text.h"

#include "base/number_text.h"

#include <cmath>

namespace loftwing {

namespace {

constexpr std::string_view kPictureReal = "##0.0#####";

} // namespace

void DxfText::Texte(int code, std::string_view text) {
    out_ += std::to_string(code);
    out_ += "\r\n";
    out_ += text;
    out_ += "\r\n";
}

void DxfText::Entier(int code, int value) {
    Texte(code, std::to_string(value));
}

void DxfText::Reel(int code, double value) {
    Texte(code, Format(value, kPictureReal));
}

void DxfText::Trait(std::string_view description, const std::vector<double> &dashes,
                    double diviseur) {
    constexpr int kAlignement = 65; // the one that there is
    double length = 0;
    for (const double dash : dashes) {
        length += std::abs(dash) / diviseur;
    }
    Texte(3, description);
    Entier(72, kAlignement);
    Entier(73, static_cast<int>(dashes.size()));
    Reel(40, length);
    for (const double dash : dashes) {
        Reel(49, dash / diviseur);
    }
}

void DxfText::Point(int code, double x, double y) {
    constexpr int kNextAxis = 10;
    Reel(code, x);
    Reel(code + kNextAxis, y);
}

} // namespace loftwing
