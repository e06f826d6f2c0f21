#include "utilities/ribevol.h"

#include "base/number_text.h"

namespace loftwing {

namespace {

std::optional<RefusJeu> VerifieNombre(const std::string &typed, const Messages &messages,
                                      Ribevol &set) {
    if (SansValeur(typed)) {
        return RefusJeu{messages.Text({"FrmRibevol", "16"}), BoxIcon::information,
                        ChampJeu::nombre};
    }
    const double count = RoundHalfEven(LeadingNumber(typed));
    if (count > kNervuresMaxi) {
        return RefusJeu{messages.Text({"FrmRibevol", "12"}) + " 90 Ribs !", BoxIcon::warning,
                        ChampJeu::nombre};
    }
    set.NbNervI = ToInt16(count);
    return std::nullopt;
}

std::optional<RefusJeu> TropLongue(float mm, float limit, ChampJeu champ, const Saisie &saisie) {
    if (mm <= limit) {
        return std::nullopt;
    }
    return RefusJeu{saisie.messages.Text({"FrmRibevol", "13"}) + LimiteCorde(saisie.Unite),
                    BoxIcon::warning, champ};
}

std::optional<RefusJeu> VerifieCordes(const SaisieRibevol &typed, const Saisie &saisie,
                                      Ribevol &set) {
    const Messages &messages = saisie.messages;
    if (SansValeur(typed.txtcorde[0])) {
        return RefusJeu{messages.Text({"FrmRibevol", "17"}), BoxIcon::information,
                        ChampJeu::corde_max};
    }
    StockeLongueur(typed.txtcorde[0], saisie, set.CordeMaxAfich, set.CordeMax);
    if (auto refus = TropLongue(set.CordeMax, kCordeMaxLimite, ChampJeu::corde_max, saisie)) {
        return refus;
    }
    if (SansValeur(typed.txtcorde[1])) {
        return RefusJeu{messages.Text({"FrmRibevol", "18"}), BoxIcon::information,
                        ChampJeu::corde_min};
    }
    StockeLongueur(typed.txtcorde[1], saisie, set.CordeMinAfich, set.CordeMin);
    if (auto refus = TropLongue(set.CordeMin, kCordeMinLimite, ChampJeu::corde_min, saisie)) {
        return refus;
    }
    if (set.CordeMax < set.CordeMin) {
        return RefusJeu{messages.Text({"FrmRibevol", "14"}), BoxIcon::warning, ChampJeu::corde_max};
    }
    return std::nullopt;
}

} // namespace

std::optional<RefusJeu> VerifieRibevol(const SaisieRibevol &typed, const Saisie &saisie,
                                       Ribevol &set) {
    if (auto refus = VerifieNombre(typed.txtnervI, saisie.messages, set)) {
        return refus;
    }
    if (auto refus = VerifieCordes(typed, saisie, set)) {
        return refus;
    }
    const double steps = set.NbNervI + 1;
    set.PasRapport = (100 / steps) / 100;
    set.PasCorde = (static_cast<double>(set.CordeMax) - static_cast<double>(set.CordeMin)) / steps;
    if (typed.txtprofil[0].empty() || typed.txtprofil[1].empty()) {
        return RefusJeu{saisie.messages.Text({"FrmRibevol", "15"})};
    }
    return std::nullopt;
}

JeuDeNervures ComposeRibevol(const Ribevol &set, const std::array<ProfilJeu, 2> &profils,
                             const std::string &dossier, const Saisie &saisie) {
    JeuDeNervures jeu = JeuVide({set.CordeMaxAfich, set.CordeMinAfich},
                                {set.CordeMax, set.CordeMin}, profils, dossier, saisie.Unite);
    for (int i = 1; i <= set.NbNervI; ++i) {
        const double corde = static_cast<double>(set.CordeMax) - set.PasCorde * i;
        jeu.nervures.insert(jeu.nervures.end() - 1,
                            {CordeNervure(corde, saisie.Unite), set.PasRapport * i});
    }
    const Messages &messages = saisie.messages;
    jeu.resume = {
        TitreResume(saisie.Unite, messages.Text({"FrmRibevol", "7"}), set.NbNervI, messages), ""};
    for (int number = 1; number <= set.NbNervI + 2; ++number) {
        jeu.resume.push_back(LigneResume(jeu, number, messages));
    }
    return jeu;
}

std::string ResultatRibevol(const JeuDeNervures &jeu, const Messages &messages) {
    const int NbNervI = static_cast<int>(jeu.nervures.size()) - 2;
    return NbNervI < kResultatCourt ? ResultatComplet(jeu, " : ", messages)
                                    : ResultatCourt(jeu, messages);
}

} // namespace loftwing
