#include "output/dxf_text.h"

#include "base/number_text.h"

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

void DxfText::Point(int code, double x, double y) {
    constexpr int kNextAxis = 10;
    Reel(code, x);
    Reel(code + kNextAxis, y);
}

} // namespace loftwing
