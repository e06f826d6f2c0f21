#include "features/slot_rules.h"

#include "core/stations.h"

namespace loftwing {

float PlaceDepuis(const std::string &afich, std::uint8_t ref, float corde, const Saisie &saisie) {
    return ref != 0 ? PosDepuisBF(afich, corde, saisie) : PosDepuisBA(afich, corde, saisie);
}

std::optional<Regle> PlaceRefusee(const std::string &afich, std::uint8_t ref, float mm,
                                  float corde) {
    if (ref != 0 && afich.ends_with('%')) {
        // What the percentage takes of the chord is what counts: with 100 % the entry stands at the
        // leading edge and passes. No key types less than 0 %, so nothing else is asked.
        return Wide(corde) - Wide(mm) > Wide(corde) ? std::optional(Regle::devant_ba)
                                                    : std::nullopt;
    }
    if (mm < 0.0F) {
        return Regle::devant_ba;
    }
    return mm > corde ? std::optional(Regle::derriere_bf) : std::nullopt;
}

bool AvanceTravail(std::uint8_t &count) {
    // The window has twelve numbers. That the next entry overwrites the twelfth is the ceiling; the
    // slot behind it is there for the reader of rib components files alone.
    if (count + 1 >= kNumeros) {
        count = kNumeros - 1;
        return false;
    }
    ++count;
    return true;
}

std::string TitreAvecCorde(const std::string &titre, const RibModel &rib,
                           const std::string &Unite) {
    return titre + " " + rib.cordeAfich + " " + Unite;
}

std::string TexteValeur(const std::string &words, const std::string &cadre,
                        const std::string &valeur) {
    return words + " " + cadre + " = " + valeur;
}

std::string TexteRemarques(const std::string &nom, int slot, const std::string &words,
                           const std::vector<std::string> &remarques) {
    if (remarques.empty()) {
        return {};
    }
    std::string text = nom + " " + std::to_string(slot + 1) + " " + words;
    for (const std::string &remarque : remarques) {
        text += "\n" + remarque;
    }
    return text;
}

} // namespace loftwing
