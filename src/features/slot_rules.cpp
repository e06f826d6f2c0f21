#include "features/slot_rules.h"

#include "core/stations.h"

namespace loftwing {

float PlaceDepuis(const std::string &afich, std::uint8_t ref, float corde, const Saisie &saisie) {
    return ref != 0 ? PosDepuisBF(afich, corde, saisie) : PosDepuisBA(afich, corde, saisie);
}

bool PlaceAdmise(const std::string &afich, std::uint8_t ref, float mm, float corde) {
    if (ref != 0 && afich.ends_with('%')) {
        return static_cast<double>(corde) - static_cast<double>(mm) <= static_cast<double>(corde);
    }
    return mm >= 0.0F && mm <= corde;
}

bool AvanceTravail(std::uint8_t &count) {
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

} // namespace loftwing
