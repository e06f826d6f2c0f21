// What was typed into the panel's window, and the panel that it makes.

#include "mainwindow/frmpanneau.h"

#include "programme/panel_words.h"
#include "utilities/tool_files.h"

#include <optional>

namespace loftwing {

namespace {

/// A whole number of up to four digits; nothing for anything else.
std::optional<int> EntierDe(const std::string &text) {
    constexpr std::size_t kDigits = 4;
    if (text.empty() || text.size() > kDigits ||
        text.find_first_not_of(kTouchesEntier) != std::string::npos) {
        return std::nullopt;
    }
    return std::stoi(text);
}

/// Ribs counted from 1 out of the numbers that labels have. An empty text is the end of the panel.
std::optional<PorteePanneau> PorteeEntre(const std::array<std::string, 2> &typed, int premier,
                                         int nombre) {
    const auto from = typed[0].empty() ? premier : EntierDe(typed[0]);
    const auto to = typed[1].empty() ? premier + nombre - 1 : EntierDe(typed[1]);
    if (!from || !to) {
        return std::nullopt;
    }
    const PorteePanneau range{*from - premier + 1, *to - premier + 1};
    return range.Dans(nombre) ? std::optional(range) : std::nullopt;
}

} // namespace

void frmpanneau::Refuse(int champ, const std::string &why) {
    refus_.push_back(S(At(Label2, champ).text()) + ": " + why);
    if (fautif_ == nullptr) {
        fautif_ = &At(txt, champ);
    }
}

/// A length in mm, 0 for an empty field. Text that is none is refused without a box.
double frmpanneau::PrendLongueur(int champ) {
    const std::string typed = S(At(txt, champ).text());
    const Saisie saisie = programme_.SaisieEnCours();
    try {
        if (!EstRefusee(typed, saisie.Unite)) {
            return typed.empty() ? 0 : NombreMm(typed, saisie);
        }
    } catch (const Failure &) {
        // A denominator of 0, or more than a number holds.
    }
    Refuse(champ, programme_.Text({"Panel", "124"}));
    return 0;
}

void frmpanneau::PrendPremier() {
    const std::string typed = S(txt[kPremier].text());
    const auto number = typed.empty() ? 1 : EntierDe(typed);
    if (number && *number >= 1 && *number <= kPremierMaxi) {
        demande_.premier = *number;
    } else {
        Refuse(kPremier, programme_.Text({"Panel", "125"}));
    }
}

void frmpanneau::PrendChamps() {
    panneau_.jeu.nombre = S(txt[kNombre].text());
    inter_ = EntierDe(panneau_.jeu.nombre).value_or(0);
    panneau_.jeu.dossier = dossier_;
    TermineDossier(panneau_.jeu.dossier);
    const double thickness = PrendLongueur(kEpaisseur);
    PrendPremier();
    longueur_ = PrendLongueur(kLongueur);
    if (longueur_ > 0 && (inter_ + 2) * thickness > longueur_) {
        avis_.push_back(programme_.Text({"Panel", "130"}));
    }
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
            refus_.push_back(MotElement(programme_.messages, panneau_, element) + ": " +
                             programme_.Text({"Panel", "126"}) + " " +
                             std::to_string(demande_.premier) + " - " +
                             std::to_string(demande_.premier + nombre - 1) + ".");
        }
    }
}

/// A refusal that names an element as files do, with the element's own words.
std::string frmpanneau::EnMots(std::string refusal) const {
    for (const ElementPanneau &element : elements_) {
        const std::string name = NomElement(element) + ": ";
        if (refusal.starts_with(name)) {
            return MotElement(programme_.messages, panneau_, element) + ": " +
                   refusal.substr(name.size());
        }
    }
    return refusal;
}

void frmpanneau::Compose() {
    fait_ = {};
    refus_.clear();
    avis_.clear();
    fautif_ = nullptr;
    PrendChamps();
    if (!choisis_[0] || !choisis_[1]) {
        refus_.insert(refus_.begin(), programme_.Text({"Panel", "123"}));
        return;
    }
    panneau_.jeu.cordes = CordesDesBouts(panneau_, programme_.settings.Unite);
    MontreElements();
    PrendPortees();
    if (!refus_.empty()) {
        return;
    }
    fait_ = FaitPanneau(programme_, panneau_, demande_);
    for (const std::string &line : fait_.refus) {
        refus_.push_back(EnMots(line));
    }
    if (inter_ < 1) {
        fautif_ = &txt[kNombre];
    }
    avis_.insert(avis_.end(), fait_.avis.begin(), fait_.avis.end());
}

} // namespace loftwing
