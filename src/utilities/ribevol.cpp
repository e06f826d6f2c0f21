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

std::optional<RefusJeu> VerifieCordes(const SaisieRibevol &typed, const Saisie &saisie,
                                      Ribevol &set) {
    const LngKey too_long{"FrmRibevol", "13"};
    if (auto refus =
            PrendCorde(typed.txtcorde[0], saisie,
                       {{"FrmRibevol", "17"}, too_long, ChampJeu::corde_max, kCordeMaxLimite},
                       set.CordeMaxAfich, set.CordeMax)) {
        return refus;
    }
    if (auto refus =
            PrendCorde(typed.txtcorde[1], saisie,
                       {{"FrmRibevol", "18"}, too_long, ChampJeu::corde_min, kCordeMinLimite},
                       set.CordeMinAfich, set.CordeMin)) {
        return refus;
    }
    if (set.CordeMax < set.CordeMin) {
        return RefusJeu{saisie.messages.Text({"FrmRibevol", "14"}), BoxIcon::warning,
                        ChampJeu::corde_max};
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
    set.PasCorde = (Wide(set.CordeMax) - Wide(set.CordeMin)) / steps;
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
        const double corde = Wide(set.CordeMax) - set.PasCorde * i;
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
