#include "output/svg_text.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "output/line_look.h"

#include <string_view>

namespace loftwing {

std::string SvgNumber(double value, int decimals) {
    std::string text;
    AppendFixed(text, value, decimals);
    return text;
}

std::string SvgColour(Colour colour) {
    constexpr const char *kDigits = "0123456789abcdef";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += kDigits[(colour >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

std::string SvgAttribute(const std::string &name, const std::string &value) {
    return " " + name + "=\"" + value + "\"";
}

std::string SvgStroke(const Pen &pen) {
    constexpr int kDecimals = 4;
    const auto width = static_cast<std::size_t>(pen.width - 1);
    std::string text = SvgAttribute("fill", "none") +
                       SvgAttribute("stroke", SvgColour(pen.colour)) +
                       SvgAttribute("stroke-width", SvgNumber(kPenWidthsMm[width], kDecimals));
    std::string dashes;
    for (const double mm : DashesMm(pen.style)) {
        dashes += (dashes.empty() ? "" : " ") + SvgNumber(mm, kDecimals);
    }
    return dashes.empty() ? text : text + SvgAttribute("stroke-dasharray", dashes);
}

std::string SvgText(const std::string &text) {
    std::string escaped;
    for (const char character : ToUtf8(text)) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += static_cast<unsigned char>(character) < 0x20U ? ' ' : character;
        }
    }
    return escaped;
}

std::string SvgTexte(const SvgLettres &lettres) {
    return "<text" + SvgAttribute("x", lettres.x) + SvgAttribute("y", lettres.y) +
           (lettres.appui.empty() ? "" : SvgAttribute("text-anchor", lettres.appui)) +
           SvgAttribute("font-family", kSvgFaces) + SvgAttribute("font-size", lettres.taille) +
           SvgAttribute("fill", SvgColour(lettres.couleur)) +
           SvgAttribute("xml:space", "preserve") + ">" + SvgText(lettres.texte) + "</text>\n";
}

std::string SvgGroupe(const std::string &nom, const std::string &elements) {
    return "<g" + SvgAttribute("id", nom) + ">\n" + elements + "</g>\n";
}

std::string SvgFichier(const SvgPage &page, const std::string &elements) {
    constexpr std::string_view kFin = "</svg>\n";
    std::string fichier =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
        SvgAttribute("width", page.largeur + "mm") + SvgAttribute("height", page.hauteur + "mm") +
        SvgAttribute("viewBox", page.coin + " " + page.largeur + " " + page.hauteur) +
        ">\n<title>" + SvgText(page.titre) + "</title>\n";
    fichier.reserve(fichier.size() + elements.size() + kFin.size());
    fichier += elements;
    fichier += kFin;
    return fichier;
}

} // namespace loftwing
