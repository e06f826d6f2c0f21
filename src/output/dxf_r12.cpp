#include "output/dxf_r12.h"

#include "base/text_encoding.h"

#include <array>
#include <cstdio>
#include <vector>

namespace loftwing {

namespace {

/// R12 texts are in the code page that the header names: a degree sign has its own code, Latin
/// letters are one byte, the rest is told by its number.
std::string EnPageDeCode(const std::string &text) {
    std::string texte;
    for (const char32_t code : CodePoints(text)) {
        if (code < 0x80) {
            texte += code < ' ' ? ' ' : static_cast<char>(code);
        } else if (code == 0xB0) {
            texte += "%%d";
        } else if (code >= 0xA0 && code <= 0xFF) {
            texte += static_cast<char>(code);
        } else if (code <= 0xFFFF) {
            std::array<char, 8> number{};
            std::snprintf(number.data(), number.size(), "\\U+%04lX",
                          static_cast<unsigned long>(code));
            texte += number.data();
        } else {
            texte += '?';
        }
    }
    return texte;
}

void Entete(DxfText &dxf, const CadreR12 &cadre) {
    const bool inches = DiviseurDxf(cadre.Unite) != 1.0;
    const EtendueDxf &etendue = cadre.etendue;
    constexpr int kPouces = 1;
    constexpr int kMillimetres = 4;
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "HEADER");
    dxf.Texte(9, "$ACADVER");
    dxf.Texte(1, "AC1009");
    dxf.Texte(9, "$DWGCODEPAGE");
    dxf.Texte(3, "ANSI_1252");
    dxf.Texte(9, "$INSUNITS");
    dxf.Entier(70, inches ? kPouces : kMillimetres);
    dxf.Texte(9, "$MEASUREMENT");
    dxf.Entier(70, inches ? 0 : 1);
    const bool empty = etendue.bas.x > etendue.haut.x;
    dxf.Texte(9, "$EXTMIN");
    dxf.Point(10, empty ? 0.0 : etendue.bas.x, empty ? 0.0 : etendue.bas.y);
    dxf.Reel(30, 0.0);
    dxf.Texte(9, "$EXTMAX");
    dxf.Point(10, empty ? 0.0 : etendue.haut.x, empty ? 0.0 : etendue.haut.y);
    dxf.Reel(30, 0.0);
    if (cadre.limites) {
        dxf.Texte(9, "$LIMMIN");
        dxf.Point(10, cadre.limites_bas.x, cadre.limites_bas.y);
        dxf.Texte(9, "$LIMMAX");
        dxf.Point(10, cadre.limites->x, cadre.limites->y);
    }
    dxf.Texte(0, "ENDSEC");
}

void LineType(DxfText &dxf, std::string_view name, std::string_view description,
              const std::vector<double> &dashes, double scale) {
    dxf.Texte(0, "LTYPE");
    dxf.Texte(2, name);
    dxf.Entier(70, 0);
    dxf.Trait(description, dashes, scale);
}

void OuvreTable(DxfText &dxf, std::string_view name, int records) {
    dxf.Texte(0, "TABLE");
    dxf.Texte(2, name);
    dxf.Entier(70, records);
}

void Tables(DxfText &dxf, const CadreR12 &cadre) {
    const double scale = DiviseurDxf(cadre.Unite);
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "TABLES");
    OuvreTable(dxf, "LTYPE", 2);
    LineType(dxf, kTraitPlein, "Solid line", {}, scale);
    LineType(dxf, kTraitAxe, "Center ____ _ ____ _ ____", {31.75, -6.35, 6.35, -6.35}, scale);
    dxf.Texte(0, "ENDTAB");
    OuvreTable(dxf, "LAYER", static_cast<int>(cadre.calques.size()));
    for (const CalqueR12 &layer : cadre.calques) {
        dxf.Texte(0, "LAYER");
        dxf.Texte(2, layer.nom);
        dxf.Entier(70, 0);
        dxf.Entier(62, layer.couleur);
        dxf.Texte(6, layer.trait);
    }
    dxf.Texte(0, "ENDTAB");
    dxf.Texte(0, "ENDSEC");
}

} // namespace

std::string FichierR12(const CadreR12 &cadre, const std::function<void(DxfText &)> &entites) {
    constexpr std::size_t kOctetsAutour = 2048;
    constexpr std::size_t kOctetsParLigne = 112;
    std::string out;
    out.reserve(kOctetsAutour + kOctetsParLigne * cadre.lignes);
    DxfText dxf(out);
    Entete(dxf, cadre);
    Tables(dxf, cadre);
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "BLOCKS");
    dxf.Texte(0, "ENDSEC");
    dxf.Texte(0, "SECTION");
    dxf.Texte(2, "ENTITIES");
    entites(dxf);
    dxf.Texte(0, "ENDSEC");
    dxf.Texte(0, "EOF");
    return out;
}

// A file in inches has two more decimals.
EchelleR12::EchelleR12(const std::string &Unite)
    : diviseur_(DiviseurDxf(Unite)), image_(diviseur_ == 1.0 ? "##0.0#####" : "##0.0#######") {}

std::string EchelleR12::Ecrit(double mm) const {
    std::string text;
    AppendFormat(text, Longueur(mm), image_);
    return text == "-0.0" ? "0.0" : text;
}

void PointR12(DxfText &dxf, int code, const PointEcrit &point) {
    constexpr int kNextAxis = 10;
    dxf.Texte(code, point.x);
    dxf.Texte(code + kNextAxis, point.y);
    dxf.Texte(code + 2 * kNextAxis, "0.0");
}

void LigneR12(DxfText &dxf, std::string_view calque, const PointEcrit &de, const PointEcrit &a) {
    if (de == a) {
        return;
    }
    dxf.Items({"0\r\nLINE\r\n8\r\n", calque, "\r\n10\r\n", de.x, "\r\n20\r\n", de.y,
               "\r\n30\r\n0.0\r\n11\r\n", a.x, "\r\n21\r\n", a.y, "\r\n31\r\n0.0\r\n"});
}

void PolyligneR12(DxfText &dxf, std::string_view calque, const std::vector<PointEcrit> &points,
                  bool fermee) {
    dxf.Texte(0, "POLYLINE");
    dxf.Texte(8, calque);
    dxf.Entier(66, 1); // vertices follow
    PointR12(dxf, 10, {"0.0", "0.0"});
    dxf.Entier(70, fermee ? 1 : 0);
    for (const PointEcrit &point : points) {
        dxf.Items({"0\r\nVERTEX\r\n8\r\n", calque, "\r\n10\r\n", point.x, "\r\n20\r\n", point.y,
                   "\r\n30\r\n0.0\r\n"});
    }
    dxf.Texte(0, "SEQEND");
    dxf.Texte(8, calque);
}

void TexteR12(DxfText &dxf, std::string_view calque, const TexteDxf &texte) {
    dxf.Texte(0, "TEXT");
    dxf.Texte(8, calque);
    dxf.Point(10, texte.place.x, texte.place.y);
    dxf.Reel(30, 0.0);
    dxf.Reel(40, texte.hauteur);
    dxf.Texte(1, EnPageDeCode(texte.mots));
    if (texte.genre != AppuiDxf::gauche) {
        dxf.Entier(72, static_cast<int>(texte.genre));
        dxf.Point(11, texte.appui.x, texte.appui.y);
        dxf.Reel(31, 0.0);
    }
}

} // namespace loftwing
