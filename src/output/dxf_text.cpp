#include "output/dxf_text.h"

#include "base/number_text.h"
#include "base/picture.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace loftwing {

namespace {

constexpr std::string_view kFinDeLigne = "\r\n";
constexpr Picture kPictureReal("##0.0#####");

} // namespace

void DxfText::Code(int code) {
    std::array<char, 16> line{};
    char *end = std::to_chars(line.data(), line.data() + line.size(), code).ptr;
    end = std::copy(kFinDeLigne.begin(), kFinDeLigne.end(), end);
    out_.append(line.data(), static_cast<std::size_t>(end - line.data()));
}

void DxfText::Texte(int code, std::string_view text) {
    Code(code);
    out_ += text;
    out_ += kFinDeLigne;
}

void DxfText::Entier(int code, int value) {
    Code(code);
    AppendWhole(out_, value);
    out_ += kFinDeLigne;
}

void DxfText::Reel(int code, double value) {
    Code(code);
    AppendFormat(out_, value, kPictureReal);
    out_ += kFinDeLigne;
}

std::string ReelDxf(double value) {
    std::string text;
    AppendFormat(text, value, kPictureReal);
    return text;
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

void DxfText::Items(std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) {
        out_ += part;
    }
}

void DxfText::Sommet(double x, double y) {
    out_ += "10\r\n";
    AppendFormat(out_, x, kPictureReal);
    out_ += "\r\n20\r\n";
    AppendFormat(out_, y, kPictureReal);
    out_ += "\r\n30\r\n0.0\r\n";
}

} // namespace loftwing
