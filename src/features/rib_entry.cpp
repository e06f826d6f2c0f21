#include "features/rib_entry.h"

#include "base/number_text.h"
#include "features/inserted_text.h"
#include "features/talon.h"
#include "lang/aide.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kMaxReperes = 255;

// Every routine below converts all that it needs before it stores the first value, so that a
// failure leaves the rib as it was.

void RefuseCorde(const std::string &typed, const Saisie &saisie, const std::string &titre) {
    const Messages &messages = saisie.messages;
    messages.Inform(messages.Text({"FrmPrint", "26"}) + " : " + typed + saisie.Unite + " - " +
                        messages.Text({"FrmAngle", "10"}),
                    titre);
}

/// A typed length in mm.
struct Lu {
    float mm;
    bool illisible; ///< no length; a box has told so, and it counts as 0
};

Lu LitLongueur(const std::string &typed, const Saisie &saisie) {
    const std::string mm = VersMm(typed, saisie);
    return {ToSingle(LeadingNumber(mm)), mm.empty() && !typed.empty()};
}

/// How a length ended that nothing else speaks against.
FinSaisie FinDe(const Lu &lu) {
    return lu.illisible ? FinSaisie::ramenee : FinSaisie::prise;
}

/// Where a stock is kept, and what is said of one that is wider than the chord.
struct Bord {
    std::string &afich;
    float &mm;
    LngKey trop_large;
};

/// Stores a stock's text and number; above the chord the number is 0 and a box says so.
FinSaisie StockeBord(const Bord &bord, const RibModel &rib, const std::string &typed,
                     const Saisie &saisie, const std::string &titre) {
    const Lu lu = LitLongueur(typed, saisie);
    const bool fits = lu.mm <= rib.corde;
    if (!fits) {
        saisie.messages.Inform(saisie.messages.Text(bord.trop_large), titre);
    }
    bord.afich = typed;
    bord.mm = fits ? lu.mm : 0.0F;
    return fits ? FinDe(lu) : FinSaisie::ramenee;
}

FinSaisie CordeSeule(RibModel &rib, const std::string &typed, const Saisie &saisie,
                     const std::string &titre) {
    const float corde = LitLongueur(typed, saisie).mm;
    if (corde == 0.0F) {
        RefuseCorde(typed, saisie, titre);
        return FinSaisie::refusee;
    }
    rib.cordeAfich = typed;
    rib.corde = corde;
    return FinSaisie::prise;
}

FinSaisie CoffrageSeul(RibModel &rib, const std::string &typed, const Saisie &saisie,
                       const std::string & /*titre*/) {
    const Lu lu = LitLongueur(typed, saisie);
    rib.EpCoffrageAfich = typed;
    rib.EpCoffrage = lu.mm;
    return FinDe(lu);
}

constexpr std::array<ModeEntree, 5> kModes = {{
    {"corde",
     {"FrmInput", "1"},
     {"FrmInput", "2"},
     true,
     kAideValeurs,
     [](const RibModel &rib) { return rib.cordeAfich; },
     SaisitCorde,
     CordeSeule},
    {"epcof",
     {"FrmInput", "3"},
     {"FrmInput", "4"},
     true,
     kAideValeurs,
     [](const RibModel &rib) { return rib.EpCoffrageAfich; },
     SaisitCoffrage,
     CoffrageSeul},
    {"ba",
     {"FrmInput", "5"},
     {"FrmInput", "6"},
     true,
     kAideValeurs,
     [](const RibModel &rib) { return rib.EpBAAfich; },
     SaisitBordAttaque,
     SaisitBordAttaque},
    {"bf",
     {"FrmInput", "7"},
     {"FrmInput", "8"},
     true,
     kAideValeurs,
     [](const RibModel &rib) { return rib.EpBFAfich; },
     SaisitBordFuite,
     SaisitBordFuite},
    {"rep",
     {"FrmInput", "9"},
     {"FrmInput", "10"},
     false,
     kAideGabarit,
     [](const RibModel &rib) { return std::to_string(rib.NbRep); },
     SaisitReperes,
     SaisitReperes},
}};

} // namespace

FinSaisie SaisitCorde(RibModel &rib, const std::string &typed, const Saisie &saisie,
                      const std::string &titre) {
    const float corde = LitLongueur(typed, saisie).mm;
    if (corde == 0.0F) {
        // The text is new already; the number stays, for nothing can be drawn at a chord of 0.
        rib.cordeAfich = typed;
        RefuseCorde(typed, saisie, titre);
        return FinSaisie::refusee;
    }
    const float LongBloc = LongueurBloc(rib, corde);
    Talon talon = TalonPour(rib, {corde, rib.EpCoffrage}, saisie);
    talon = AvecMarges(talon, corde, saisie);
    // A label names the chord, so with a new one it is the program's again even if the user has had
    // it in hand. Words of his own stay.
    if (EstEtiquette(rib, saisie.messages)) {
        rib.texte.TexteUtilisateur = false;
    }
    rib.cordeAfich = typed;
    rib.corde = corde;
    rib.bloc.LongBloc = LongBloc;
    rib.talon = talon;
    rib.Modifie = !rib.ModeCompare;
    return FinSaisie::prise;
}

FinSaisie SaisitCoffrage(RibModel &rib, const std::string &typed, const Saisie &saisie,
                         const std::string & /*titre*/) {
    const Lu lu = LitLongueur(typed, saisie);
    const Talon talon = TalonPour(rib, {rib.corde, lu.mm}, saisie);
    rib.EpCoffrageAfich = typed;
    rib.EpCoffrage = lu.mm;
    rib.talon = talon;
    rib.Modifie = true;
    return FinDe(lu);
}

FinSaisie SaisitBordAttaque(RibModel &rib, const std::string &typed, const Saisie &saisie,
                            const std::string &titre) {
    const FinSaisie fin =
        StockeBord({rib.EpBAAfich, rib.EpBA, {"FrmInput", "11"}}, rib, typed, saisie, titre);
    rib.TypeBA = 1;
    rib.Modifie = true;
    return fin;
}

FinSaisie SaisitBordFuite(RibModel &rib, const std::string &typed, const Saisie &saisie,
                          const std::string &titre) {
    const FinSaisie fin =
        StockeBord({rib.EpBFAfich, rib.EpBF, {"FrmInput", "12"}}, rib, typed, saisie, titre);
    rib.Modifie = true;
    return fin;
}

FinSaisie SaisitReperes(RibModel &rib, const std::string &typed, const Saisie &saisie,
                        const std::string &titre) {
    const double count = LeadingNumber(typed);
    const bool fits = count <= kMaxReperes;
    if (!fits) {
        saisie.messages.Inform(saisie.messages.Text({"FrmInput", "13"}), titre);
    }
    rib.NbRep = ToByte(fits ? count : kMaxReperes);
    rib.Modifie = true;
    return fits ? FinSaisie::prise : FinSaisie::ramenee;
}

const ModeEntree &ModeDe(std::string_view ModeSaisie) {
    const auto *const mode = std::find_if(kModes.begin(), kModes.end(), [&](const ModeEntree &row) {
        return row.ModeSaisie == ModeSaisie;
    });
    if (mode == kModes.end()) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    return *mode;
}

std::string TitreSaisie(const ModeEntree &mode, const Saisie &saisie) {
    const std::string words = saisie.messages.Text(mode.titre);
    return mode.avec_unite ? words + " " + saisie.Unite : words;
}

FinSaisie ValideSaisie(const ModeEntree &mode, RibModel &rib, const std::string &typed,
                       const Saisie &saisie, Suite suite) {
    try {
        const auto take = suite == Suite::tout ? mode.saisit : mode.saisit_seul;
        return take(rib, typed, saisie, TitreSaisie(mode, saisie));
    } catch (const Failure &failure) {
        saisie.messages.Report(failure, " Input/OK");
        return FinSaisie::refusee;
    }
}

void MajGabarit(RibModel &rib, const Saisie &saisie) {
    if (!rib.Modifie) {
        return;
    }
    RegenereTexte(rib, saisie.messages);
    // A washed-out heel was set by hand and keeps its heights, as at a new chord.
    if (rib.vrillage != 0.0F) {
        return;
    }
    const MesuresTalon mesures{rib.corde, rib.EpCoffrage};
    Talon talon = rib.talon;
    talon.TalonIntraAfich = TexteTalonIntra(rib, mesures, saisie.Unite);
    talon.TalonExtraAfich = TexteTalonExtra(rib, mesures, saisie.Unite);
    rib.talon = AvecHauteurs(talon, saisie);
}

} // namespace loftwing
