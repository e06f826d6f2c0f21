#include "features/inserted_text.h"

#include "base/number_text.h"
#include "base/text_encoding.h"

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

constexpr std::array<float, 11> kTaillesCourantes = {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20};

/// What stands before the chord of a label, with or without the words on the washout.
std::string Debut(const RibModel &rib, bool washout, const Messages &messages) {
    std::string text = rib.NomProfil + " ";
    if (washout) {
        text += messages.Text({"FrmInsText", "7"}) + " " + NumberText(rib.vrillage) + "° ";
    }
    return text + messages.Text({"FrmInsText", "6"});
}

/// The one of them that the rib has, which tells a label from a text of the user.
std::string DebutEtiquette(const RibModel &rib, const Messages &messages) {
    return Debut(rib, rib.TypeGabarit != kSansGabarit && rib.vrillage != 0.0F, messages);
}

/// `text` up to `colon`, less the one character (the label's blank) in front of it.
std::string DebutTexte(const std::string &text, std::size_t colon) {
    const std::string before = text.substr(0, colon);
    const std::size_t length = CharacterCount(before);
    return FirstCharacters(before, length > 0 ? length - 1 : 0);
}

std::string SurUneLigne(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return text;
}

} // namespace

std::string GeneratedLabel(const RibModel &rib, const Messages &messages) {
    return DebutEtiquette(rib, messages) + " : " + rib.cordeAfich;
}

bool EstEtiquette(const RibModel &rib, const Messages &messages) {
    const std::string &text = rib.texte.InsTexte;
    const std::size_t colon = text.find(':');
    return text.empty() ||
           (colon != std::string::npos && DebutTexte(text, colon) == DebutEtiquette(rib, messages));
}

bool EtiquetteDuProfil(const RibModel &rib, const Messages &messages) {
    const std::string &text = rib.texte.InsTexte;
    // A washout that was set after the text was placed isn't named in it.
    return text.starts_with(Debut(rib, false, messages) + " : ") ||
           text.starts_with(Debut(rib, true, messages) + " : ");
}

void RepriseTexte(RibModel &rib, bool etiquette, const Messages &messages) {
    if (etiquette) {
        rib.texte.InsTexte = GeneratedLabel(rib, messages);
    }
    rib.texte.TexteUtilisateur = !etiquette && !rib.texte.InsTexte.empty();
}

void RegenereTexte(RibModel &rib, const Messages &messages) {
    if (!rib.texte.TexteUtilisateur) {
        rib.texte.InsTexte = GeneratedLabel(rib, messages);
    }
}

void ActualiseTexte(RibModel &rib, const Messages &messages) {
    const std::string &text = rib.texte.InsTexte;
    if (!text.empty() && text.find(':') == std::string::npos) {
        return;
    }
    rib.texte.TexteUtilisateur = !EstEtiquette(rib, messages);
    RegenereTexte(rib, messages);
}

TexteTape TexteAffiche(const RibModel &rib, const Messages &messages) {
    const TexteInsere &texte = rib.texte;
    return {texte.TexteUtilisateur ? texte.InsTexte : GeneratedLabel(rib, messages),
            texte.InsTextXAfich, texte.InsTextYAfich};
}

void PrendTexteInsere(RibModel &rib, const TexteTape &typed, const Saisie &saisie) {
    TexteInsere taken = rib.texte;
    StockeLongueur(typed.x, saisie, taken.InsTextXAfich, taken.InsTextX);
    StockeLongueur(typed.y, saisie, taken.InsTextYAfich, taken.InsTextY);
    taken.InsTexte = SurUneLigne(typed.texte);
    rib.texte = taken;
    ActualiseTexte(rib, saisie.messages);
    rib.texte.TexteUtilisateur = true;
    rib.Modifie = true;
}

std::vector<std::string> TaillesProposees(float taille) {
    std::vector<float> sizes(kTaillesCourantes.begin(), kTaillesCourantes.end());
    const auto place = std::lower_bound(sizes.begin(), sizes.end(), taille);
    if (place == sizes.end() || *place != taille) {
        sizes.insert(place, taille);
    }
    std::vector<std::string> entries;
    entries.reserve(sizes.size());
    for (const float size : sizes) {
        entries.push_back(NumberText(size));
    }
    return entries;
}

float TailleChoisie(const std::string &entry) {
    return ToSingle(LeadingNumber(entry));
}

} // namespace loftwing
