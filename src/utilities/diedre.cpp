#include "utilities/diedre.h"

#include "base/number_text.h"
#include "core/stations.h"
#include "utilities/tool_texts.h"

#include <cmath>

namespace loftwing {

namespace {

constexpr double kAngleMaxi = 89.0;

std::string TexteLongueur(double mm, const Saisie &saisie) {
    return LongueurSousImage(mm, saisie.Unite, kPictureThreeDecimals);
}

void LimiteAngle(TextesDiedre &textes, double angle, const Saisie &saisie,
                 const std::string &titre) {
    if (angle > kAngleMaxi) {
        saisie.messages.Inform(saisie.messages.Text({"FrmDiedre", "3"}) + " " + "  89°", titre);
        textes[kDiedreAngle] = "89";
    }
}

bool CalculeHauteur(TextesDiedre &textes, const Saisie &saisie, const std::string &titre) {
    const double length = NombreMm(textes[kDiedreLongueur], saisie);
    const double angle = LeadingNumber(textes[kDiedreAngle]);
    const std::string height = TexteLongueur(Finite(std::tan(EnRadians(angle)) * length), saisie);
    LimiteAngle(textes, angle, saisie, titre);
    textes[kDiedreHauteur] = height;
    return true;
}

bool CalculeLongueur(TextesDiedre &textes, const Saisie &saisie, const std::string &titre) {
    const double height = NombreMm(textes[kDiedreHauteur], saisie);
    const double angle = LeadingNumber(textes[kDiedreAngle]);
    if (angle == 0.0 || height == 0.0) {
        return false;
    }
    const std::string length = TexteLongueur(Quotient(height, std::tan(EnRadians(angle))), saisie);
    LimiteAngle(textes, angle, saisie, titre);
    textes[kDiedreLongueur] = length;
    return true;
}

bool CalculeAngle(TextesDiedre &textes, const Saisie &saisie) {
    const double length = NombreMm(textes[kDiedreLongueur], saisie);
    const double height = NombreMm(textes[kDiedreHauteur], saisie);
    if (length == 0.0 || height == 0.0) {
        return false;
    }
    const double angle = std::atan(Quotient(height, length)) * 180.0 / Pi();
    textes[kDiedreAngle] = Format(angle, kPictureTwoWithZero);
    return true;
}

} // namespace

bool CalculeDiedre(TextesDiedre &textes, int champ, const Saisie &saisie,
                   const std::string &titre) {
    switch (champ) {
    case kDiedreHauteur:
        return CalculeHauteur(textes, saisie, titre);
    case kDiedreLongueur:
        return CalculeLongueur(textes, saisie, titre);
    default:
        return CalculeAngle(textes, saisie);
    }
}

} // namespace loftwing
