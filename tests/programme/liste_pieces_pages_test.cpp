// The list of parts on paper.

#include "programme/liste_pieces.h"
#include "support/test_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;

constexpr double kListeMm = 56.7;
constexpr SheetSize kA4Upright{210, 297};

struct TextBox {
    double left, right, top, bottom;
};

TextBox BoxOfText(const DrawnText &text) {
    return {text.x, text.x + text.advance, text.y, text.y + 1.15 * 20 * text.font.size};
}

bool TextsMeet(const TextBox &one, const TextBox &other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

std::string Times(const std::string &text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

class ListePiecesPagesTest : public testing::Test {
  protected:
    TestPrinter printer;

    static TableauPieces Ribs(int rows) {
        TableauPieces table{"Ribs", {"No.", "Chord (mm)", "Note"}, {}, {true, true, false}, 1};
        for (int i = 1; i <= rows; ++i) {
            table.rangees.push_back({std::to_string(i), std::to_string(i * 7) + ".25", "n"});
        }
        table.rangees.push_back({"Sum", "1", ""});
        return table;
    }
    void Print(const std::vector<TableauPieces> &tables, SheetSize paper = kA4Upright,
               const std::string &titre = "List of parts") {
        printer.calls.clear();
        printer.sheets.assign(1, {});
        printer.own_paper = paper;
        ImprimeListe(printer, titre, tables);
    }
    std::vector<DrawnText> Texts(std::size_t sheet) const {
        std::vector<DrawnText> texts;
        for (const Operation &operation : printer.sheets.at(sheet)) {
            if (const auto *text = std::get_if<DrawnText>(&operation)) {
                texts.push_back(*text);
            }
        }
        return texts;
    }
    DrawnText Find(const std::string &wanted, std::size_t sheet = 0) const {
        for (const DrawnText &text : Texts(sheet)) {
            if (text.text == wanted) {
                return text;
            }
        }
        ADD_FAILURE() << wanted << " isn't on sheet " << sheet;
        return {};
    }
    bool IsOn(std::size_t sheet, const std::string &wanted) const {
        for (const DrawnText &text : Texts(sheet)) {
            if (text.text == wanted) {
                return true;
            }
        }
        return false;
    }
    void ExpectWithin(const SheetSize &paper, const TextBox &box, const std::string &what) const {
        constexpr double kNearly = 1e-6;
        EXPECT_GE(box.left, 15 * kListeMm - kNearly) << what;
        EXPECT_GE(box.top, 15 * kListeMm - kNearly) << what;
        EXPECT_LE(box.right, (paper.width - 15) * kListeMm + kNearly) << what;
        EXPECT_LE(box.bottom, (paper.height - 15) * kListeMm + kNearly) << what;
    }
    /// Nothing meets and nothing leaves the margins of 15 mm.
    void ExpectCalm(const SheetSize &paper) const {
        for (std::size_t sheet = 0; sheet < printer.sheets.size(); ++sheet) {
            const std::vector<DrawnText> texts = Texts(sheet);
            for (std::size_t i = 0; i < texts.size(); ++i) {
                ExpectWithin(paper, BoxOfText(texts[i]), texts[i].text);
                for (std::size_t j = 0; j < i; ++j) {
                    EXPECT_FALSE(TextsMeet(BoxOfText(texts[i]), BoxOfText(texts[j])))
                        << texts[i].text << " meets " << texts[j].text;
                }
            }
            for (const Operation &operation : printer.sheets[sheet]) {
                if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
                    ExpectRuleBetween(paper, *line, texts);
                }
            }
        }
    }

  private:
    void ExpectRuleBetween(const SheetSize &paper, const DrawnSegment &line,
                           const std::vector<DrawnText> &texts) const {
        const TextBox box{line.x1, line.x2, line.y1, line.y2};
        ExpectWithin(paper, box, "rule");
        EXPECT_LT(box.left, box.right);
        EXPECT_EQ(box.top, box.bottom);
        for (const DrawnText &text : texts) {
            EXPECT_FALSE(TextsMeet(BoxOfText(text), box)) << "a rule through " << text.text;
        }
    }
};

TEST_F(ListePiecesPagesTest, NumbersEndAtTheirColumnsEdgeAndWordsBeginAtIt) {
    Print({Ribs(20)});
    const auto right = [&](const std::string &text) { return BoxOfText(Find(text)).right; };
    EXPECT_NEAR(right("1"), right("20"), 1e-6);
    EXPECT_NEAR(right("1"), right("No."), 1e-6);
    EXPECT_NEAR(right("7.25"), right("140.25"), 1e-6);
    EXPECT_NEAR(right("7.25"), right("Chord (mm)"), 1e-6);
    EXPECT_EQ(Find("n").x, Find("Note").x);
    EXPECT_GT(Find("n").x, right("7.25"));
    EXPECT_EQ(Find("1").y, Find("7.25").y);
    EXPECT_LT(Find("1").y, Find("2").y);
    EXPECT_EQ(Find("List of parts").x, 15 * kListeMm);
    EXPECT_EQ(Find("Ribs").x, 15 * kListeMm);
    ExpectCalm(kA4Upright);
    EXPECT_THAT(printer.calls, ElementsAre("draw")); // the job goes on
}

TEST_F(ListePiecesPagesTest, ARuleStandsUnderTheHeadingsAndOverTheSum) {
    Print({Ribs(3)});
    std::vector<double> rules;
    for (const Operation &operation : printer.sheets.at(0)) {
        if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
            rules.push_back(line->y1);
        }
    }
    ASSERT_EQ(rules.size(), 2U);
    EXPECT_GT(rules[0], BoxOfText(Find("No.")).bottom - 1);
    EXPECT_LT(rules[0], Find("1").y);
    EXPECT_GT(rules[1], BoxOfText(Find("3")).bottom - 1);
    EXPECT_LT(rules[1], Find("Sum").y);
}

TEST_F(ListePiecesPagesTest, ALongTableGoesOnUnderItsHeadingsAndSheetsAreNumbered) {
    Print({Ribs(130)});
    ASSERT_EQ(printer.sheets.size(), 3U);
    for (std::size_t sheet = 0; sheet < 3; ++sheet) {
        Find("Ribs", sheet);
        Find("Chord (mm)", sheet);
        const TextBox number = BoxOfText(Find(std::to_string(sheet + 1) + "/3", sheet));
        EXPECT_NEAR(number.right, (210 - 15) * kListeMm, 1e-6);
        EXPECT_GT(number.top, (297 - 20) * kListeMm);
        EXPECT_TRUE(IsOn(sheet, "List of parts"));
    }
    EXPECT_TRUE(IsOn(0, "1"));
    EXPECT_TRUE(IsOn(2, "130"));
    int rows = 0;
    for (int row = 1; row <= 130; ++row) {
        for (std::size_t sheet = 0; sheet < 3; ++sheet) {
            rows += IsOn(sheet, std::to_string(row * 7) + ".25") ? 1 : 0;
        }
    }
    EXPECT_EQ(rows, 130);
    EXPECT_THAT(printer.calls, ElementsAre("draw", "new page", "draw", "new page", "draw"));
    ExpectCalm(kA4Upright);
}

TEST_F(ListePiecesPagesTest, AShortTableStaysInOneAndALongOneTakesTwoRowsAlong) {
    int moved = 0;
    for (const int size : {7, 20}) {
        for (int rows = 20; rows < 60; ++rows) {
            TableauPieces second = Ribs(size);
            second.titre = "Sticks";
            second.rangees[0][1] = "first";
            second.rangees[1][1] = "second";
            second.rangees.back()[0] = "end";
            second.rangees.end()[-2][1] = "last but one";
            Print({Ribs(rows), second});
            for (std::size_t sheet = 0; sheet < printer.sheets.size(); ++sheet) {
                EXPECT_EQ(IsOn(sheet, "first"), IsOn(sheet, "second")) << rows;
                EXPECT_EQ(IsOn(sheet, "end"), IsOn(sheet, "last but one")) << rows;
                EXPECT_TRUE(size > 7 || IsOn(sheet, "first") == IsOn(sheet, "end")) << rows;
                // Its own rows have their headings above them.
                EXPECT_TRUE(IsOn(sheet, "Sticks") || !IsOn(sheet, "end")) << rows;
            }
            moved += IsOn(0, "first") ? 0 : 1;
            ExpectCalm(kA4Upright);
        }
    }
    EXPECT_GT(moved, 0);
    EXPECT_LT(moved, 80);
}

TEST_F(ListePiecesPagesTest, PaperThatIsntKnownIsUprightAndHoldsForA4AndLetter) {
    Print({Ribs(130)}, {});
    EXPECT_EQ(printer.calls.front(), "portrait");
    EXPECT_EQ(printer.sheets.size(), 3U);
    ExpectCalm({210, 279.4});
    EXPECT_NEAR(BoxOfText(Find("1/3")).right, (210 - 15) * kListeMm, 1e-6);
    Print({Ribs(5)}, {297, 210}); // what is set stays
    EXPECT_THAT(printer.calls, ElementsAre("draw"));
    EXPECT_NEAR(BoxOfText(Find("1/1")).right, (297 - 15) * kListeMm, 1e-6);
}

TEST_F(ListePiecesPagesTest, WhatIsTooLongIsShortenedAndNumbersStayWhole) {
    TableauPieces table{"Sticks",
                        {"Element", "True length (mm)", "Section (mm)"},
                        {{Times("spar ", 60), "1234567.8", Times("5 x 3 ... ", 30)}},
                        {false, true, false}};
    table.titre = Times("Panel ", 60);
    const std::string titre = Times("\u6A5F", 300); // as wide as they are high
    for (const SheetSize &paper : {kA4Upright, SheetSize{297, 210}, SheetSize{105, 148}}) {
        Print({table}, paper, titre);
        ExpectCalm(paper);
        Find("1234567.8");
        int shortened = 0;
        for (const DrawnText &text : Texts(0)) {
            shortened += text.text.ends_with("...") ? 1 : 0;
        }
        EXPECT_GE(shortened, 4) << paper.width; // both titles and both words
    }
    for (const DrawnText &text : Texts(0)) { // on the narrow sheet
        if (text.text.starts_with("\u6A5F")) {
            const std::size_t count = (text.text.size() - 3) / 3; // three bytes each
            EXPECT_LE(static_cast<double>(count) * 14 * 20, (105 - 30) * kListeMm);
        }
    }
}

TEST_F(ListePiecesPagesTest, ACrowdedTableTakesSmallerLettersFirst) {
    // Each "abcde " is 3.002 sizes wide: at 9 points 190.6 mm, at 8 points 169.4 of 180.
    const TableauPieces table{"T", {"A", "B"}, {{Times("abcde ", 20), "1"}}, {false, true}};
    Print({table});
    EXPECT_EQ(Find(table.rangees[0][0]).font.size, 8);
    EXPECT_EQ(Find("B").font.size, 8);
    ExpectCalm(kA4Upright);
    Print({Ribs(1)});
    EXPECT_EQ(Find("7.25").font.size, 9);
    EXPECT_EQ(Find("Chord (mm)").font.size, 9);
}

TEST_F(ListePiecesPagesTest, EvenPaperThatHoldsNoRowComesToAnEnd) {
    Print({Ribs(4)}, {20, 40});
    EXPECT_LE(printer.sheets.size(), 6U);
    Print({});
    EXPECT_EQ(printer.sheets.size(), 1U);
    EXPECT_TRUE(IsOn(0, "List of parts"));
    EXPECT_TRUE(IsOn(0, "1/1"));
}

} // namespace
} // namespace loftwing
