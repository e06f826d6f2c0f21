#include "utilities/angle.h"

#include "base/number_text.h"
#include "core/stations.h"
#include "utilities/tool_files.h"

#include <cmath>

namespace loftwing {

namespace {

constexpr float kAngleDroit = 90;

double Sinus(const NervureOblique &oblique) {
    return std::sin(EnRadians(Wide(oblique.AngleNervure)));
}

bool InterneDonnee(const NervureOblique &oblique) {
    return oblique.OptionCorde == kInterneDonnee;
}

/// The chord that is given; false when a box has refused it.
bool PrendCorde(NervureOblique &oblique, const std::string &typed, const Saisie &saisie,
                const std::string &titre) {
    const Messages &messages = saisie.messages;
    if (LeadingNumber(typed) == 0.0) {
        messages.Inform(messages.Text({"FrmAngle", "10"}), titre);
        return false;
    }
    if (InterneDonnee(oblique)) {
        StockeLongueur(typed, saisie, oblique.CordeInterneAfich, oblique.CordeInterne);
    } else {
        StockeLongueur(typed, saisie, oblique.CordeExterneAfich, oblique.CordeExterne);
    }
    return !EstRefusee(typed, saisie.Unite); // which has had its box by now
}

bool PrendAngle(NervureOblique &oblique, const std::string &typed, const Messages &messages,
                const std::string &titre) {
    if (LeadingNumber(typed) == 0.0) {
        messages.Inform(messages.Text({"FrmAngle", "11"}), titre);
        return false;
    }
    oblique.AngleNervure = ToSingle(LeadingNumber(typed));
    // A square rib is no oblique one, but an internal chord is wanted at 90 degrees too.
    const bool square = InterneDonnee(oblique);
    if (square ? oblique.AngleNervure > kAngleDroit : oblique.AngleNervure >= kAngleDroit) {
        messages.Inform(messages.Text({"FrmAngle", "12"}) + (square ? " 90° !" : " 89° !"), titre);
        return false;
    }
    return true;
}

/// A chord as its field shows it.
std::string Affiche(float corde, const std::string &Unite) {
    return FormatAffiche(DepuisMm(corde, Unite), kPictureThreeDecimals);
}

void CalculeCorde(NervureOblique &oblique, const std::string &Unite) {
    const double sinus = Sinus(oblique);
    if (InterneDonnee(oblique)) {
        oblique.CordeExterne = ToSingle(Quotient(Wide(oblique.CordeInterne), sinus));
        oblique.CordeExterneAfich = Affiche(oblique.CordeExterne, Unite);
    } else {
        oblique.CordeInterne = ToSingle(Wide(oblique.CordeExterne) * sinus);
        oblique.CordeInterneAfich = Affiche(oblique.CordeInterne, Unite);
    }
}

/// The computed chord as names and titles have it, with its unit.
std::string CordeAvecUnite(const NervureOblique &oblique, const std::string &Unite) {
    if (Unite == kUniteIn) {
        return CordeCalculee(oblique) + "in";
    }
    const float corde = InterneDonnee(oblique) ? oblique.CordeExterne : oblique.CordeInterne;
    return Format(corde, kPictureTwoWithZero) + "mm";
}

} // namespace

std::optional<int> CalculeOblique(NervureOblique &oblique, const TextesOblique &typed,
                                  const Saisie &saisie, const std::string &titre) {
    const int given = InterneDonnee(oblique) ? kChampInterne : kChampExterne;
    if (!PrendCorde(oblique, At(typed, given), saisie, titre)) {
        return given;
    }
    if (!PrendAngle(oblique, typed[kChampAngle], saisie.messages, titre)) {
        return kChampAngle;
    }
    CalculeCorde(oblique, saisie.Unite);
    return std::nullopt;
}

const std::string &CordeCalculee(const NervureOblique &oblique) {
    return InterneDonnee(oblique) ? oblique.CordeExterneAfich : oblique.CordeInterneAfich;
}

int ChampCalcule(const NervureOblique &oblique) {
    return InterneDonnee(oblique) ? kChampExterne : kChampInterne;
}

std::string NomOblique(const NervureOblique &oblique, const std::string &NomProfil,
                       const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const std::string chord = InterneDonnee(oblique) ? messages.Text({"FrmAngle", "4"})
                                                     : messages.Text({"FrmAngle", "5"});
    return NomProfil + "_" + chord + CordeAvecUnite(oblique, saisie.Unite) + "_" +
           messages.Text({"FrmAngle", "6"}) + " " + Format(oblique.AngleNervure, kPictureAngleNom) +
           ".dat";
}

std::string TexteOblique(const NervureOblique &oblique, const ProfilChoisi &profil,
                         const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const std::string title = MotNervure(messages) + " " + MotCorde(messages) + " : " +
                              CordeAvecUnite(oblique, saisie.Unite) + " " +
                              messages.Text({"FrmAngle", "6"}) + " " +
                              Format(oblique.AngleNervure, kPictureTwoWithZero) + kDegre;
    return TexteEtire(title, profil, Sinus(oblique));
}

} // namespace loftwing
