#include "features/inserted_text.h"

#include "base/number_text.h"
#include "base/text_encoding.h"

namespace loftwing {

namespace {

/// What stands before the chord, and tells a label from a text of the user.
std::string DebutEtiquette(const RibModel &rib, const Messages &messages) {
    const bool washout = rib.TypeGabarit != kSansGabarit && rib.vrillage != 0.0F;
    std::string text = rib.NomProfil + " ";
    if (washout) {
        text += messages.Text({"FrmInsText", "7"}) + " " + NumberText(rib.vrillage) + "° ";
    }
    return text + messages.Text({"FrmInsText", "6"});
}

/// `text` up to `colon`, less the one character (the label's blank) in front of it.
std::string DebutTexte(const std::string &text, std::size_t colon) {
    const std::string before = text.substr(0, colon);
    const std::size_t length = CharacterCount(before);
    return FirstCharacters(before, length > 0 ? length - 1 : 0);
}

} // namespace

std::string GeneratedLabel(const RibModel &rib, const Messages &messages) {
    return DebutEtiquette(rib, messages) + " : " + rib.cordeAfich;
}

void RegenereTexte(RibModel &rib, const Messages &messages) {
    if (!rib.texte.TexteUtilisateur) {
        rib.texte.InsTexte = GeneratedLabel(rib, messages);
    }
}

void ActualiseTexte(RibModel &rib, const Messages &messages) {
    const std::string &text = rib.texte.InsTexte;
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos && !text.empty()) {
        return;
    }
    rib.texte.TexteUtilisateur =
        !text.empty() && DebutTexte(text, colon) != DebutEtiquette(rib, messages);
    RegenereTexte(rib, messages);
}

} // namespace loftwing
