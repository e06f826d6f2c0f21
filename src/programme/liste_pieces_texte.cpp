// The list of parts as text and as CSV.

#include "base/text_encoding.h"
#include "programme/liste_pieces.h"

#include <algorithm>
#include <string_view>

namespace loftwing {

namespace {

constexpr const char *kEntreColonnes = "  ";

/// A user's name may hold anything, and a line of text is one line.
std::string SurUneLigne(std::string text) {
    constexpr unsigned char kDernierControle = 0x1F;
    constexpr char kEfface = 0x7F;
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return static_cast<unsigned char>(c) <= kDernierControle || c == kEfface; },
        ' ');
    return text;
}

std::string Cale(const std::string &cell, std::size_t width, bool droite) {
    const std::size_t count = CharacterCount(cell);
    const std::string blanks(width > count ? width - count : 0, ' ');
    return droite ? blanks + cell : cell + blanks;
}

class TableauTexte {
  public:
    explicit TableauTexte(const TableauPieces &table) : table_(table) {
        Mesure(table.colonnes);
        for (const auto &row : table.rangees) {
            Mesure(row);
        }
    }

    std::string Texte() const {
        std::string rule;
        for (const std::size_t width : widths_) {
            rule += (rule.empty() ? "" : kEntreColonnes) + std::string(width, '-');
        }
        std::string text = SurUneLigne(table_.titre) + '\n' + Ligne(table_.colonnes) + rule + '\n';
        for (std::size_t i = 0; i < table_.rangees.size(); ++i) {
            const bool first_sum =
                table_.sommes > 0 && i > 0 && i + table_.sommes == table_.rangees.size();
            text += (first_sum ? rule + '\n' : "") + Ligne(table_.rangees[i]);
        }
        return text;
    }

  private:
    const TableauPieces &table_;
    std::vector<std::size_t> widths_;

    void Mesure(const std::vector<std::string> &cells) {
        widths_.resize(std::max(widths_.size(), cells.size()));
        for (std::size_t i = 0; i < cells.size(); ++i) {
            widths_[i] = std::max(widths_[i], CharacterCount(cells[i]));
        }
    }
    std::string Ligne(const std::vector<std::string> &cells) const {
        std::string line;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool droite = i < table_.nombre.size() && table_.nombre[i];
            line +=
                (i == 0 ? "" : kEntreColonnes) + Cale(SurUneLigne(cells[i]), widths_[i], droite);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line + '\n';
    }
};

/// Digits with a point among them and a sign in front, and nothing else.
bool EstNombre(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return text.find_first_not_of("0123456789.") == std::string_view::npos &&
           text.find_first_of("0123456789") != std::string_view::npos &&
           std::count(text.begin(), text.end(), '.') <= 1;
}

/// A spreadsheet runs what begins like a formula, and the tabs and line ends before it are skipped.
std::string SansFormule(const std::string &text) {
    constexpr std::string_view kDebuts = "=+-@\t\r\n";
    const bool formula =
        !text.empty() && kDebuts.find(text.front()) != std::string_view::npos && !EstNombre(text);
    return formula ? "'" + text : text;
}

std::string ChampCsv(const std::string &text) {
    std::string safe = SansFormule(text);
    if (safe.find_first_of(",\"\r\n") == std::string::npos) {
        return safe;
    }
    std::string quoted = "\"";
    for (const char c : safe) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + '"';
}

std::string LigneCsv(const std::string &titre, const std::vector<std::string> &cells,
                     std::size_t width) {
    std::string line = ChampCsv(titre);
    for (std::size_t i = 0; i < width; ++i) {
        line += ',' + (i < cells.size() ? ChampCsv(cells[i]) : "");
    }
    return line + "\r\n";
}

} // namespace

std::string ListeEnTexte(const std::string &titre, const std::vector<TableauPieces> &tables) {
    std::string text = titre.empty() ? "" : SurUneLigne(titre) + '\n';
    for (const TableauPieces &table : tables) {
        text += (text.empty() ? "" : "\n") + TableauTexte(table).Texte();
    }
    return text;
}

std::string ListeEnCsv(const std::vector<TableauPieces> &tables) {
    std::size_t width = 0;
    for (const TableauPieces &table : tables) {
        width = std::max(width, table.colonnes.size());
    }
    std::string text;
    for (const TableauPieces &table : tables) {
        text += LigneCsv(table.titre, table.colonnes, width);
        for (const auto &row : table.rangees) {
            text += LigneCsv(table.titre, row, width);
        }
    }
    return text;
}

} // namespace loftwing
