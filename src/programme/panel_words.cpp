#include "programme/panel_words.h"

#include "base/number_text.h"
#include "utilities/tool_files.h"

#include <algorithm>

namespace loftwing {

namespace {

std::string Numerote(const std::string &mot, int slot) {
    return ", " + mot + " " + std::to_string(slot + 1) + ": ";
}

std::string Place(const std::string &afich, std::uint8_t depuis) {
    return Trim(afich).empty() ? "0" : std::string(Trim(afich)) + (depuis == 1 ? " <" : "");
}

} // namespace

std::string LongueurDePanneau(double mm, const std::string &Unite) {
    return TexteFondu(mm, Unite) + Unite;
}

std::string LigneNervure(const Messages &messages, const NervureFaite &nervure, int numero,
                         const std::string &Unite) {
    const PartiesRib &rib = nervure.rib;
    std::string line = DeLaNervure(messages, numero) + nervure.composants + ", " +
                       MotCorde(messages) + " : " + std::string(Trim(rib.cordeAfich)) + Unite;
    for (int slot = 0; slot < rib.NbLongeron; ++slot) {
        const Longeron &spar = At(rib.longeron, slot);
        line += Numerote(messages.Text({"Panel", "9"}), slot) +
                Place(spar.PosLongAfich, spar.RefLong) + " (" + spar.LargLongAfich + " x " +
                spar.HautLongAfich + ")";
    }
    for (int slot = 0; slot < rib.NbTrou; ++slot) {
        const Trou &hole = At(rib.trou, slot);
        line += Numerote(messages.Text({"Panel", "14"}), slot) +
                Place(hole.PosTrouAfich, hole.RefTrou) + " (" + hole.DiaTrouAfich + ")";
    }
    if (rib.vrillage != 0.0F) {
        line += ", " + messages.Text({"FrmInsText", "7"}) + " " + NumberText(rib.vrillage) + kDegre;
    }
    return line;
}

std::string MotElement(const Messages &messages, const Panneau &panneau,
                       const ElementPanneau &element) {
    switch (element.genre) {
    case GenreElement::longeron:
        return messages.Text({"Panel", "9"}) + " " + std::to_string(element.numero);
    case GenreElement::trou:
        return messages.Text({"Panel", "14"}) + " " + std::to_string(element.numero);
    case GenreElement::ba:
        return messages.Text({"Panel", "116"});
    case GenreElement::bf:
        return messages.Text({"Panel", "117"});
    case GenreElement::carre:
        return messages.Text({"Panel", "118"});
    case GenreElement::gabarit:
        break;
    }
    const bool foam =
        std::any_of(panneau.bouts.begin(), panneau.bouts.end(),
                    [](const PartiesRib &bout) { return bout.TypeGabarit == kGabaritMousse; });
    return foam ? messages.Text({"Panel", "120"}) : messages.Text({"Panel", "119"});
}

std::string LigneEnMots(const Messages &messages, const Panneau &panneau, const AvisPanneau &avis) {
    return (avis.nervure == 0 ? "" : DeLaNervure(messages, avis.nervure)) +
           (avis.element ? MotElement(messages, panneau, *avis.element) + ": " : "") + avis.texte;
}

std::string LignesDeBoite(const std::vector<std::string> &lines) {
    constexpr std::size_t kMost = 12; // more would fill the screen
    std::string text;
    for (std::size_t i = 0; i < lines.size() && i < kMost; ++i) {
        text += lines[i] + "\n";
    }
    if (lines.size() > kMost) {
        text += "... (" + std::to_string(lines.size()) + ")\n";
    }
    return text;
}

} // namespace loftwing
