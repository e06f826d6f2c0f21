// The list of parts of whole wings by chance, read back out of its CSV, against a second
// computation.

#include "programme/liste_pieces.h"
#include "programme/wing_chance_fixture.h"
#include "support/one_locale.h"

#include <algorithm>

namespace loftwing {
namespace {

constexpr unsigned kListed = 6; // wings; their numbers are the seeds, odd ones are in inches
constexpr double kMmOfInch = 25.4;
constexpr double kGramsOfOunce = 28.349523125;

using CsvRow = std::vector<std::string>;

/// Fields of lines that end in CR LF; some are in quotes, two of which are one.
std::vector<CsvRow> ReadCsv(const std::string &text) {
    std::vector<CsvRow> rows{{""}};
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            if (quoted && i + 1 < text.size() && text[i + 1] == '"') {
                rows.back().back() += text[++i];
            } else {
                quoted = !quoted;
            }
        } else if (!quoted && text[i] == ',') {
            rows.back().emplace_back();
        } else if (!quoted && text[i] == '\n') {
            rows.push_back({""});
        } else if (quoted || text[i] != '\r') {
            rows.back().back() += text[i];
        }
    }
    rows.pop_back(); // behind the last line's end
    return rows;
}

class ListeNaive : public WingOfChanceTest {
  protected:
    std::vector<std::vector<CsvRow>> tables; ///< without title and headings
    int weights = 0;

    void Read() {
        const std::string csv =
            ListeEnCsv(ListeDesPieces(wing, {}, programme.messages, programme.settings.Unite));
        tables.clear();
        std::string title;
        for (const CsvRow &row : ReadCsv(csv)) {
            if (tables.empty() || row.front() != title) {
                title = row.front();
                tables.emplace_back(); // this line has the headings
            } else {
                tables.back().emplace_back(row.begin() + 1, row.end());
            }
        }
    }

    bool Inches() const { return asked.inches; }
    /// A cell against a value in mm, mm2 or g; `digits`: decimals in mm and inches.
    void Cell(const std::string &text, double value, double unit, std::array<int, 2> digits,
              double exactness) const {
        const double in_unit = value / unit;
        const double half = 0.5 * std::pow(10, -digits[Inches() ? 1 : 0]);
        EXPECT_NEAR(naive::PanelNumber(text), in_unit, half * 1.0001 + exactness / unit) << text;
        const std::size_t point = text.find('.');
        EXPECT_EQ(point == std::string::npos ? 0 : text.size() - point - 1,
                  static_cast<std::size_t>(digits[Inches() ? 1 : 0]))
            << text;
    }
    void Length(const std::string &text, double mm, int digits, double exactness) const {
        Cell(text, mm, Inches() ? kMmOfInch : 1, {digits, 3}, exactness);
    }
    void Area(const std::string &text, double mm2, double part) const {
        constexpr double kSquareCm = 100;
        Cell(text, mm2, Inches() ? kMmOfInch * kMmOfInch : kSquareCm, {1, 2}, mm2 * part);
    }
    void Weight(const std::string &text, double grams) const {
        Cell(text, grams, Inches() ? kGramsOfOunce : 1, {1, 2}, grams * 0.0005);
    }

    void Ribs(const std::vector<CsvRow> &rows, std::size_t i) {
        const std::vector<naive::WingRib> &ribs = wanted[i].ribs;
        const double density = chance.panels[i].density;
        ASSERT_EQ(rows.size(), ribs.size() + 1);
        double area = 0;
        double weight = 0;
        for (std::size_t k = 0; k < ribs.size(); ++k) {
            SCOPED_TRACE("rib " + std::to_string(k + 1));
            const double own = areas[i][k];
            EXPECT_EQ(rows[k][0], std::to_string(ribs[k].number));
            Length(rows[k][1], ribs[k].x - wanted[i].x, 2, 0.001);
            Length(rows[k][2], ribs[k].chord, 2, 0.001);
            Area(rows[k][4], own, 0.0005);
            area += own;
            if (ribs[k].thickness > 0) {
                Length(rows[k][3], ribs[k].thickness, 2, 0.001);
            } else {
                EXPECT_EQ(rows[k][3], "");
            }
            if (density > 0 && ribs[k].thickness > 0) {
                const double grams = naive::WingWeight(own, ribs[k].thickness, density);
                Weight(rows[k][5], grams);
                weight += grams;
            }
        }
        Area(rows.back()[4], area, 0.0005);
        if (weight > 0) {
            Weight(rows.back()[5], weight);
            weights += 1;
        }
    }

    void Sticks(const std::vector<CsvRow> &rows, const std::vector<naive::WingStick> &sticks) {
        int count = 0;
        for (const CsvRow &row : rows) {
            count += std::stoi(row[5]);
        }
        EXPECT_EQ(count, static_cast<int>(sticks.size()));
        for (const naive::WingStick &stick : sticks) {
            SCOPED_TRACE(stick.name);
            // Of several over the same ribs the nearest in length.
            const CsvRow *nearest = nullptr;
            const double unit = Inches() ? kMmOfInch : 1;
            const auto off = [&](const CsvRow &row) {
                return std::abs(naive::PanelNumber(row[3]) * unit - stick.length);
            };
            for (const CsvRow &row : rows) {
                if (row[1] == std::to_string(stick.from) && row[2] == std::to_string(stick.to) &&
                    (nearest == nullptr || off(row) < off(*nearest))) {
                    nearest = &row;
                }
            }
            ASSERT_NE(nearest, nullptr);
            Length((*nearest)[3], stick.length, 1, 0.02);
        }
    }

    void Sheeting(const std::vector<CsvRow> &rows, const std::vector<naive::WingSheeting> &sheets) {
        ASSERT_EQ(rows.size(), sheets.size());
        for (std::size_t k = 0; k < sheets.size(); ++k) {
            SCOPED_TRACE(k == 0 ? "sheeting above" : "sheeting below");
            Area(rows[k][2], sheets[k].area, 0.001);
        }
    }

    void Compare(unsigned seed) {
        ASSERT_NO_FATAL_FAILURE(MakeWing(seed));
        Read();
        std::size_t next = 0;
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            SCOPED_TRACE("panel " + std::to_string(i + 1));
            ASSERT_LT(next, tables.size());
            Ribs(tables[next++], i);
            if (!wanted[i].sticks.empty()) {
                ASSERT_LT(next, tables.size());
                Sticks(tables[next++], wanted[i].sticks);
            }
            if (!wanted[i].sheeting.empty()) {
                ASSERT_LT(next, tables.size());
                Sheeting(tables[next++], wanted[i].sheeting);
            }
        }
        EXPECT_EQ(next + 1, tables.size()); // the totals
    }
};

TEST_F(ListeNaive, ItsCsvHasTheFiguresOfTheSecondComputation) {
    const unsigned wings = ManyInOneLocale(kListed);
    for (unsigned seed = 0; seed < wings; ++seed) {
        SCOPED_TRACE("wing by seed " + std::to_string(seed));
        Compare(seed);
    }
    EXPECT_TRUE(wings < kListed || weights > 1);
}

} // namespace
} // namespace loftwing
