// The list of parts on paper.

#include "base/text_encoding.h"
#include "output/kept_sheets.h"
#include "output/text_lines.h"
#include "programme/liste_pieces.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace loftwing {

namespace {

constexpr double kMarge = 15 * kUnitsPerMm;
constexpr double kEntreMini = 3 * kUnitsPerMm; // between two columns
constexpr double kEntreMaxi = 8 * kUnitsPerMm;
constexpr double kEtroite = 15 * kUnitsPerMm; // no column of words is made narrower without need
constexpr double kFilet = 0.8 * kUnitsPerMm;  // white on either side of a rule
constexpr double kAvantTableau = 6 * kUnitsPerMm;
constexpr double kRangee = 1.25;     // from row to row, in heights of a line
constexpr std::size_t kEnsemble = 8; // rows of a table that isn't parted
constexpr std::array<double, 3> kTailles = {9, 8, 7};
const TextFont kPolice;
const TextFont kTitre{kPolice.name, 14};
const TextFont kTitreTableau{kPolice.name, 11};
const TextFont kPied{kPolice.name, 8};

/// What A4 and Letter share: for a printer that doesn't tell its paper.
constexpr SheetSize kFeuilleCommune = {210, 279};

/// At most what a text takes. The table of widths has the plain alphabet only; capitals with
/// accents are wider than it says, and other scripts may be as wide as their size.
double PlaceDe(const std::string &text, const TextFont &font) {
    constexpr char32_t kLatin = 0x80;
    constexpr char32_t kAutres = 0x100;
    constexpr char32_t kLarges = 0x1100;
    double more = 0;
    for (const char32_t c : CodePoints(text)) {
        more += c >= kLarges ? 0.75 : c >= kAutres ? 0.5 : c >= kLatin ? 0.25 : 0;
    }
    return MeasuredAdvance(text, font) + more * font.size * kUnitsPerPoint;
}

/// As much of a text as has room, with dots where there was more.
std::string Raccourci(const std::string &text, const TextFont &font, double room) {
    constexpr double kArrondi = 1e-6;
    if (PlaceDe(text, font) <= room + kArrondi) {
        return text;
    }
    for (std::size_t count = CharacterCount(text); count > 0; --count) {
        std::string shorter = FirstCharacters(text, count - 1) + "...";
        if (PlaceDe(shorter, font) <= room) {
            return shorter;
        }
    }
    return {};
}

double Somme(const std::vector<double> &values) {
    return std::accumulate(values.begin(), values.end(), 0.0);
}

/// Takes `excess` off widths, of each by as much as it is above its least one. What can't be taken
/// is left.
void Retrecit(std::vector<double> &widths, const std::vector<double> &least, double excess) {
    const double slack = Somme(widths) - Somme(least);
    const double share = slack > 0 ? std::min(1.0, excess / slack) : 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        widths[i] -= share * (widths[i] - least[i]);
    }
}

/// A table with its columns laid out for the width of a sheet.
class TableauImprime {
  public:
    TableauImprime(const TableauPieces &table, double room);

    const TableauPieces &table;
    TextFont font = kPolice;
    double largeur = 0; ///< over all

    double Rangee() const { return kRangee * LineHeight(font); }
    /// Writes cells from the top of their row on.
    void Ecrit(PlotDevice &device, const std::vector<std::string> &cells, double y) const;

  private:
    std::vector<double> widths_;
    double entre_ = kEntreMini;

    bool Nombre(std::size_t column) const {
        return column < table.nombre.size() && table.nombre[column];
    }
    std::vector<double> Cellules() const;
    std::vector<double> Colonnes() const;
    void Tasse(double room);
};

TableauImprime::TableauImprime(const TableauPieces &one, double room) : table(one) {
    const double gaps = static_cast<double>(std::max<std::size_t>(one.colonnes.size(), 2) - 1);
    for (const double size : kTailles) {
        font.size = size;
        widths_ = Colonnes();
        if (Somme(widths_) + gaps * kEntreMini <= room) {
            break;
        }
    }
    Tasse(room - gaps * kEntreMini);
    entre_ = std::clamp((room - Somme(widths_)) / gaps, kEntreMini, kEntreMaxi);
    largeur = std::min(room, Somme(widths_) + gaps * entre_);
}

/// What the cells of each column take, headings left out.
std::vector<double> TableauImprime::Cellules() const {
    std::vector<double> widths(table.colonnes.size());
    for (const auto &row : table.rangees) {
        for (std::size_t i = 0; i < std::min(row.size(), widths.size()); ++i) {
            widths[i] = std::max(widths[i], PlaceDe(row[i], font));
        }
    }
    return widths;
}

std::vector<double> TableauImprime::Colonnes() const {
    std::vector<double> widths = Cellules();
    for (std::size_t i = 0; i < widths.size(); ++i) {
        widths[i] = std::max(widths[i], PlaceDe(table.colonnes[i], font));
    }
    return widths;
}

/// Makes columns narrower until they fit. Words are shortened first; numbers stay whole as long as
/// there is any other way.
void TableauImprime::Tasse(double room) {
    std::vector<double> least = Cellules();
    for (std::size_t i = 0; i < least.size(); ++i) {
        least[i] = Nombre(i) ? least[i] : std::min(widths_[i], kEtroite);
    }
    Retrecit(widths_, least, std::max(0.0, Somme(widths_) - room));
    const std::vector<double> none(widths_.size());
    Retrecit(widths_, none, std::max(0.0, Somme(widths_) - room));
}

void TableauImprime::Ecrit(PlotDevice &device, const std::vector<std::string> &cells,
                           double y) const {
    device.Font = font;
    double x = kMarge;
    for (std::size_t i = 0; i < std::min(cells.size(), widths_.size()); ++i) {
        const std::string text = Raccourci(cells[i], font, widths_[i]);
        device.CurrentX = Nombre(i) ? x + widths_[i] - MeasuredAdvance(text, font) : x;
        device.CurrentY = y;
        device.Print(text);
        x += widths_[i] + entre_;
    }
}

/// The sheets while they fill. They are kept, since each says how many there are.
class FeuillesListe {
  public:
    FeuillesListe(const SheetSize &size, const std::string &titre)
        : sheets_(size), titre_(titre), room_(size.width * kUnitsPerMm - 2 * kMarge),
          fin_(size.height * kUnitsPerMm - kMarge) {
        sheets_.NewPage();
        Titre(titre, kTitre, kMarge);
        y_ = kMarge + LineHeight(kTitre);
    }

    void Ajoute(const TableauPieces &table);
    void SendTo(Printer &printer);

  private:
    KeptSheets sheets_;
    const std::string &titre_;
    double room_;
    double fin_; ///< of what may be drawn on
    double y_ = 0;

    /// Where the table ends; below it stands the number of the sheet.
    double Bas() const { return fin_ - 2 * LineHeight(kPied); }
    void Titre(const std::string &text, const TextFont &font, double y);
    void Entete(const TableauImprime &table);
    void Regle(double width);
    void Pieds();
};

void FeuillesListe::Titre(const std::string &text, const TextFont &font, double y) {
    sheets_.Font = font;
    sheets_.CurrentX = kMarge;
    sheets_.CurrentY = y;
    sheets_.Print(Raccourci(text, font, room_));
}

void FeuillesListe::Regle(double width) {
    y_ += kFilet;
    sheets_.Line(kMarge, y_, kMarge + width, y_, PaletteColour(0));
    y_ += kFilet;
}

void FeuillesListe::Entete(const TableauImprime &table) {
    Titre(table.table.titre, kTitreTableau, y_);
    y_ += kRangee * LineHeight(kTitreTableau);
    table.Ecrit(sheets_, table.table.colonnes, y_);
    y_ += LineHeight(table.font);
    Regle(table.largeur);
}

void FeuillesListe::Ajoute(const TableauPieces &table) {
    const TableauImprime printed(table, room_);
    const double row = printed.Rangee() + 2 * kFilet; // with the rule over a sum
    const double heading =
        kRangee * LineHeight(kTitreTableau) + LineHeight(printed.font) + 2 * kFilet;
    const std::size_t count = table.rangees.size();
    // A short table stays in one, and no heading is left alone at a sheet's foot.
    const std::size_t together = count <= kEnsemble ? count : 2;
    y_ += kAvantTableau;
    if (y_ + heading + row * static_cast<double>(together) > Bas()) {
        sheets_.NewPage();
        y_ = kMarge;
    }
    Entete(printed);
    for (std::size_t i = 0; i < count; ++i) {
        // The last row takes the one before it along. Paper that holds no row has one a sheet.
        const double need = row * (i + 2 == count ? 2 : 1);
        if (i > 0 && y_ + need > Bas()) {
            sheets_.NewPage();
            y_ = kMarge;
            Entete(printed);
        }
        if (i > 0 && table.sommes > 0 && i + table.sommes == count) {
            Regle(printed.largeur);
        }
        printed.Ecrit(sheets_, table.rangees[i], y_);
        y_ += printed.Rangee();
    }
}

/// On every sheet its number, and from the second one on whose it is.
void FeuillesListe::Pieds() {
    const std::string count = std::to_string(sheets_.sheets.size());
    const double y = fin_ - LineHeight(kPied);
    for (std::size_t i = 0; i < sheets_.sheets.size(); ++i) {
        Recording &sheet = sheets_.sheets[i];
        const std::string number = std::to_string(i + 1) + "/" + count;
        const double width = MeasuredAdvance(number, kPied);
        sheet.Font = kPied;
        sheet.CurrentX = kMarge + room_ - width;
        sheet.CurrentY = y;
        sheet.Print(number);
        if (i > 0) {
            sheet.CurrentX = kMarge;
            sheet.Print(Raccourci(titre_, kPied, room_ - width - kEntreMini));
        }
    }
}

void FeuillesListe::SendTo(Printer &printer) {
    Pieds();
    sheets_.SendTo(printer);
}

} // namespace

void ImprimeListe(Printer &printer, const std::string &titre,
                  const std::vector<TableauPieces> &tables) {
    SheetSize size = printer.SizeOfSheets();
    if (!(size.width > 0 && size.height > 0)) {
        printer.SetOrientation(Orientation::portrait);
        size = kFeuilleCommune;
    }
    FeuillesListe sheets(size, titre);
    for (const TableauPieces &table : tables) {
        sheets.Ajoute(table);
    }
    sheets.SendTo(printer);
}

} // namespace loftwing
