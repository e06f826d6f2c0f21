#include "utilities/EpCourb.h"

#include "base/number_text.h"
#include "base/version.h"
#include "utilities/tool_files.h"

#include <optional>
#include <vector>

namespace loftwing {

namespace {

constexpr double kSansCambrure = 0.001; // fractions of the chord
constexpr double kCambrureLimite = 99.0;
constexpr double kEpaisseurLimite = 100.0;

// Stations and steps of the file: a hundredth of the chord up to the nose, then half of it.
constexpr int kPasStation = 4;
constexpr int kPasNez = 2;
constexpr int kDebutNez = 384;
constexpr double kPas = 0.01;
constexpr double kDemiPas = 0.005;

std::string Pourcent(double part) {
    return Format(part * 100.0, "#0.00");
}

std::string TexteLimite(const Messages &messages) {
    return messages.Text({"FrmEpCourb", "11"}) + "100 % ";
}

/// The factor of the mean line; nothing when the camber is refused.
std::optional<double> FacteurCourbure(RibModel &rib, ChampsEpCourb &champs,
                                      const Messages &messages, const std::string &titre) {
    const double camber = LeadingNumber(champs.txtCourbure);
    if (camber > kCambrureLimite) {
        messages.Inform(TexteLimite(messages), titre);
        return std::nullopt;
    }
    if (rib.CambrureMaxi == 0.0) {
        if (camber != 0.0) {
            messages.Inform(messages.Text({"FrmEpCourb", "10"}), titre);
            champs.txtCourbure = Pourcent(0);
            rib.NouvCambrure = 0;
        }
        return 1.0;
    }
    rib.NouvCambrure = camber / 100.0;
    champs.txtCourbure = Pourcent(rib.NouvCambrure);
    return Quotient(rib.NouvCambrure, rib.CambrureMaxi);
}

/// The factor of the thickness; nothing when it is refused.
std::optional<double> FacteurEp(RibModel &rib, const ChampsEpCourb &champs,
                                const Messages &messages, const std::string &titre) {
    const double thickness = LeadingNumber(champs.txtEpR);
    if (thickness > kEpaisseurLimite) {
        messages.Tell(TexteLimite(messages), titre, BoxIcon::warning);
        return std::nullopt;
    }
    rib.NouvEpaisseur = thickness / 100.0;
    if (rib.NouvEpaisseur == 0.0) {
        messages.Tell(messages.Text({"FrmEpCourb", "12"}), titre, BoxIcon::warning);
        return std::nullopt;
    }
    return Quotient(rib.NouvEpaisseur, rib.EpMaxi);
}

void NouvelleSection(RibModel &rib, double courbure, double epaisseur) {
    for (std::size_t i = 0; i <= kLastStation; ++i) {
        const double moyenne = (rib.TabIntrados[i] + rib.TabExtrados[i]) * 0.5;
        const double demi = (rib.TabExtrados[i] - rib.TabIntrados[i]) * epaisseur / 2.0;
        rib.NouvExtrados[i] = moyenne * courbure + demi;
        rib.NouvIntrados[i] = moyenne * courbure - demi;
    }
}

bool Applique(RibModel &rib, double courbure, ChampsEpCourb &champs, const Messages &messages,
              const std::string &titre) {
    const auto epaisseur = FacteurEp(rib, champs, messages, titre);
    if (!epaisseur) {
        return false;
    }
    NouvelleSection(rib, courbure, *epaisseur);
    rib.ModeEpCourb = true;
    champs.txtEpR = Pourcent(rib.NouvEpaisseur);
    return true;
}

/// The points of a file while they are written. x is a 32-bit number that is stepped, never set
/// anew: its rounding is part of the files that there are.
class Points {
  public:
    void Avance(double pas) { x_ = ToSingle(Wide(x_) + pas); }
    void Ajoute(double y) {
        // A number that isn't negative has a blank for its sign.
        lignes.push_back(Format(x_, "0.000") + " " + (y < 0.0 ? "" : " ") + NumberText(y) + " ");
    }
    std::vector<std::string> lignes;

  private:
    float x_ = 1;
};

void AjouteExtrados(const RibModel &rib, Points &points) {
    for (int i = 0; i < kDebutNez; i += kPasStation) {
        points.Ajoute(At(rib.NouvExtrados, i));
        points.Avance(-kPas);
    }
    for (int i = kDebutNez; i <= kLastStation; i += kPasNez) {
        points.Ajoute(At(rib.NouvExtrados, i));
        points.Avance(-kDemiPas);
    }
}

void AjouteIntrados(const RibModel &rib, Points &points) {
    for (int i = kLastStation; i >= kDebutNez; i -= kPasNez) {
        points.Avance(kDemiPas);
        // No point twice where the surfaces meet.
        if (At(rib.NouvIntrados, i) != At(rib.NouvExtrados, i)) {
            points.Ajoute(At(rib.NouvIntrados, i));
        }
    }
    for (int i = kDebutNez - kPasStation; i >= 0; i -= kPasStation) {
        points.Avance(kPas);
        points.Ajoute(At(rib.NouvIntrados, i));
    }
}

} // namespace

std::string TitreEpCourb(const RibModel &rib, const Messages &messages) {
    return messages.Text({"FrmEpCourb", "1"}) + " " + rib.NomProfil;
}

std::string TexteEpaisseurMaxi(const RibModel &rib, double part, const std::string &Unite) {
    const std::string shown = DepuisMm(Wide(rib.corde) * part, Unite);
    return FormatAffiche(shown, kPictureThreeDecimals) + Unite;
}

TextesEpCourb OuvreEpCourb(RibModel &rib, const std::string &Unite) {
    rib.TypeGabarit = kSansGabarit;
    rib.ModeEpCourb = false;
    if (rib.CambrureMaxi < kSansCambrure) {
        rib.CambrureMaxi = 0;
    }
    TextesEpCourb shown;
    shown.txtEpROr = Pourcent(rib.EpMaxi);
    shown.Label4 = TexteEpaisseurMaxi(rib, rib.EpMaxi, Unite);
    shown.champs.txtEpR = Pourcent(rib.NouvEpaisseur);
    if (rib.NouvEpaisseur != 0.0) {
        shown.Label5 = TexteEpaisseurMaxi(rib, rib.NouvEpaisseur, Unite);
    }
    shown.txtCourbureOr = Pourcent(rib.CambrureMaxi);
    // From 0 on, whoever changed the thickness alone would lose the camber.
    shown.champs.txtCourbure = shown.txtCourbureOr;
    return shown;
}

bool AppliqueEpCourb(RibModel &rib, ChampsEpCourb &champs, const Messages &messages,
                     const std::string &titre) {
    rib.ModeEpCourb = false;
    const auto courbure = FacteurCourbure(rib, champs, messages, titre);
    return courbure && Applique(rib, *courbure, champs, messages, titre);
}

bool AppliqueEpaisseur(RibModel &rib, ChampsEpCourb &champs, const Messages &messages,
                       const std::string &titre) {
    rib.ModeEpCourb = false;
    rib.NouvCambrure = rib.CambrureMaxi;
    champs.txtCourbure = Pourcent(rib.NouvCambrure);
    return Applique(rib, 1.0, champs, messages, titre);
}

std::string NomEpCourb(const RibModel &rib, const ChampsEpCourb &champs) {
    return NomDeFichier(rib.NomProfil + "_E" + champs.txtEpR + "C" + champs.txtCourbure + ".dat");
}

std::string TexteEpCourb(const RibModel &rib, const ChampsEpCourb &champs,
                         const Messages &messages) {
    Points points;
    points.lignes.push_back(rib.NomProfil + " " + messages.Text({"FrmEpCourb", "17"}) + " " +
                            champs.txtEpR + "% " + messages.Text({"FrmEpCourb", "18"}) + " " +
                            champs.txtCourbure + "%");
    AjouteExtrados(rib, points);
    AjouteIntrados(rib, points);
    points.lignes.push_back(std::string("By ") + kTitre);
    return TexteDeLignes(points.lignes);
}

} // namespace loftwing
