#include "programme/wing_steps.h"

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "programme/panel_typed.h"
#include "programme/panel_words.h"
#include "programme/plan_cotes.h"

#include <cmath>

namespace loftwing {

namespace {

class Assemblage {
  public:
    Assemblage(Programme &programme, const LecteurBout &lit) : programme_(programme), lit_(lit) {}

    AileFaite fait;

    void Ajoute(const std::string &path, std::optional<int> premier);

  private:
    Programme &programme_;
    const LecteurBout &lit_;

    std::string Mot(LngKey key) const { return programme_.Text(key); }
    /// Notes why a file is no panel of the wing.
    void Refuse(const std::string &path, const std::string &why) {
        fait.refus.push_back(ToUtf8(NameIn(path)) + ": " + why);
    }
    bool Lit(PanneauDeFichier &panel);
    bool LitBouts(PanneauDeFichier &panel);
    void Fait(PanneauDeFichier &panel, const ReglageAile &reglage, int premier);
};

/// Reads the file and looks at its texts.
bool Assemblage::Lit(PanneauDeFichier &panel) {
    const std::string &path = panel.chemin;
    try {
        panel.fichier = LitPanneau(path);
    } catch (const Failure &failure) {
        Refuse(path, failure.number == kFileNotFound
                         ? programme_.messages.Description(failure)
                         : Mot({"Panel", "184"}) + " " + failure.detail);
        return false;
    }
    if (" " + panel.fichier.unite != programme_.settings.Unite) {
        Refuse(path, Mot({"Panel", "182"}) + " " + panel.fichier.unite);
        return false;
    }
    if (const auto bad = TexteIllisible(panel.fichier, programme_.SaisieEnCours())) {
        Refuse(path, Mot({"Panel", "184"}) + " " + *bad);
        return false;
    }
    if (!EcartsComplets(panel.fichier)) {
        Refuse(path, Mot({"Panel", "144"}) + " " + std::to_string(panel.fichier.ecarts.size() + 1));
        return false;
    }
    return true;
}

bool Assemblage::LitBouts(PanneauDeFichier &panel) {
    for (const std::size_t end : {0U, 1U}) {
        auto bout = lit_(panel.fichier.bouts[end]);
        if (!bout) {
            Refuse(panel.chemin, Mot({"Plan", "35"}) + " " + ToUtf8(panel.fichier.bouts[end]));
            fait.dit = true;
            return false;
        }
        panel.panneau.bouts[end] = std::move(*bout);
    }
    return true;
}

void Assemblage::Fait(PanneauDeFichier &panel, const ReglageAile &reglage, int premier) {
    const Messages &messages = programme_.messages;
    panel.panneau.portees = panel.fichier.portees;
    panel.panneau.jeu = JeuDe(panel.fichier, FolderOf(panel.chemin));
    panel.panneau.jeu.cordes = CordesDesBouts(panel.panneau, programme_.settings.Unite);
    DemandePanneau demande;
    demande.premier = premier;
    panel.fait = FaitPanneau(programme_, panel.panneau, demande);
    const std::string name = ToUtf8(NameIn(panel.chemin)) + ": ";
    for (const AvisPanneau &each : panel.fait.refus) {
        fait.refus.push_back(name + LigneEnMots(messages, panel.panneau, each));
    }
    for (const AvisPanneau &each : panel.fait.avis) {
        fait.avis.push_back(name + LigneEnMots(messages, panel.panneau, each));
    }
    if (!panel.fait.refus.empty()) {
        return;
    }
    const auto refused = AjoutePanneau(
        fait.aile, {ToUtf8(StemOf(panel.chemin)), panel.panneau, panel.fait, premier, reglage},
        programme_.SaisieEnCours());
    if (refused) {
        Refuse(panel.chemin, TexteRefusAile(messages, *refused));
        return;
    }
    if (const auto joint = AvisDuJoint(fait.aile, messages, programme_.settings.Unite)) {
        fait.avis.push_back(name + *joint);
    }
}

void Assemblage::Ajoute(const std::string &path, std::optional<int> premier) {
    PanneauDeFichier &panel = fait.panneaux.emplace_back();
    panel.chemin = path;
    if (!Lit(panel) || !LitBouts(panel)) {
        return;
    }
    const auto place = ReglageDe(panel.fichier, programme_.SaisieEnCours());
    if (const auto *refused = std::get_if<RefusReglage>(&place)) {
        Refuse(path, refused->texte);
        return;
    }
    try {
        Fait(panel, std::get<ReglageAile>(place), premier.value_or(panel.fichier.premier));
    } catch (const Failure &failure) {
        Refuse(path, programme_.messages.Description(failure));
    }
}

} // namespace

std::optional<std::string> AvisDuJoint(const Aile &aile, const Messages &messages,
                                       const std::string &Unite) {
    constexpr double kEgal = 0.05; // mm
    const std::size_t count = aile.panneaux.size();
    if (count < 2) {
        return std::nullopt;
    }
    const double tip = aile.panneaux[count - 2].nervures.back().corde;
    const double root = aile.panneaux[count - 1].nervures.front().corde;
    if (std::abs(tip - root) <= kEgal) {
        return std::nullopt;
    }
    return messages.Text({"Plan", "34"}) + " " + LongueurPlan(root, Unite) + " / " +
           LongueurPlan(tip, Unite) + Unite;
}

AileFaite FaitAile(Programme &programme, const std::vector<std::string> &fichiers,
                   std::optional<int> premier, const LecteurBout &lit) {
    Assemblage work(programme, lit);
    for (const std::string &path : fichiers) {
        const bool first = work.fait.aile.panneaux.empty();
        work.Ajoute(path, first ? premier : std::optional(NumeroSuivant(work.fait.aile)));
    }
    return std::move(work.fait);
}

} // namespace loftwing
