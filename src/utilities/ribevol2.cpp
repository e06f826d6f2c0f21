#include "utilities/ribevol2.h"

#include "base/number_text.h"
#include "output/text_lines.h"

#include <algorithm>

namespace loftwing {

namespace {

std::optional<RefusJeu> ValideCordes(const SaisieRibevol2 &typed, const Saisie &saisie,
                                     JeuNervures &jeu, Ribevol2 &set) {
    const LngKey too_long{"FrmRibevol2", "13"};
    if (auto refus =
            PrendCorde(typed.txtcorde[0], saisie,
                       {{"FrmRibevol2", "17"}, too_long, ChampJeu::corde_max, kCordeMaxLimite},
                       set.CordeMaxAfich, jeu.CordeNerv[0])) {
        return refus;
    }
    if (auto refus =
            PrendCorde(typed.txtcorde[1], saisie,
                       {{"FrmRibevol2", "18"}, too_long, ChampJeu::corde_min, kCordeMinLimite},
                       set.CordeMinAfich, jeu.CordeNerv[kNervureMin])) {
        return refus;
    }
    if (jeu.CordeNerv[0] < jeu.CordeNerv[kNervureMin]) {
        return RefusJeu{saisie.messages.Text({"FrmRibevol2", "14"}), BoxIcon::information,
                        ChampJeu::corde_max};
    }
    return std::nullopt;
}

/// Lengths of the panel from its gaps and ribs.
void Somme(const JeuNervures &jeu, Ribevol2 &set) {
    const int N = jeu.NbNervInter;
    const auto half = [&jeu](int i) { return Wide(At(jeu.EprNerv, i)) / 2; };
    set.LongNerv = 0;
    set.LongTotale = 0;
    set.CumulNerv[0] = 0;
    for (int i = 1; i <= N; ++i) {
        At(set.PasNerv, i) = ToSingle(half(i - 1) + Wide(At(jeu.EcartNerv, i)) + half(i));
        At(set.CumulNerv, i) = ToSingle(Wide(At(set.PasNerv, i)) + Wide(At(set.CumulNerv, i - 1)));
        set.LongNerv = ToSingle(Wide(set.LongNerv) + Wide(At(set.PasNerv, i)));
    }
    set.LongNerv =
        ToSingle(half(N) + Wide(set.LongNerv) + Wide(At(jeu.EcartNerv, N + 1)) + half(kNervureMin));
    set.LongTotale = ToSingle(half(0) + Wide(set.LongNerv) + half(kNervureMin));
}

class Resume {
  public:
    Resume(const JeuNervures &jeu, const JeuDeNervures &files, const Saisie &saisie)
        : jeu_(jeu), files_(files), saisie_(saisie) {}

    std::vector<std::string> Lignes(int NervCourante) const;

  private:
    const JeuNervures &jeu_;
    const JeuDeNervures &files_;
    const Saisie &saisie_;

    std::string Longueur(float mm) const {
        return saisie_.Unite == kUniteIn ? DepuisMm(mm, saisie_.Unite) : NumberText(mm);
    }
    std::string Nervure(int number, float epaisseur) const;
    std::string Ecart(int gap) const;
};

std::string Resume::Nervure(int number, float epaisseur) const {
    const Messages &messages = saisie_.messages;
    return UpToNextZone(LigneResume(files_, number, messages)) +
           messages.Text({"FrmRibevol2", "12"}) + " =" + Longueur(epaisseur);
}

std::string Resume::Ecart(int gap) const {
    return saisie_.messages.Text({"FrmRibevol2", "13"}) + " =" + Longueur(At(jeu_.EcartNerv, gap));
}

std::vector<std::string> Resume::Lignes(int NervCourante) const {
    const Messages &messages = saisie_.messages;
    const int N = jeu_.NbNervInter;
    std::vector<std::string> lines = {
        // The gap selected last stands here, which is the number of ribs only by chance.
        TitreResume(saisie_.Unite, messages.Text({"FrmRibevol2", "7"}), NervCourante, messages),
        ""};
    for (int i = 0; i <= N; ++i) {
        lines.push_back(Nervure(i + 1, At(jeu_.EprNerv, i)));
        lines.push_back(Ecart(i + 1));
    }
    lines.push_back(Nervure(N + 2, jeu_.EprNerv[kNervureMin]));
    return lines;
}

} // namespace

int NombreVariable(const std::string &answer) {
    constexpr double kBeyond = 32767;
    return ToInt(std::clamp(RoundHalfEven(LeadingNumber(answer)), -kBeyond, kBeyond));
}

std::string QuestionNombre(int answer, const Messages &messages) {
    std::string text = messages.Text({"FrmRibevol2", "16"});
    if (answer < 1 || answer > kNervuresVariables) {
        text += " !";
    }
    if (answer > kNervuresVariables) {
        text += "\n  --->    " + messages.Text({"FrmRibevol2", "19"});
    }
    return text;
}

std::optional<RefusJeu> ValideRibevol2(const SaisieRibevol2 &typed, const Saisie &saisie,
                                       JeuNervures &jeu, Ribevol2 &set) {
    const Messages &messages = saisie.messages;
    const std::string missing = messages.Text({"FrmRibevol2", "15"}) + " ";
    if (typed.txtprofil[0].empty()) {
        return RefusJeu{missing + messages.Text({"FrmRibevol2", "2"})};
    }
    if (typed.txtprofil[1].empty()) {
        return RefusJeu{missing + messages.Text({"FrmRibevol2", "3"})};
    }
    if (auto refus = ValideCordes(typed, saisie, jeu, set)) {
        return refus;
    }
    if (SansValeur(typed.txtEpR[0])) {
        return RefusJeu{messages.Text({"FrmRibevol2", "20"}), BoxIcon::information,
                        ChampJeu::epaisseur_max};
    }
    StockeLongueur(typed.txtEpR[0], saisie, jeu.EprNervAfich[0], jeu.EprNerv[0]);
    if (SansValeur(typed.txtEpR[1])) {
        return RefusJeu{messages.Text({"FrmRibevol2", "21"}), BoxIcon::information,
                        ChampJeu::epaisseur_min};
    }
    StockeLongueur(typed.txtEpR[1], saisie, jeu.EprNervAfich[kNervureMin],
                   jeu.EprNerv[kNervureMin]);
    return std::nullopt;
}

void AppliqueEcart(const std::string &TextEprNevure, const std::string &TextEcartNevure,
                   const Saisie &saisie, JeuNervures &jeu, Ribevol2 &set) {
    const int k = set.NervCourante;
    if (k > 1) {
        StockeLongueur(TextEprNevure, saisie, At(jeu.EprNervAfich, k - 1), At(jeu.EprNerv, k - 1));
    }
    StockeLongueur(TextEcartNevure, saisie, At(jeu.EcartNervAfich, k), At(jeu.EcartNerv, k));
    Somme(jeu, set);
    set.LongTotaleAfich =
        FormatAffiche(DepuisMm(set.LongTotale, saisie.Unite), kPictureThreeDecimals) + saisie.Unite;
}

std::optional<RefusJeu> VerifieEcarts(const JeuNervures &jeu, const Messages &messages) {
    for (int i = 1; i <= jeu.NbNervInter + 1; ++i) {
        if (At(jeu.EprNerv, i - 1) == 0.0F || At(jeu.EcartNerv, i) == 0.0F) {
            return RefusJeu{messages.Text({"FrmRibevol2", "10"})};
        }
    }
    return std::nullopt;
}

void CalculeRibevol2(JeuNervures &jeu, Ribevol2 &set) {
    set.PenteCorde =
        Quotient(Wide(jeu.CordeNerv[0]) - Wide(jeu.CordeNerv[kNervureMin]), Wide(set.LongNerv));
    for (int i = 1; i <= jeu.NbNervInter; ++i) {
        const double step = (Wide(At(jeu.EprNerv, i)) + Wide(At(jeu.EprNerv, i - 1))) / 2 +
                            Wide(At(jeu.EcartNerv, i));
        At(jeu.CordeNerv, i) = ToSingle(Wide(At(jeu.CordeNerv, i - 1)) - step * set.PenteCorde);
        At(set.RapportNerv, i) = Quotient(Wide(At(set.CumulNerv, i)), Wide(set.LongNerv));
    }
}

JeuDeNervures ComposeRibevol2(const JeuNervures &jeu, const Ribevol2 &set,
                              const std::array<ProfilJeu, 2> &profils, const std::string &dossier,
                              const Saisie &saisie) {
    JeuDeNervures files =
        JeuVide({set.CordeMaxAfich, set.CordeMinAfich},
                {jeu.CordeNerv[0], jeu.CordeNerv[kNervureMin]}, profils, dossier, saisie.Unite);
    for (int i = 1; i <= jeu.NbNervInter; ++i) {
        files.nervures.insert(
            files.nervures.end() - 1,
            {CordeNervure(At(jeu.CordeNerv, i), saisie.Unite), At(set.RapportNerv, i)});
    }
    files.resume = Resume(jeu, files, saisie).Lignes(set.NervCourante);
    return files;
}

std::string ResultatRibevol2(const JeuDeNervures &jeu, const Messages &messages) {
    return ResultatComplet(jeu, " ", messages);
}

} // namespace loftwing
