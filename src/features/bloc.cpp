#include "features/bloc.h"

#include "base/number_text.h"
#include "features/inserted_text.h"

#include <cmath>

namespace loftwing {

namespace {

/// One of the two ramps of a template.
struct Rampe {
    int champ;
    std::string Bloc::*afich;
    float Bloc::*mm;
    LngKey nom;
};

constexpr std::array<Rampe, 2> kRampes = {{
    {kBlocRampeBA, &Bloc::BAblocAfich, &Bloc::BAbloc, {"FrmBloc", "13T"}},
    {kBlocRampeBF, &Bloc::BFblocAfich, &Bloc::BFbloc, {"FrmBloc", "14T"}},
}};

/// A height with up to three decimals (in inches perhaps a fraction), without the blank that the
/// picture sets before small numbers and without a point that nothing follows.
std::string TexteHauteur(float mm, const std::string &Unite) {
    if (Unite == kUniteIn) {
        return DepuisMm(mm, Unite);
    }
    std::string text(Trim(Format(mm, kPictureThreeDecimals)));
    if (text.starts_with('.')) {
        text.insert(0, 1, '0');
    }
    if (text.ends_with('.')) {
        text.pop_back();
    }
    return text;
}

std::string TextePoint(const RibModel &rib, double fraction, const std::string &Unite) {
    if (!rib.ProfilCharge) {
        return {};
    }
    // In the 32 bits of the chord, or a fraction of an inch would not be found exact.
    const float mm = ToSingle(Wide(rib.corde) * fraction);
    const std::string text = TexteHauteur(std::abs(mm), Unite);
    return (mm < 0.0F && text != "0" ? "-" : "") + text + Unite;
}

void AlerteRampe(const Rampe &rampe, const std::string &value, const RibModel &rib,
                 const Saisie &saisie, const std::string &titre) {
    const Messages &messages = saisie.messages;
    messages.Inform(messages.Text({"Message", "20"}) + messages.Text(rampe.nom) + " = " + value +
                        " > " + messages.Text({"FrmBloc", "7"}) + " = " +
                        DepuisMm(rib.corde, saisie.Unite),
                    titre);
}

void LimiteRampes(RibModel &rib, const Saisie &saisie, const std::string &titre) {
    for (const Rampe &rampe : kRampes) {
        float &mm = rib.bloc.*rampe.mm;
        if (mm > rib.corde) {
            AlerteRampe(rampe, DepuisMm(mm, saisie.Unite), rib, saisie, titre);
            mm = rib.corde;
        }
    }
}

/// The template with one ramp taken from a text, an empty one being 0.
Bloc AvecRampe(Bloc bloc, const Rampe &rampe, const std::string &typed, const Saisie &saisie) {
    StockeLongueur(typed.empty() ? "0" : typed, saisie, bloc.*rampe.afich, bloc.*rampe.mm);
    return bloc;
}

std::optional<std::string> LimiteVrillage(RibModel &rib, const Saisie &saisie,
                                          const std::string &titre) {
    const Messages &messages = saisie.messages;
    const std::string angle = messages.Text({"FrmBloc", "3"});
    if (rib.vrillage > kVrillageMaxi) {
        messages.Inform(messages.Text({"FrmBloc", "8"}) + angle + " 20°", titre);
        rib.vrillage = kVrillageMaxi;
        return "20";
    }
    if (rib.vrillage < -kVrillageMaxi) {
        messages.Inform(messages.Text({"FrmBloc", "9"}) + angle + " -20°", titre);
        rib.vrillage = -kVrillageMaxi;
        return "-20";
    }
    return std::nullopt;
}

} // namespace

TextesBloc TextesDuBloc(const RibModel &rib) {
    const Bloc &bloc = rib.bloc;
    return {bloc.HTbasblocAfich, bloc.BAblocAfich, bloc.BFblocAfich,
            bloc.CoupeBFAfich,   bloc.HTblocAfich, NumberText(rib.vrillage)};
}

std::string TitreBloc(const Saisie &saisie) {
    return saisie.messages.Text({"FrmBloc", "1"}) + saisie.Unite;
}

std::string TexteLongBloc(const RibModel &rib, const std::string &Unite) {
    return DepuisMm(rib.bloc.LongBloc, Unite) + Unite;
}

std::string TextePointHaut(const RibModel &rib, const std::string &Unite) {
    return TextePoint(rib, rib.ExtradosMaxi, Unite);
}

std::string TextePointBas(const RibModel &rib, const std::string &Unite) {
    return TextePoint(rib, rib.IntradosMini, Unite);
}

std::optional<std::string> SuitBloc(RibModel &rib, int champ, const TextesBloc &typed,
                                    const Saisie &saisie, const std::string &titre) {
    Bloc bloc = rib.bloc;
    // The other ramp was read when it changed; reading it again would repeat its boxes.
    for (const Rampe &rampe : kRampes) {
        if (rampe.champ == champ) {
            bloc = AvecRampe(bloc, rampe, At(typed, champ), saisie);
        }
    }
    bloc.LongBloc = LongueurBloc(bloc, rib.corde);
    const float vrillage = ToSingle(LeadingNumber(typed[kBlocVrillage]));
    rib.bloc = bloc;
    rib.vrillage = vrillage;
    return LimiteVrillage(rib, saisie, titre);
}

std::optional<int> RefuseRampe(const RibModel &rib, const Saisie &saisie,
                               const std::string &titre) {
    for (const Rampe &rampe : kRampes) {
        const std::string &afich = rib.bloc.*rampe.afich;
        // In the 32 bits of the chord: a ramp typed like it is as long as it.
        if (ToSingle(NombreMm(afich, saisie)) > rib.corde) {
            AlerteRampe(rampe, afich, rib, saisie, titre);
            return rampe.champ;
        }
    }
    return std::nullopt;
}

void ValideBloc(RibModel &rib, const TextesBloc &typed, const Saisie &saisie,
                const std::string &titre) {
    rib.Modifie = true;
    Bloc bloc = rib.bloc;
    StockeLongueur(typed[kBlocBas], saisie, bloc.HTbasblocAfich, bloc.HTbasbloc);
    StockeLongueur(typed[kBlocRampeBA], saisie, bloc.BAblocAfich, bloc.BAbloc);
    StockeLongueur(typed[kBlocRampeBF], saisie, bloc.BFblocAfich, bloc.BFbloc);
    StockeLongueur(typed[kBlocCoupeBF], saisie, bloc.CoupeBFAfich, bloc.CoupeBF);
    StockeLongueur(typed[kBlocHauteur], saisie, bloc.HTblocAfich, bloc.HTbloc);
    const float vrillage = ToSingle(LeadingNumber(typed[kBlocVrillage]));
    bloc.LongBloc = LongueurBloc(bloc, rib.corde);
    rib.bloc = bloc;
    LimiteRampes(rib, saisie, titre);
    rib.TypeGabarit = kGabaritMousse;
    rib.vrillage = vrillage;
    if (rib.vrillage != 0.0F) {
        RegenereTexte(rib, saisie.messages);
    }
}

} // namespace loftwing
