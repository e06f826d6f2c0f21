// The list of parts as text and as CSV.

#include "programme/liste_pieces_fixture.h"

namespace loftwing {
namespace {

const TableauPieces kRibsAsText{"Ribs",
                                {"N\u00BA", "\u00C1rea (cm\u00B2)", "Nota"},
                                {{"1", "9.5", "a"}, {"12", "100.0", ""}, {"\u00D8", "109.5", "b"}},
                                {true, true, false},
                                1};

TEST(ListeEnTexte, SetsColumnsUnderEachOtherByCharactersNotBytes) {
    EXPECT_EQ(ListeEnTexte("Ala \u00F1", {kRibsAsText, {"Two", {"A"}, {{"x"}}, {false}}}),
              "Ala \u00F1\n"
              "\n"
              "Ribs\n"
              "N\u00BA  \u00C1rea (cm\u00B2)  Nota\n"
              "--  ----------  ----\n"
              " 1         9.5  a\n"
              "12       100.0\n"
              "--  ----------  ----\n"
              " \u00D8       109.5  b\n"
              "\n"
              "Two\n"
              "A\n"
              "-\n"
              "x\n");
    EXPECT_EQ(ListeEnTexte("", {{"T", {"A"}, {}, {false}}}), "T\nA\n-\n");
}

TEST(ListeEnTexte, KeepsANameWithALineEndOnOneLine) {
    EXPECT_EQ(ListeEnTexte("a\r\nb", {{"c\td", {"A"}, {{"e\nf"}}, {false}}}),
              "a  b\n\nc d\nA\n---\ne f\n");
}

TEST(ListeEnCsv, HasTheTitleInFrontAndAsManyFieldsInEveryLine) {
    EXPECT_EQ(ListeEnCsv({kRibsAsText, {"Two", {"A"}, {{"x"}}, {false}}}),
              "Ribs,N\u00BA,\u00C1rea (cm\u00B2),Nota\r\n"
              "Ribs,1,9.5,a\r\n"
              "Ribs,12,100.0,\r\n"
              "Ribs,\u00D8,109.5,b\r\n"
              "Two,A,,\r\n"
              "Two,x,,\r\n");
    EXPECT_EQ(ListeEnCsv({}), "");
}

TEST(ListeEnCsv, QuotesWhatWouldPartAField) {
    EXPECT_EQ(ListeEnCsv({{"spar 1, upper", {"say \"A\""}, {{"x\r\ny"}, {"a;b c"}}, {false}}}),
              "\"spar 1, upper\",\"say \"\"A\"\"\"\r\n\"spar 1, upper\",\"x\r\ny\"\r\n\"spar 1, "
              "upper\",a;b c\r\n");
}

TEST(ListeEnCsv, LetsNoNameBecomeAFormula) {
    const auto field = [](const std::string &text) {
        const std::string csv = ListeEnCsv({{"T", {"A"}, {{text}}, {false}}});
        return csv.substr(7, csv.size() - 9); // behind "T,A\r\nT,", before the line's end
    };
    EXPECT_EQ(field("=1+1"), "'=1+1");
    EXPECT_EQ(field("+cmd"), "'+cmd");
    EXPECT_EQ(field("@a"), "'@a");
    EXPECT_EQ(field("-a"), "'-a");
    EXPECT_EQ(field("-"), "'-");
    EXPECT_EQ(field("-1-1"), "'-1-1");
    EXPECT_EQ(field("-1.2.3"), "'-1.2.3");
    EXPECT_EQ(field("\t=1"), "'\t=1");
    EXPECT_EQ(field("=a,b"), "\"'=a,b\"");
    for (const char *as_it_is : {"-12.5", "-0.25", "-3", "+3", "a=1", "5 x 3", "", "'"}) {
        EXPECT_EQ(field(as_it_is), as_it_is);
    }
}

} // namespace
} // namespace loftwing
