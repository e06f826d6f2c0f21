#include "programme/panel_sheets.h"

#include "base/number_text.h"
#include "programme/cut_steps.h"
#include "programme/longueur_lue.h"
#include "programme/reglage_retenu.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr const char *kSection = "Sheets";
constexpr const char *kCleUnite = "Unit";

/// Small and large x, and the multiplication sign.
std::string AvecX(std::string text) {
    constexpr std::string_view kFois = "\u00D7";
    for (std::size_t at = 0; (at = text.find(kFois)) != std::string::npos;) {
        text.replace(at, kFois.size(), "x");
    }
    std::replace(text.begin(), text.end(), 'X', 'x');
    return text;
}

/// Sizes with blanks between, some perhaps with blanks around their x.
std::vector<std::string> FormatsDe(const std::string &typed) {
    std::vector<std::string> sizes;
    bool open = false; // the last one still wants its second side
    for (const std::string &word : ListeLue(AvecX(typed))) {
        if (!sizes.empty() && (open || word.starts_with('x'))) {
            sizes.back() += word;
        } else {
            sizes.push_back(word);
        }
        open = sizes.back().ends_with('x');
    }
    return sizes;
}

class Lecture {
  public:
    Lecture(const SaisiePlanches &typed, const Messages &messages, const std::string &Unite)
        : typed_(typed), messages_(messages), saisie_{Unite, messages} {}

    std::variant<VoeuPlanches, RefusSaisie> Lit();

  private:
    const SaisiePlanches &typed_;
    const Messages &messages_;
    Saisie saisie_;

    std::optional<FormatPlanche> Format(const std::string &word) const;
    std::string Exemple() const;
    std::string Formats(std::vector<FormatPlanche> &formats) const;
    std::string Longueur(const std::string &text, double most, double &mm) const;
    std::string Copies(VoeuPlanches &voeu) const;
};

std::optional<FormatPlanche> Lecture::Format(const std::string &word) const {
    const auto sides = CotesDe(word);
    const auto width = sides ? LongueurLue((*sides)[0], saisie_) : std::nullopt;
    const auto height = sides ? LongueurLue((*sides)[1], saisie_) : std::nullopt;
    const FormatPlanche format{width.value_or(0), height.value_or(0)};
    return EstFormat(format) ? std::optional(format) : std::nullopt;
}

/// How sizes are written, by a board of the trade in the unit in force.
std::string Lecture::Exemple() const {
    constexpr std::string_view kMetrique = "100x1000";
    std::string words = messages_.Text({"Panel", "178"});
    const std::size_t at = words.find(kMetrique);
    if (saisie_.Unite == kUniteIn && at != std::string::npos) {
        words.replace(at, kMetrique.size(), "4x36");
    }
    return words;
}

std::string Lecture::Formats(std::vector<FormatPlanche> &formats) const {
    for (const std::string &word : FormatsDe(typed_.formats)) {
        const auto format = Format(word);
        if (!format) {
            formats.clear();
            break;
        }
        formats.push_back(*format);
    }
    return formats.empty()
               ? Exemple() + " " + DepuisMm(kPlancheMaxi, saisie_.Unite) + saisie_.Unite + "."
               : "";
}

/// An empty text is 0.
std::string Lecture::Longueur(const std::string &text, double most, double &mm) const {
    const auto read = text.empty() ? std::optional(0.0) : LongueurLue(text, saisie_);
    mm = read.value_or(0);
    return read && mm <= most ? ""
                              : messages_.Text({"Panel", "179"}) + " " +
                                    DepuisMm(most, saisie_.Unite) + saisie_.Unite + ".";
}

std::string Lecture::Copies(VoeuPlanches &voeu) const {
    const int wings = typed_.deux_ailes ? 2 : 1;
    const auto copies = NombreLu(typed_.copies, kCopiesMaxi / wings);
    voeu.copies = copies.value_or(1) * wings;
    voeu.opposees = typed_.deux_ailes;
    return copies
               ? ""
               : messages_.Text({"Panel", "180"}) + " " + std::to_string(kCopiesMaxi / wings) + ".";
}

std::variant<VoeuPlanches, RefusSaisie> Lecture::Lit() {
    VoeuPlanches voeu;
    ReglageImbrication &reglage = voeu.reglage;
    reglage.demi_tour = typed_.demi_tour;
    DemandePiece &piece = voeu.piece;
    piece.reference = piece.stations = piece.axes = typed_.marques;
    piece.etiquette = piece.talon = typed_.marques;
    const std::array<std::pair<ChampPlanches, std::string>, 5> faults = {
        {{ChampPlanches::formats, Formats(reglage.formats)},
         {ChampPlanches::ecart, Longueur(typed_.ecart, kEcartMaxi, reglage.ecart)},
         {ChampPlanches::marge, Longueur(typed_.marge, kEcartMaxi, reglage.marge)},
         {ChampPlanches::copies, Copies(voeu)},
         {ChampPlanches::saignee, Longueur(typed_.saignee, kSaigneeMaxi, piece.saignee)}}};
    for (const auto &[champ, texte] : faults) {
        if (!texte.empty()) {
            return RefusSaisie{champ, texte};
        }
    }
    return voeu;
}

} // namespace

std::optional<std::array<std::string, 2>> CotesDe(const std::string &format) {
    const std::string text = AvecX(format);
    const std::size_t at = text.find('x');
    if (at == std::string::npos || text.find('x', at + 1) != std::string::npos) {
        return std::nullopt;
    }
    return std::array<std::string, 2>{std::string(Trim(text.substr(0, at))),
                                      std::string(Trim(text.substr(at + 1)))};
}

std::variant<VoeuPlanches, RefusSaisie> VoeuDe(const SaisiePlanches &typed,
                                               const Messages &messages, const std::string &Unite) {
    return Lecture(typed, messages, Unite).Lit();
}

SaisiePlanches PlanchesRetenues(const Programme &programme) {
    const std::string &Unite = programme.settings.Unite;
    const IniFile file = ReglagesRetenus(programme);
    const SaisiePlanches usual = PlanchesUsuelles(Unite);
    return file.Value(kSection, kCleUnite) == Trim(Unite) ? LitPlanches(file, usual) : usual;
}

void RetientPlanches(const Programme &programme, const SaisiePlanches &choix) {
    RetientReglages(programme, [&](IniFile &file) {
        PosePlanches(file, choix);
        file.SetValue(kSection, kCleUnite, Trim(programme.settings.Unite));
    });
}

std::variant<std::vector<PieceNommee>, RefusPlanche> PiecesALaPlanche(const PanneauFait &fait,
                                                                      int copies, bool opposees) {
    std::size_t count = 0;
    for (const NervureFaite &nervure : fait.nervures) {
        count += nervure.pieces.size();
    }
    if (count * static_cast<std::size_t>(copies) > kPiecesMaxi) {
        return RefusPlanche{RefusDePlanche::trop_de_pieces};
    }
    return PiecesDuPanneau(fait, copies, opposees);
}

} // namespace loftwing
