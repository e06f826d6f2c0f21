#include "features/talon.h"

#include "base/number_text.h"
#include "core/stations.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace loftwing {

namespace {

std::string TexteHauteur(double mm, const std::string &Unite) {
    return FormatAffiche(DepuisMm(mm, Unite), kPictureTwoFixed);
}

double SansCoffrage(MesuresTalon mesures, double fraction) {
    return Wide(mesures.corde) * fraction - Wide(mesures.EpCoffrage);
}

/// The margin of a text, an empty one being 0, with its number.
struct Marge {
    std::string afich;
    double mm;
};

Marge LitMarge(const std::string &typed, float corde, const Saisie &saisie) {
    const std::string afich = typed.empty() ? "0" : typed;
    return {afich, ValeurPourcent(afich, corde, saisie)};
}

/// In the 32 bits of the chord, so that a length typed like the chord is never longer than it.
bool Depasse(double mm, float corde) {
    constexpr double kPlusLongQueTout = 1E30;
    return ToSingle(std::min(mm, kPlusLongQueTout)) > corde;
}

/// `mm`, or 0 where the chord has no room for it.
double Ramene(double mm, float corde) {
    return Depasse(mm, corde) ? 0.0 : mm;
}

void AlerteVrillage(const Saisie &saisie, const std::string &titre) {
    const Messages &messages = saisie.messages;
    messages.Inform(messages.Text({"FrmTalon", "4"}) + messages.Text({"FrmTalon", "2"}) + " 20°",
                    titre);
}

std::string TexteMm(double mm, const std::string &Unite) {
    return DepuisMm(mm, Unite) + Unite;
}

/// Whether a margin's text is a length, told without a box.
bool EstMarge(const std::string &text, const Saisie &saisie) {
    return text.ends_with('%') || !EstRefusee(text, saisie.Unite);
}

/// The heel with its margins in force; nothing where a text is none.
std::optional<Talon> MargesSansBoite(const RibModel &rib, const Saisie &saisie) {
    const Talon &talon = rib.talon;
    if (!EstMarge(talon.TalonBAAfich, saisie) || !EstMarge(talon.TalonBFAfich, saisie)) {
        return std::nullopt;
    }
    try {
        return AvecMarges(talon, rib.corde, saisie);
    } catch (const Failure &) {
        return std::nullopt;
    }
}

bool TropLongues(const Talon &talon, float corde) {
    return Depasse(talon.TalonBA, corde) || Depasse(talon.TalonBF, corde) ||
           Depasse(talon.TalonLong, corde);
}

/// Tells that these margins are too long for the rib's chord.
void RefuseMargesDe(const Talon &talon, const RibModel &rib, const Saisie &saisie,
                    const std::string &titre) {
    saisie.messages.Inform(saisie.messages.Text({"FrmTalon", "5"}) + " : " +
                               TexteMarges(talon, saisie.Unite) + " > " +
                               DepuisMm(rib.corde, saisie.Unite) + saisie.Unite,
                           titre);
}

/// The negative, but never a 0 with a sign.
float Oppose(float value) {
    return value == 0.0F ? 0.0F : -value;
}

void NommeVrillage(RibModel &rib, const Messages &messages) {
    if (rib.texte.TexteUtilisateur || rib.vrillage == 0.0F) {
        return;
    }
    rib.texte.InsTexte = rib.NomProfil + " " + messages.Text({"FrmInsText", "7"}) + " " +
                         NumberText(rib.vrillage) + "° " + messages.Text({"FrmTalon", "3"}) +
                         " : " + rib.cordeAfich;
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

double HauteurTalon(const Talon &talon) {
    return talon.OptTalon != 0 ? talon.TalonExtra : talon.TalonIntra;
}

double FaceTalon(const RibModel &rib, float EpRel, double station) {
    const double sheeting = Wide(EpRel);
    return rib.talon.OptTalon != 0 ? Hauteur(rib.TabExtrados, station) - sheeting
                                   : Hauteur(rib.TabIntrados, station) + sheeting;
}

Talon AvecMarges(Talon talon, float corde, const Saisie &saisie) {
    talon.TalonBA = ValeurPourcent(talon.TalonBAAfich, corde, saisie);
    talon.TalonBF = ValeurPourcent(talon.TalonBFAfich, corde, saisie);
    talon.TalonLong = talon.TalonBA + talon.TalonBF;
    return talon;
}

void OuvreTalon(RibModel &rib, const Saisie &saisie) {
    Talon talon = rib.talon;
    const MesuresTalon mesures{rib.corde, rib.EpCoffrage};
    if (rib.vrillage == 0.0F && talon.TalonIntra == 0.0) {
        talon.TalonIntraAfich = TexteTalonIntra(rib, mesures, saisie.Unite);
    }
    if (rib.vrillage == 0.0F && talon.TalonExtra == 0.0) {
        talon.TalonExtraAfich = TexteTalonExtra(rib, mesures, saisie.Unite);
    }
    rib.talon = AvecMarges(AvecHauteurs(talon, saisie), rib.corde, saisie);
}

TextesTalon TextesDuTalon(const RibModel &rib) {
    return {rib.talon.TalonIntraAfich, rib.talon.TalonBAAfich, rib.talon.TalonBFAfich,
            NumberText(Oppose(rib.vrillage)), rib.talon.TalonExtraAfich};
}

std::string TitreTalon(const RibModel &rib, const Saisie &saisie) {
    return saisie.messages.Text({"FrmTalon", "1"}) + " " + rib.cordeAfich + " " + saisie.Unite;
}

std::string TexteMarges(const Talon &talon, const std::string &Unite) {
    return TexteMm(talon.TalonLong, Unite);
}

bool MargesTropLongues(const RibModel &rib) {
    return TropLongues(rib.talon, rib.corde);
}

void RefuseMarges(const RibModel &rib, const Saisie &saisie, const std::string &titre) {
    RefuseMargesDe(rib.talon, rib, saisie, titre);
}

bool MargesEnAttente(const RibModel &rib, const Saisie &saisie) {
    if (rib.TypeGabarit != kGabaritTalon || rib.talon.TalonBA != 0 || rib.talon.TalonBF != 0) {
        return false;
    }
    const auto in_force = MargesSansBoite(rib, saisie);
    return in_force && (in_force->TalonBA != 0 || in_force->TalonBF != 0);
}

std::string TexteMargesEnAttente(const RibModel &rib, const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const Talon talon = MargesSansBoite(rib, saisie).value_or(rib.talon);
    return messages.Text({"FrmTalon", "180"}) + " " + TexteMm(talon.TalonBA, saisie.Unite) + ", " +
           TexteMm(talon.TalonBF, saisie.Unite) + ". " + messages.Text({"FrmTalon", "181"});
}

bool PrendMarges(RibModel &rib, const Saisie &saisie) {
    const Talon talon = AvecMarges(rib.talon, rib.corde, saisie);
    if (TropLongues(talon, rib.corde)) {
        RefuseMargesDe(talon, rib, saisie, TitreTalon(rib, saisie));
        return false;
    }
    rib.talon = talon;
    rib.Modifie = true;
    return true;
}

bool SuitTalon(RibModel &rib, int champ, const TextesTalon &typed, const Saisie &saisie,
               const std::string &titre) {
    Talon &talon = rib.talon;
    const float angle = ToSingle(LeadingNumber(typed[kTalonVrillage]));
    // The other margin was read when it changed; reading it again would repeat its boxes.
    if (champ == kTalonMargeBA || champ == kTalonMargeBF) {
        const bool leading = champ == kTalonMargeBA;
        const Marge marge = LitMarge(At(typed, champ), rib.corde, saisie);
        (leading ? talon.TalonBAAfich : talon.TalonBFAfich) = marge.afich;
        (leading ? talon.TalonBA : talon.TalonBF) = marge.mm;
    }
    rib.vrillage = angle;
    const bool too_large = std::abs(rib.vrillage) > kVrillageMaxi;
    if (too_large) {
        AlerteVrillage(saisie, titre);
        // Whichever sign was typed: the box then shows 20, the negative of this.
        rib.vrillage = -kVrillageMaxi;
    }
    talon.TalonBA = Ramene(talon.TalonBA, rib.corde);
    talon.TalonBF = Ramene(talon.TalonBF, rib.corde);
    talon.TalonLong = talon.TalonBA + talon.TalonBF;
    if (MargesTropLongues(rib)) {
        RefuseMarges(rib, saisie, titre);
    }
    return too_large;
}

bool ValideTalon(RibModel &rib, const TextesTalon &typed, const Saisie &saisie,
                 const std::string &titre) {
    rib.Modifie = true;
    Talon talon = rib.talon;
    talon.TalonIntraAfich = typed[kTalonIntra];
    talon.TalonBAAfich = typed[kTalonMargeBA];
    talon.TalonBFAfich = typed[kTalonMargeBF];
    talon.TalonExtraAfich = typed[kTalonExtra];
    const float angle = ToSingle(LeadingNumber(typed[kTalonVrillage]));
    rib.talon = AvecMarges(AvecHauteurs(talon, saisie), rib.corde, saisie);
    if (MargesTropLongues(rib)) {
        RefuseMarges(rib, saisie, titre);
        return false;
    }
    rib.TypeGabarit = kGabaritTalon;
    rib.vrillage = Oppose(angle);
    NommeVrillage(rib, saisie.messages);
    return true;
}

} // namespace loftwing
