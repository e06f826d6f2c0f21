// What was typed into the panel's window, and the panel that it makes.

#include "mainwindow/frmpanneau.h"

#include "programme/longueur_lue.h"
#include "programme/panel_words.h"
#include "utilities/tool_files.h"

#include <optional>

namespace loftwing {

namespace {

/// Ribs counted from 1 out of the numbers that labels have. An empty text is the end of the panel.
std::optional<PorteePanneau> PorteeEntre(const std::array<std::string, 2> &typed, int premier,
                                         int nombre) {
    const auto from = typed[0].empty() ? premier : NombreLu(typed[0], kPremierMaxi);
    const auto to = typed[1].empty() ? premier + nombre - 1 : NombreLu(typed[1], kPremierMaxi);
    if (!from || !to) {
        return std::nullopt;
    }
    const PorteePanneau range{*from - premier + 1, *to - premier + 1};
    return range.Dans(nombre) ? std::optional(range) : std::nullopt;
}

} // namespace

void frmpanneau::Refuse(const QLabel &caption, QLineEdit &field, const std::string &why) {
    refus_.push_back({S(caption.text()) + ": " + why});
    if (fautif_ == nullptr) {
        fautif_ = &field;
    }
}

/// A length in mm, 0 for an empty field. Text that is none is refused without a box.
double frmpanneau::PrendLongueur(int champ) {
    const std::string typed = S(At(txt, champ).text());
    const auto mm =
        typed.empty() ? std::optional(0.0) : LongueurLue(typed, programme_.SaisieEnCours());
    if (!mm) {
        Refuse(At(Label2, champ), At(txt, champ), programme_.Text({"Panel", "124"}));
    }
    return mm.value_or(0);
}

void frmpanneau::PrendPremier() {
    const std::string typed = S(txt[kPremier].text());
    const auto number = typed.empty() ? 1 : NombreLu(typed, kPremierMaxi);
    if (number) {
        demande_.premier = *number;
    } else {
        Refuse(Label2[kPremier], txt[kPremier], programme_.Text({"Panel", "125"}));
    }
}

void frmpanneau::PrendRegulier() {
    panneau_.jeu.nombre = S(txt[kNombre].text());
    inter_ = NombreLu(panneau_.jeu.nombre, kPremierMaxi).value_or(0);
    const double thickness = PrendLongueur(kEpaisseur);
    longueur_ = PrendLongueur(kLongueur);
    if (longueur_ > 0 && (inter_ + 2) * thickness > longueur_) {
        avis_.push_back({programme_.Text({"Panel", "130"})});
    }
}

/// The lengths of a list, and their sum in mm.
std::vector<std::string> frmpanneau::PrendListe(int liste, double &somme) {
    QLineEdit &field = At(txtliste, liste);
    std::vector<std::string> words = ListeLue(S(field.text()));
    for (const std::string &word : words) {
        const auto mm = LongueurLue(word, programme_.SaisieEnCours());
        if (!mm || *mm <= 0) {
            Refuse(At(Label4, liste), field, programme_.Text({"Panel", "146"}) + " " + word);
            break;
        }
        somme += *mm;
    }
    return words;
}

void frmpanneau::PrendVariable() {
    SaisieJeu &jeu = panneau_.jeu;
    jeu.ecarts = PrendListe(0, longueur_);
    double thickness = 0;
    jeu.epaisseurs = PrendListe(1, thickness);
    const std::size_t ribs = jeu.ecarts.size() + 1;
    inter_ = static_cast<int>(ribs) - 2;
    if (jeu.ecarts.size() < 2) {
        Refuse(Label4[0], txtliste[0], programme_.Text({"Panel", "145"}));
    } else if (jeu.epaisseurs.size() == 1) {
        jeu.epaisseurs.resize(ribs, jeu.epaisseurs.front());
        thickness *= static_cast<double>(ribs);
    } else if (jeu.epaisseurs.size() != ribs) {
        Refuse(Label4[1], txtliste[1],
               programme_.Text({"Panel", "144"}) + " " + std::to_string(ribs));
    }
    longueur_ += thickness;
}

void frmpanneau::PrendChamps() {
    panneau_.jeu = {};
    panneau_.jeu.dossier = dossier_;
    TermineDossier(panneau_.jeu.dossier);
    longueur_ = 0;
    if (Variable()) {
        PrendVariable();
    } else {
        PrendRegulier();
    }
    PrendPremier();
    PrendPlace();
}

void frmpanneau::PrendPortees() {
    panneau_.portees.clear();
    const int nombre = inter_ + 2;
    for (const ElementPanneau &element : elements_) {
        const auto typed = portees_.find(element);
        if (inter_ < 1 || typed == portees_.end() || typed->second == PorteeTapee{}) {
            continue;
        }
        if (const auto range = PorteeEntre(typed->second, demande_.premier, nombre)) {
            panneau_.portees.emplace(element, *range);
        } else {
            refus_.push_back({programme_.Text({"Panel", "126"}) + " " +
                                  std::to_string(demande_.premier) + " - " +
                                  std::to_string(demande_.premier + nombre - 1) + ".",
                              0, element});
        }
    }
}

std::vector<std::string> frmpanneau::EnLignes(const std::vector<AvisPanneau> &all) const {
    std::vector<std::string> lines;
    lines.reserve(all.size());
    for (const AvisPanneau &each : all) {
        lines.push_back(LigneEnMots(programme_.messages, panneau_, each));
    }
    return lines;
}

/// Takes what is typed; whether the panel can be made of it.
bool frmpanneau::Compose() {
    fait_ = {};
    refus_.clear();
    avis_.clear();
    fautif_ = nullptr;
    tapes_ = false;
    PrendChamps();
    if (!choisis_[0] || !choisis_[1]) {
        refus_.insert(refus_.begin(), AvisPanneau{programme_.Text({"Panel", "123"})});
        return false;
    }
    panneau_.jeu.cordes = CordesDesBouts(panneau_, programme_.settings.Unite);
    MontreElements();
    PrendPortees();
    if (refus_.empty() && inter_ < 1) {
        fautif_ = &txt[kNombre]; // the set says why
    }
    tapes_ = refus_.empty();
    return tapes_;
}

} // namespace loftwing
