#include "utilities/rib_set_typed.h"

#include "utilities/ribevol.h"
#include "utilities/ribevol2.h"

namespace loftwing {

namespace {

using Resultat = std::variant<JeuDeNervures, RefusJeu>;

std::array<std::string, 2> Noms(const std::array<ProfilJeu, 2> &profils) {
    return {profils[0].NomProfil, profils[1].NomProfil};
}

Resultat Regulier(const SaisieJeu &typed, const std::array<ProfilJeu, 2> &profils,
                  const Saisie &saisie) {
    Ribevol set;
    if (auto refus = VerifieRibevol({Noms(profils), typed.cordes, typed.nombre}, saisie, set)) {
        return *std::move(refus);
    }
    return ComposeRibevol(set, profils, typed.dossier, saisie);
}

Resultat Variable(const SaisieJeu &typed, const std::array<ProfilJeu, 2> &profils,
                  const Saisie &saisie, JeuNervures &jeu) {
    const int N = static_cast<int>(typed.ecarts.size()) - 1;
    if (N > kNervuresVariables) {
        return RefusJeu{QuestionNombre(N, saisie.messages)};
    }
    jeu.NbNervInter = ToInt16(N);
    Ribevol2 set;
    const std::array<std::string, 2> ends{typed.epaisseurs.front(), typed.epaisseurs.back()};
    if (auto refus = ValideRibevol2({Noms(profils), typed.cordes, ends}, saisie, jeu, set)) {
        return *std::move(refus);
    }
    for (int gap = 1; gap <= N + 1; ++gap) {
        set.NervCourante = ToInt16(gap);
        AppliqueEcart(At(typed.epaisseurs, gap - 1), At(typed.ecarts, gap - 1), saisie, jeu, set);
    }
    if (auto refus = VerifieEcarts(jeu, saisie.messages)) {
        return *std::move(refus);
    }
    CalculeRibevol2(jeu, set);
    return ComposeRibevol2(jeu, set, profils, typed.dossier, saisie);
}

} // namespace

Resultat ComposeJeu(const SaisieJeu &typed, const std::array<ProfilJeu, 2> &profils,
                    const Saisie &saisie, JeuNervures &jeu) {
    return typed.ecarts.empty() ? Regulier(typed, profils, saisie)
                                : Variable(typed, profils, saisie, jeu);
}

LngKey TitreJeu(const SaisieJeu &typed) {
    return typed.ecarts.empty() ? LngKey{"FrmRibevol", "1"} : LngKey{"FrmRibevol2", "1"};
}

} // namespace loftwing
