// The tables of the list of parts.

#include "programme/liste_pieces.h"

#include "base/number_text.h"
#include "core/units.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace loftwing {

namespace {

constexpr const char *kRond = "\u00D8 "; // every face has it, unlike the sign for diameters

/// Numbers in the user's unit, without it.
class Mesures {
  public:
    explicit Mesures(const std::string &Unite) : Unite_(Unite), mm_(Unite != kUniteIn) {}

    std::string Longueur() const { return mm_ ? "mm" : "in"; }
    std::string Aire() const { return mm_ ? "cm\u00B2" : "in\u00B2"; }
    std::string Poids() const { return mm_ ? "g" : "oz"; }

    /// A place or a measure of a rib.
    std::string Place(double mm) const { return mm_ ? Format(mm, "0.00") : Pouces(mm); }
    /// What is cut to length.
    std::string Coupe(double mm) const { return mm_ ? Format(mm, "0.0") : Pouces(mm); }
    std::string Aire(double mm2) const {
        return mm_ ? Format(mm2 / 100, "0.0") : Format(mm2 / (kMmParPouce * kMmParPouce), "0.00");
    }
    std::string Poids(double g) const {
        constexpr double kGrammesParOnce = 28.349523125;
        return mm_ ? Format(g, "0.0") : Format(g / kGrammesParOnce, "0.00");
    }
    /// What is bought by its size: as the user would type it. To 32 bits, as what he typed is kept.
    std::string Taille(double mm) const {
        constexpr double kParts = 100;
        return mm_ ? NumberText(std::round(mm * kParts) / kParts) : DepuisMm(ToSingle(mm), Unite_);
    }
    /// The two sides of a rectangle that is cut, without needless zeros.
    std::string Cotes(double one, double other) const { return Cote(one) + " x " + Cote(other); }

  private:
    static constexpr double kMmParPouce = 25.4;
    std::string Unite_;
    bool mm_;

    static std::string Pouces(double mm) { return Format(mm / kMmParPouce, "0.000"); }
    std::string Cote(double mm) const {
        const double parts = mm_ ? 10 : 1000;
        return NumberText(std::round((mm_ ? mm : mm / kMmParPouce) * parts) / parts);
    }
};

/// What was added up under one name, names in the order in which they came.
using Cumul = std::vector<std::pair<std::string, double>>;

void Ajoute(Cumul &cumul, const std::string &nom, double value) {
    const auto at = std::find_if(cumul.begin(), cumul.end(),
                                 [&](const auto &entry) { return entry.first == nom; });
    if (at == cumul.end()) {
        cumul.emplace_back(nom, value);
    } else {
        at->second += value;
    }
}

/// In g; nothing for a rib without a thickness or wood without a density.
std::optional<double> Poids(const NervureAile &nervure, double densite) {
    constexpr double kKgParM3 = 1e-6; // as g a mm3
    return nervure.epaisseur > 0 && densite > 0
               ? std::optional(nervure.aire * nervure.epaisseur * densite * kKgParM3)
               : std::nullopt;
}

/// Area and weight of the ribs of a wing or of a panel.
struct Bois {
    std::size_t nervures = 0;
    double aire = 0;
    std::optional<double> poids = 0.0; ///< none where one rib's isn't known

    void Ajoute(const NervureAile &nervure, double densite) {
        const auto g = loftwing::Poids(nervure, densite);
        ++nervures;
        aire += nervure.aire;
        poids = poids && g ? std::optional(*poids + *g) : std::nullopt;
    }
};

class Liste {
  public:
    Liste(const Messages &messages, const std::string &Unite) : messages_(messages), en_(Unite) {}

    void Panneau(const PanneauAile &panneau, const std::string &devant);
    void Planches(const FeuillesPieces &feuilles);
    void Totaux();

    std::vector<TableauPieces> tables;

  private:
    const Messages &messages_;
    Mesures en_;
    Bois bois_;
    Cumul batons_;
    Cumul coffrages_;

    std::string Mot(LngKey key) const { return messages_.Text(key); }
    std::string Titre(LngKey key, const std::string &unit) const {
        return Mot(key) + " (" + unit + ")";
    }
    std::string Surface(bool dessus) const {
        return dessus ? Mot({"Panel", "11"}) : Mot({"Panel", "12"});
    }
    void Nervures(const PanneauAile &panneau, const std::string &devant);
    void Batons(const PanneauAile &panneau, const std::string &devant);
    void Coffrages(const PanneauAile &panneau, const std::string &devant);
    std::string NomDe(const BatonAile &baton) const;
    std::string SectionA(const BatonAile &baton, const CoupeBaton &coupe) const;
    std::string Section(const BatonAile &baton) const;
    std::string Ailes(int count) const;
};

void Liste::Panneau(const PanneauAile &panneau, const std::string &devant) {
    if (!panneau.nervures.empty()) {
        Nervures(panneau, devant);
    }
    if (!panneau.batons.empty()) {
        Batons(panneau, devant);
    }
    if (!panneau.coffrages.empty()) {
        Coffrages(panneau, devant);
    }
}

void Liste::Nervures(const PanneauAile &panneau, const std::string &devant) {
    const double densite = panneau.reglage.densite;
    TableauPieces table{devant + Mot({"FrmRibevol", "6"}),
                        {Mot({"FrmNervure", "9"}), Titre({"FrmRibevol2", "13"}, en_.Longueur()),
                         Titre({"FrmRibevol", "5"}, en_.Longueur()),
                         Titre({"Plan", "205"}, en_.Longueur()),
                         Titre({"Plan", "224"}, en_.Aire())},
                        {},
                        std::vector<bool>(5, true),
                        1};
    const bool weighed = std::any_of(
        panneau.nervures.begin(), panneau.nervures.end(),
        [&](const NervureAile &nervure) { return Poids(nervure, densite).has_value(); });
    if (weighed) {
        table.colonnes.push_back(Titre({"Plan", "206"}, en_.Poids()));
        table.nombre.push_back(true);
    }
    Bois sum;
    const auto add = [&](std::vector<std::string> row, const std::optional<double> &g) {
        if (weighed) {
            row.push_back(g ? en_.Poids(*g) : "");
        }
        table.rangees.push_back(std::move(row));
    };
    for (const NervureAile &nervure : panneau.nervures) {
        add({std::to_string(nervure.numero), en_.Place(nervure.x - panneau.x),
             en_.Place(nervure.corde),
             nervure.epaisseur > 0 ? en_.Place(nervure.epaisseur) : std::string(),
             en_.Aire(nervure.aire)},
            Poids(nervure, densite));
        sum.Ajoute(nervure, densite);
        bois_.Ajoute(nervure, densite);
    }
    add({Mot({"Plan", "207"}), "", "", "", en_.Aire(sum.aire)}, sum.poids);
    tables.push_back(std::move(table));
}

std::string Liste::NomDe(const BatonAile &baton) const {
    switch (baton.genre) {
    case GenreBaton::longeron:
        return Mot({"Panel", "9"}) + " " + std::to_string(baton.numero) + ", " +
               Surface(baton.dessus);
    case GenreBaton::carre:
        return Mot({"Panel", "118"});
    case GenreBaton::ba:
        return Mot({"Panel", "116"});
    case GenreBaton::bf:
        break;
    }
    return Mot({"Panel", "117"});
}

std::string Liste::SectionA(const BatonAile &baton, const CoupeBaton &coupe) const {
    return baton.rond ? kRond + en_.Taille(coupe.largeur)
                      : en_.Taille(coupe.largeur) + " x " + en_.Taille(coupe.hauteur);
}

/// Of a stick that tapers: both ends. One whose taper can't be read has one section.
std::string Liste::Section(const BatonAile &baton) const {
    const std::string root = SectionA(baton, baton.coupes[0]);
    const std::string tip = SectionA(baton, baton.coupes[1]);
    return root == tip ? root : root + " ... " + tip;
}

void Liste::Batons(const PanneauAile &panneau, const std::string &devant) {
    TableauPieces table{devant + Mot({"Plan", "202"}),
                        {Mot({"Panel", "113"}), Mot({"Panel", "114"}), Mot({"Panel", "115"}),
                         Titre({"Plan", "208"}, en_.Longueur()),
                         Titre({"Plan", "209"}, en_.Longueur()), Mot({"Plan", "210"})},
                        {},
                        {false, true, true, true, false, true}};
    for (const BatonAile &baton : panneau.batons) {
        const std::string section = Section(baton);
        table.rangees.push_back({NomDe(baton), std::to_string(baton.de), std::to_string(baton.a),
                                 en_.Coupe(baton.Longueur()), section, "1"});
        Ajoute(batons_, section, baton.Longueur());
    }
    tables.push_back(std::move(table));
}

void Liste::Coffrages(const PanneauAile &panneau, const std::string &devant) {
    TableauPieces table{devant + Mot({"FrmLines", "6"}),
                        {Mot({"Plan", "211"}), Titre({"Plan", "205"}, en_.Longueur()),
                         Titre({"Plan", "212"}, en_.Aire()), Titre({"Plan", "213"}, en_.Longueur()),
                         Titre({"Plan", "214"}, en_.Longueur())},
                        {},
                        {false, true, true, false, true}};
    for (const CoffrageAile &coffrage : panneau.coffrages) {
        table.rangees.push_back({Surface(coffrage.dessus), en_.Taille(coffrage.epaisseur),
                                 en_.Aire(coffrage.aire),
                                 en_.Cotes(coffrage.rectangle[0], coffrage.rectangle[1]),
                                 en_.Coupe(coffrage.arc_maxi)});
        Ajoute(coffrages_, en_.Taille(coffrage.epaisseur), coffrage.aire);
    }
    tables.push_back(std::move(table));
}

std::string Liste::Ailes(int count) const {
    switch (count) {
    case 1:
        return Mot({"Plan", "218"});
    case 2:
        return Mot({"Panel", "161"});
    default:
        return std::to_string(count) + " " + Mot({"Plan", "219"});
    }
}

void Liste::Planches(const FeuillesPieces &feuilles) {
    constexpr const char *kTaux = "0.0";
    TableauPieces table{Mot({"Plan", "203"}) + ": " + Ailes(feuilles.ailes),
                        {Mot({"Panel", "168"}), Titre({"Plan", "215"}, en_.Longueur()),
                         Mot({"Plan", "216"}), Mot({"Plan", "217"}) + " (%)"},
                        {},
                        {true, false, true, true},
                        1};
    std::size_t pieces = 0;
    double wood = 0;
    double stock = 0;
    for (const Planche &planche : feuilles.planches) {
        table.rangees.push_back(
            {std::to_string(table.rangees.size() + 1),
             en_.Taille(planche.format.largeur) + " x " + en_.Taille(planche.format.hauteur),
             std::to_string(planche.pieces.size()), Format(planche.Taux(), kTaux)});
        pieces += planche.pieces.size();
        wood += planche.aire;
        stock += planche.longueur * planche.format.Travers();
    }
    constexpr double kPercent = 100;
    table.rangees.push_back({Mot({"Plan", "207"}), "", std::to_string(pieces),
                             Format(stock > 0 ? kPercent * wood / stock : 0, kTaux)});
    tables.push_back(std::move(table));
}

void Liste::Totaux() {
    TableauPieces table{
        Mot({"Plan", "204"}),
        {Mot({"Panel", "113"}), Mot({"Plan", "220"}), Mot({"Plan", "218"}), Mot({"Panel", "161"})},
        {},
        {false, false, true, true}};
    const auto add = [&](const std::string &what, const std::string &unit, double value,
                         auto &&text) {
        table.rangees.push_back({what, unit, text(value), text(2 * value)});
    };
    const auto length = [&](double mm) { return en_.Coupe(mm); };
    const auto area = [&](double mm2) { return en_.Aire(mm2); };
    const auto in_unit = [&](std::string what, const std::string &size) {
        return what.append(" ").append(size).append(" ").append(en_.Longueur());
    };
    add(Mot({"Plan", "221"}), "", static_cast<double>(bois_.nervures),
        [](double count) { return Format(count, "0"); });
    add(Mot({"Plan", "222"}), en_.Aire(), bois_.aire, area);
    if (bois_.nervures > 0 && bois_.poids) {
        add(Mot({"Plan", "223"}), en_.Poids(), *bois_.poids,
            [&](double g) { return en_.Poids(g); });
    }
    for (const auto &[section, mm] : batons_) {
        add(in_unit(Mot({"Plan", "202"}), section), en_.Longueur(), mm, length);
    }
    for (const auto &[thickness, mm2] : coffrages_) {
        add(in_unit(Mot({"FrmLines", "6"}), thickness), en_.Aire(), mm2, area);
    }
    tables.push_back(std::move(table));
}

} // namespace

std::string TitreDeListe(const Aile &aile, const Messages &messages) {
    return messages.Text({"Plan", "109"}) + ": " + aile.nom;
}

std::vector<TableauPieces> ListeDesPieces(const Aile &aile, const FeuillesPieces &feuilles,
                                          const Messages &messages, const std::string &Unite) {
    Liste liste(messages, Unite);
    const bool several = aile.panneaux.size() > 1;
    for (std::size_t i = 0; i < aile.panneaux.size(); ++i) {
        const PanneauAile &panneau = aile.panneaux[i];
        const std::string name = panneau.nom.empty() ? "" : ": " + panneau.nom;
        liste.Panneau(panneau, several ? messages.Text({"Plan", "13"}) + " " +
                                             std::to_string(i + 1) + name + " - "
                                       : "");
    }
    if (!feuilles.planches.empty()) {
        liste.Planches(feuilles);
    }
    liste.Totaux();
    return std::move(liste.tables);
}

} // namespace loftwing
