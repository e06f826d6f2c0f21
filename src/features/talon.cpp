#include "features/talon.h"

#include "base/number_text.h"
#include "core/stations.h"

namespace loftwing {

namespace {

std::string TexteHauteur(double mm, const std::string &Unite) {
    return FormatAffiche(DepuisMm(mm, Unite), kPictureTwoFixed);
}

double SansCoffrage(MesuresTalon mesures, double fraction) {
    return static_cast<double>(mesures.corde) * fraction - static_cast<double>(mesures.EpCoffrage);
}

} // namespace

std::string TexteTalonIntra(const RibModel &rib, MesuresTalon mesures, const std::string &Unite) {
    return TexteHauteur(SansCoffrage(mesures, -rib.IntradosMini), Unite);
}

std::string TexteTalonExtra(const RibModel &rib, MesuresTalon mesures, const std::string &Unite) {
    return TexteHauteur(SansCoffrage(mesures, rib.ExtradosMaxi), Unite);
}

Talon AvecHauteurs(Talon talon, const Saisie &saisie) {
    talon.TalonIntra = NombreMm(talon.TalonIntraAfich, saisie);
    talon.TalonExtra = -NombreMm(talon.TalonExtraAfich, saisie);
    return talon;
}

Talon TalonPour(const RibModel &rib, MesuresTalon mesures, const Saisie &saisie) {
    Talon talon = rib.talon;
    if (rib.vrillage == 0.0F) {
        talon.TalonIntraAfich = TexteTalonIntra(rib, mesures, saisie.Unite);
        talon.TalonExtraAfich = TexteTalonExtra(rib, mesures, saisie.Unite);
    }
    return AvecHauteurs(talon, saisie);
}

Talon AvecMarges(Talon talon, float corde, const Saisie &saisie) {
    talon.TalonBA = ValeurPourcent(talon.TalonBAAfich, corde, saisie);
    talon.TalonBF = ValeurPourcent(talon.TalonBFAfich, corde, saisie);
    talon.TalonLong = talon.TalonBA + talon.TalonBF;
    return talon;
}

} // namespace loftwing
