#include "output/style_entry.h"

#include "base/number_text.h"

namespace loftwing {

namespace {

/// The elements that have a width of their own, in their order.
std::array<Element, kEpaisseurs> ElementsAvecEpaisseur() {
    std::array<Element, kEpaisseurs> elements{};
    int count = 0;
    for (const DrawingElement &row : DrawingElements()) {
        if (row.width_key != nullptr) {
            At(elements, count++) = row.element;
        }
    }
    return elements;
}

std::size_t Number(Element element) {
    return static_cast<std::size_t>(element);
}

/// Reads one list of boxes into a field of the elements; false after a failure, which `read` names.
template <class Texts, class ElementOf>
bool LitListe(const Texts &texts, ListeTraits liste, std::int16_t Trait::*field,
              ElementOf element_of, LectureTraits &read) {
    for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
        try {
            read.traits[element_of(i)].*field = ToInt16(LeadingNumber(At(texts, i)));
        } catch (const Failure &failure) {
            read.faute = ChampTrait{liste, i};
            read.echec = failure;
            return false;
        }
    }
    return true;
}

/// A number below 0 isn't looked for: no key types one.
std::optional<ChampTrait> PremiereFaute(const Traits &traits) {
    for (int i = 0; i < static_cast<int>(kElements); ++i) {
        if (At(traits, i).couleur > kCouleurMax) {
            return ChampTrait{ListeTraits::couleur, i};
        }
    }
    for (int i = 0; i < static_cast<int>(kElements); ++i) {
        if (At(traits, i).style > kStyleMax) {
            return ChampTrait{ListeTraits::style, i};
        }
    }
    for (int i = 0; i < static_cast<int>(kEpaisseurs); ++i) {
        const int width = traits[Number(ElementDeEpaisseur(i))].epaisseur;
        if (width > kEpaisseurMax || width < kEpaisseurMin) {
            return ChampTrait{ListeTraits::epaisseur, i};
        }
    }
    return std::nullopt;
}

} // namespace

Element ElementDeEpaisseur(int index) {
    static const std::array<Element, kEpaisseurs> elements = ElementsAvecEpaisseur();
    return At(elements, index);
}

TextesTraits TextesDe(const Traits &traits) {
    TextesTraits texts;
    for (std::size_t i = 0; i < kElements; ++i) {
        texts.couleur[i] = std::to_string(traits[i].couleur);
        texts.style[i] = std::to_string(traits[i].style);
    }
    for (int i = 0; i < static_cast<int>(kEpaisseurs); ++i) {
        At(texts.epaisseur, i) = std::to_string(traits[Number(ElementDeEpaisseur(i))].epaisseur);
    }
    return texts;
}

LectureTraits LitTraits(const TextesTraits &typed, const Traits &base) {
    LectureTraits read{base, std::nullopt, std::nullopt};
    const auto same = [](int i) { return static_cast<std::size_t>(i); };
    const auto with_width = [](int i) { return Number(ElementDeEpaisseur(i)); };
    if (LitListe(typed.couleur, ListeTraits::couleur, &Trait::couleur, same, read) &&
        LitListe(typed.style, ListeTraits::style, &Trait::style, same, read) &&
        LitListe(typed.epaisseur, ListeTraits::epaisseur, &Trait::epaisseur, with_width, read)) {
        read.faute = PremiereFaute(read.traits);
    }
    return read;
}

std::optional<Colour> CouleurTapee(const std::string &typed) {
    try {
        const int number = ToInt16(LeadingNumber(typed));
        return number < 0 || number > kCouleurMax ? std::nullopt
                                                  : std::optional(PaletteColour(number));
    } catch (const Failure &) {
        return std::nullopt; // told when it is to be taken
    }
}

std::string TexteFaute(ListeTraits liste, const LngIni &language) {
    switch (liste) {
    case ListeTraits::couleur:
        return language.LngText({"FrmLines", "20"});
    case ListeTraits::style:
        return language.LngText({"FrmLines", "21"});
    case ListeTraits::epaisseur:
        break;
    }
    return language.LngText({"FrmLines", "22"});
}

} // namespace loftwing
