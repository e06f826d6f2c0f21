#include "programme/panel_typed.h"

#include "programme/longueur_lue.h"
#include "utilities/tool_files.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace loftwing {

namespace {

constexpr int kNervuresEcrites = 9999; // what is too many for a set is told by its number
constexpr double kKgM3ParLbFt3 = 16.01846337396014;

/// A text without the minus that it may begin with. One that is nothing else stays, and is none.
std::pair<bool, std::string> SansMoins(const std::string &text) {
    const bool minus = text.size() > 1 && text.starts_with('-');
    return {minus, text.substr(minus ? 1 : 0)};
}

/// A plain number of at most `most`, 0 for the empty text; a comma is its point.
std::optional<double> Nombre(std::string text, double most) {
    if (text.empty()) {
        return 0;
    }
    std::replace(text.begin(), text.end(), ',', '.');
    double number = 0;
    const char *const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    const bool whole = read.ec == std::errc() && read.ptr == end && std::isfinite(number);
    return whole && number >= 0 && number <= most ? std::optional(number) : std::nullopt;
}

/// A length of at most `most` mm, 0 for the empty text.
std::optional<double> Longueur(const std::string &text, double most, const Saisie &saisie) {
    const auto mm = text.empty() ? std::optional(0.0) : LongueurLue(text, saisie);
    return mm && *mm <= most ? mm : std::nullopt;
}

} // namespace

std::optional<std::string> TexteIllisible(const FichierPanneau &fichier, const Saisie &saisie) {
    std::vector<std::string> lengths = fichier.epaisseurs;
    lengths.insert(lengths.end(), fichier.ecarts.begin(), fichier.ecarts.end());
    if (!fichier.longueur.empty()) {
        lengths.push_back(fichier.longueur);
    }
    const auto bad =
        std::find_if(lengths.begin(), lengths.end(),
                     [&saisie](const std::string &text) { return !LongueurLue(text, saisie); });
    if (bad != lengths.end()) {
        return *bad;
    }
    const bool counted = !fichier.ecarts.empty() || NombreLu(fichier.nombre, kNervuresEcrites);
    return counted ? std::nullopt : std::optional(fichier.nombre);
}

bool EcartsComplets(const FichierPanneau &fichier) {
    const std::size_t thick = fichier.epaisseurs.size();
    return fichier.ecarts.empty()
               ? thick <= 1
               : fichier.ecarts.size() >= 2 && thick == fichier.ecarts.size() + 1;
}

SaisieJeu JeuDe(const FichierPanneau &fichier, const std::string &dossier) {
    SaisieJeu typed{{}, fichier.nombre, fichier.ecarts, fichier.epaisseurs, dossier};
    TermineDossier(typed.dossier);
    return typed;
}

std::variant<ReglageAile, RefusReglage> ReglageDe(const FichierPanneau &fichier,
                                                  const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    ReglageAile made;
    const auto length = Longueur(fichier.longueur, kLongueurMaxi, saisie);
    if (!length) {
        return RefusReglage{ChampAile::longueur, messages.Text({"Panel", "124"})};
    }
    made.longueur = *length;
    const auto [forward, sweep] = SansMoins(fichier.recul);
    const auto back = Longueur(sweep, kReculMaxi, saisie);
    if (!back) {
        return RefusReglage{ChampAile::recul, messages.Text({"Plan", "2"})};
    }
    made.recul = forward ? -*back : *back;
    const auto [down, dihedral] = SansMoins(fichier.diedre);
    const auto angle = Nombre(dihedral, kDiedreMaxi);
    if (!angle) {
        return RefusReglage{ChampAile::diedre, messages.Text({"Plan", "3"})};
    }
    made.diedre = down ? -*angle : *angle;
    const double per = saisie.Unite == kUniteIn ? kKgM3ParLbFt3 : 1;
    const auto density = Nombre(fichier.densite, kDensiteMaxi / per);
    if (!density) {
        return RefusReglage{ChampAile::densite, messages.Text({"Plan", "4"})};
    }
    made.densite = *density * per;
    return made;
}

std::string TexteRefusAile(const Messages &messages, RefusAile refus) {
    return messages.Text(refus == RefusAile::sans_longueur ? LngKey{"Plan", "1"}
                                                           : LngKey{"Panel", "130"});
}

} // namespace loftwing
