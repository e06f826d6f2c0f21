#include "core/coordinate_table.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::vector<double>> Values(std::string_view bytes) {
    std::vector<std::vector<double>> values;
    for (const TableRow &row : ReadCoordinateTable(bytes).rows) {
        values.push_back(row.values);
    }
    return values;
}

const std::vector<std::vector<double>> kTwoPoints = {{1, 0}, {0.5, 0.25}};

TEST(CoordinateTable, NumbersAreSetOffByBlanksTabsCommasOrSemicolons) {
    for (const char *text : {"1 0\n0.5 0.25\n", "  1.0\t0\n\t.5 \t 0.25", "1,0\n0.5,0.25\n",
                             "1;0\n.5;.25", "1 , 0.\n0.5 , 2.5e-1\n", "+1 0\n0.5D0 2.5d-1\n"}) {
        EXPECT_EQ(Values(text), kTwoPoints) << text;
    }
}

TEST(CoordinateTable, ACommaIsAPointWhereSomethingElseSeparates) {
    for (const char *text :
         {"1,0 0,0\n0,5 0,25\n", "1;0\n0,5;0,25\n", "1\t0,0\n0,5\t0,25\n", "1,0,0,0\n0,5,0,25\n"}) {
        EXPECT_EQ(Values(text), kTwoPoints) << text;
    }
    EXPECT_EQ(Values("1, 0\n2, 3\n"), (std::vector<std::vector<double>>{{1, 0}, {2, 3}}));
    EXPECT_EQ(Values("1,0\n2,3\n"), (std::vector<std::vector<double>>{{1, 0}, {2, 3}}));
}

TEST(CoordinateTable, LinesEndInLineFeedReturnOrBoth) {
    for (const char *text : {"1 0\n0.5 0.25", "1 0\r\n0.5 0.25\r\n", "1 0\r0.5 0.25\r"}) {
        EXPECT_EQ(Values(text), kTwoPoints);
    }
    EXPECT_EQ(ReadCoordinateTable("Name\r\r1 0\r0.5 0.25").rows[1].line, 4);
}

TEST(CoordinateTable, TextIsUtf8Utf16OrLatin1) {
    using std::string_literals::operator""s;
    EXPECT_EQ(ReadCoordinateTable("\xEF\xBB\xBFProfil \xC3\xA9\n1 0\n").title, "Profil \xC3\xA9");
    EXPECT_EQ(ReadCoordinateTable("Profil \xE9\n1 0\n").title, "Profil \xC3\xA9");
    const CoordinateTable little = ReadCoordinateTable("\xFF\xFEN\0a\0c\0\xE9\0\r\0\n\0"
                                                       "1\0 \0"
                                                       "0\0\n\0"s);
    EXPECT_EQ(little.title, "Nac\xC3\xA9");
    ASSERT_EQ(little.rows.size(), 1U);
    EXPECT_THAT(little.rows[0].values, ElementsAre(1, 0));
    EXPECT_EQ(ReadCoordinateTable("\xFE\xFF\0N\0a\0c\xD8\x3D\xDE\x00\0\n\0"
                                  "1\0 \0"
                                  "0"s)
                  .title,
              "Nac\xF0\x9F\x98\x80");
}

TEST(CoordinateTable, TheTitleIsTheFirstNameInFrontOfTheNumbers) {
    EXPECT_EQ(ReadCoordinateTable("\n# NACA 2412\n x/c y/c\n1 0\nlast words\n").title, "NACA 2412");
    EXPECT_EQ(ReadCoordinateTable("x y\n1 0\n0 1\n").title, "");
    EXPECT_EQ(ReadCoordinateTable("2412\n1 0\n").title, "2412");
    EXPECT_EQ(ReadCoordinateTable("64 2 15 by somebody\n1 0\n").title, "64 2 15 by somebody");
    EXPECT_EQ(ReadCoordinateTable("1 0\n0 1\nbehind\n").title, "");
}

TEST(CoordinateTable, WordsAndSingleNumbersAreNoRows) {
    EXPECT_THAT(Values("name\n\n400,000 and more\n12 is a number\n35\nnan 1\n1e999 2\n1-2 3\n"),
                IsEmpty());
    EXPECT_EQ(Values("1.0 0.0 trailing edge\n0.5 0.25 # 3\n"), kTwoPoints);
}

TEST(CoordinateTable, EndsOneRowBehindTheMostOfAnAirfoil) {
    std::string rows;
    for (std::size_t i = 0; i < kMostRows + 5; ++i) {
        rows += "1 2\n";
    }
    EXPECT_EQ(ReadCoordinateTable(rows).rows.size(), kMostRows + 1);
    rows.resize(4 * kMostRows);
    EXPECT_EQ(ReadCoordinateTable(rows).rows.size(), kMostRows);
}

TEST(CoordinateTable, NumbersKeepTheirTexts) {
    const CoordinateTable table = ReadCoordinateTable("0,5000 -0,10\n1,0 0\n");
    EXPECT_THAT(table.rows[0].texts, ElementsAre("0.5000", "-0.10"));
}

TEST(CoordinateTable, AnythingAtAllIsRead) {
    using std::string_literals::operator""s;
    EXPECT_THAT(Values(""), IsEmpty());
    EXPECT_THAT(Values("\0\0\0\1"s), IsEmpty());
    EXPECT_THAT(Values("\xFF\xFE\0"s), IsEmpty());
    EXPECT_THAT(Values("\xFF\xFE\x00\xD8"s), IsEmpty());
    EXPECT_THAT(Values(std::string(100000, ',')), IsEmpty());
}

} // namespace
} // namespace loftwing
