#include "core/stations.h"

#include "base/number_text.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

double Pi() {
    static const double pi = 4.0 * std::atan(1.0);
    return pi;
}

double EnRadians(double degrees) {
    return degrees * Pi() / 180.0;
}

float StationDepuisBF(double distance, float corde) {
    return ToSingle(std::abs(Quotient(kLastStation * distance, Wide(corde))));
}

float StationDepuisBA(double distance, float corde) {
    return ToSingle(std::abs(Quotient(kLastStation * distance, Wide(corde)) -
                             static_cast<double>(kLastStation)));
}

double Hauteur(const TableStation &table, double station) {
    return At(table, ToInt(station));
}

double HauteurEntre(const TableStation &table, double station) {
    const double at = std::clamp(station, 0.0, static_cast<double>(kLastStation));
    const auto low = static_cast<std::size_t>(std::min(std::floor(at), kLastStation - 1.0));
    const double part = at - static_cast<double>(low);
    return table[low] * (1 - part) + table[low + 1] * part;
}

double ValeurPourcent(const std::string &text, float corde, const Saisie &saisie) {
    if (text.ends_with('%')) {
        return LeadingNumber(text.substr(0, text.size() - 1)) * Wide(corde) / 100.0;
    }
    return NombreMm(text, saisie);
}

double ValeurPourcentBF(const std::string &text, float corde, const Saisie &saisie) {
    return Wide(corde) - ValeurPourcent(text, corde, saisie);
}

float PosDepuisBA(const std::string &text, float corde, const Saisie &saisie) {
    return ToSingle(ValeurPourcent(text, corde, saisie));
}

float PosDepuisBF(const std::string &text, float corde, const Saisie &saisie) {
    return ToSingle(ValeurPourcentBF(text, corde, saisie));
}

} // namespace loftwing
