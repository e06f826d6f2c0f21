#include "output/sheet_edges.h"

#include "output/page_setup.h"
#include "output/recording.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr double kNear = 1E-4; // mm; sheets are placed in 32 bits
/// A margin of 10 is taken off once more in device units, of which a millimetre has 56.7: the
/// leading edge lies at 10 - 10 / 56.7 mm.
constexpr double kBefore = 9.823633;

LongueurRib ChordOf(float mm) {
    return {mm, 0, false};
}

/// A4, margins 10 and 15, overlap 20, line at 50 mm: a step is 297 - 10 - 15 - 20 = 252 mm.
MiseEnPage A4For(float chord) {
    MiseEnPage page;
    CalculPasPage(page, ChordOf(chord));
    return page;
}

void ExpectExtent(const Etendue &got, const Etendue &wanted) {
    EXPECT_NEAR(got.gauche, wanted.gauche, kNear);
    EXPECT_NEAR(got.haut, wanted.haut, kNear);
    EXPECT_NEAR(got.droite, wanted.droite, kNear);
    EXPECT_NEAR(got.bas, wanted.bas, kNear);
}

TEST(SheetEdges, AChordOf300OnA4LiesOnTwoSheets) {
    const FeuillesVues seen = FeuillesDe(A4For(300));
    ASSERT_EQ(seen.feuilles.size(), 2U);
    EXPECT_EQ(seen.feuilles[0].numero, "1/2");
    EXPECT_EQ(seen.feuilles[1].numero, "2/2");
    ExpectExtent(seen.feuilles[0].bords, {-kBefore, -50, 297 - kBefore, 160});
    ExpectExtent(seen.feuilles[1].bords, {252 - kBefore, -50, 549 - kBefore, 160});
    // From 10 mm inside the second sheet to 15 mm inside the first.
    ASSERT_EQ(seen.entre_colonnes.size(), 1U);
    ExpectExtent(seen.entre_colonnes[0], {262 - kBefore, -50, 282 - kBefore, 160});
    EXPECT_TRUE(seen.entre_rangees.empty());
}

TEST(SheetEdges, ARibThatFitsHasOneSheetWithoutOverlap) {
    MiseEnPage page;
    CalculPages(page, ChordOf(200));
    const FeuillesVues seen = FeuillesDe(page);
    ASSERT_EQ(seen.feuilles.size(), 1U);
    EXPECT_EQ(seen.feuilles[0].numero, "1/1");
    EXPECT_TRUE(seen.entre_colonnes.empty());
    EXPECT_TRUE(seen.entre_rangees.empty());
}

TEST(SheetEdges, SheetsWithoutOverlapHaveNoStrip) {
    MiseEnPage page;
    page.recouvrement = 0;
    CalculPasPage(page, ChordOf(300)); // steps of 272
    const FeuillesVues seen = FeuillesDe(page);
    ASSERT_EQ(seen.feuilles.size(), 2U);
    EXPECT_TRUE(seen.entre_colonnes.empty());
}

TEST(SheetEdges, RowsAreCountedOneAfterTheOther) {
    MiseEnPage page = A4For(300);
    page.en_rangees = true;
    // From 20 mm above to 180 below the line. A row is 210 - 10 - 15 - 20 = 165 mm from the next.
    ASSERT_TRUE(CalculRangees(page, {0, 300, 20, 180}));
    const FeuillesVues seen = FeuillesDe(page);
    ASSERT_EQ(seen.feuilles.size(), 4U);
    EXPECT_EQ(seen.feuilles[1].numero, "2/4");
    ExpectExtent(seen.feuilles[1].bords, {252 - kBefore, -50, 549 - kBefore, 160});
    EXPECT_EQ(seen.feuilles[2].numero, "3/4");
    ExpectExtent(seen.feuilles[2].bords, {-kBefore, 115, 297 - kBefore, 325});
    ASSERT_EQ(seen.entre_colonnes.size(), 1U);
    ExpectExtent(seen.entre_colonnes[0], {262 - kBefore, -50, 282 - kBefore, 325});
    ASSERT_EQ(seen.entre_rangees.size(), 1U);
    ExpectExtent(seen.entre_rangees[0], {-kBefore, 125, 549 - kBefore, 145});
}

TEST(SheetEdges, RowsLowerTheLineWhereTheDrawingWantsIt) {
    MiseEnPage page = A4For(200);
    page.en_rangees = true;
    ASSERT_TRUE(CalculRangees(page, {0, 200, 70, 30})); // 70 above and the margin of 10
    EXPECT_NEAR(FeuillesDe(page).feuilles.at(0).bords.haut, -80, kNear);
}

TEST(SheetEdges, APaperOfOnesOwnHasItsMeasures) {
    MiseEnPage page;
    page.papiers = {{"Roll", 600, 400}};
    page.NumIndex = kPapierPropre;
    page.MargeHaut = 0;
    CalculPasPage(page, ChordOf(1000)); // steps of 600 - 15 - 20 = 565
    const FeuillesVues seen = FeuillesDe(page);
    ASSERT_EQ(seen.feuilles.size(), 2U);
    ExpectExtent(seen.feuilles[0].bords, {0, -50, 600, 350});
    ExpectExtent(seen.feuilles[1].bords, {565, -50, 1165, 350});
}

TEST(SheetEdges, APageOfTheDrawingsOwnSizeIsAroundIt) {
    MiseEnPage page;
    page.NumIndex = kPapierEntier;
    page.NbPages = 1;
    ASSERT_TRUE(CalculPageEntiere(page, {3, 300, 24, 12}, 0));
    const FeuillesVues seen = FeuillesDe(page);
    ASSERT_EQ(seen.feuilles.size(), 1U);
    // 3 + 10 before and 300 + 15 behind; 24 + 10 above and 12 + 10 below.
    ExpectExtent(seen.feuilles[0].bords, {-13, -34, 315, 22});
}

TEST(SheetEdges, ThePrintersOwnPaperHasNoKnownEdges) {
    MiseEnPage page = A4For(300);
    page.NumIndex = kPapierImprimante;
    EXPECT_TRUE(FeuillesDe(page).feuilles.empty());
    EXPECT_TRUE(FeuillesDe(page).entre_colonnes.empty());
}

// On the screen.

std::vector<DrawnSegment> LinesOf(const std::vector<Operation> &drawing, LineStyle style) {
    std::vector<DrawnSegment> lines;
    for (const Operation &operation : drawing) {
        const auto *line = std::get_if<DrawnSegment>(&operation);
        if (line != nullptr && line->pen.style == style) {
            lines.push_back(*line);
        }
    }
    return lines;
}

std::vector<DrawnText> NumbersOf(const std::vector<Operation> &drawing) {
    std::vector<DrawnText> texts;
    for (const Operation &operation : drawing) {
        if (const auto *text = std::get_if<DrawnText>(&operation)) {
            texts.push_back(*text);
        }
    }
    return texts;
}

std::vector<Operation> DrawnAt(const MiseEnPage &page, const PlaceEcran &place) {
    Recording drawing;
    TraceFeuilles(FeuillesDe(page), place, drawing);
    return drawing.Operations();
}

TEST(SheetEdges, EdgesAreDashedAndStripsDotted) {
    const std::vector<Operation> drawing = DrawnAt(A4For(300), {1000, 2000, 0.5});
    const std::vector<DrawnSegment> edges = LinesOf(drawing, LineStyle::dash);
    ASSERT_EQ(edges.size(), 8U); // of two sheets
    Extent all{1E9, 1E9, -1E9, -1E9};
    for (const DrawnSegment &edge : edges) {
        all = {std::min(all.left, edge.x1), std::min(all.top, edge.y1),
               std::max(all.right, edge.x2), std::max(all.bottom, edge.y2)};
    }
    constexpr double kHalf = 28.35; // units a millimetre
    EXPECT_NEAR(all.left, 1000 - kBefore * kHalf, 0.01);
    EXPECT_NEAR(all.right, 1000 + (549 - kBefore) * kHalf, 0.01);
    EXPECT_NEAR(all.top, 2000 - 50 * kHalf, 0.01);
    EXPECT_NEAR(all.bottom, 2000 + 160 * kHalf, 0.01);
    const std::vector<DrawnSegment> strip = LinesOf(drawing, LineStyle::dot);
    ASSERT_EQ(strip.size(), 2U);
    for (const DrawnSegment &side : strip) {
        EXPECT_EQ(side.x1, side.x2);
    }
    EXPECT_NEAR(strip[1].x1 - strip[0].x1, 20 * kHalf, 0.01);
}

TEST(SheetEdges, HaveAColourThatNoElementHas) {
    const std::vector<Operation> drawing = DrawnAt(A4For(300), {});
    for (const LineStyle style : {LineStyle::dash, LineStyle::dot}) {
        for (const DrawnSegment &line : LinesOf(drawing, style)) {
            EXPECT_EQ(line.pen.width, 1);
            for (int number = 0; number <= 15; ++number) {
                EXPECT_NE(line.pen.colour, PaletteColour(number));
            }
        }
    }
}

TEST(SheetEdges, NumbersStandInTheSeenCornerOfTheirSheets) {
    // The first sheet begins left of and above the picture, the second one above it.
    const std::vector<Operation> drawing = DrawnAt(A4For(300), {283.5, 1000, 1});
    const std::vector<DrawnText> numbers = NumbersOf(drawing);
    ASSERT_EQ(numbers.size(), 2U);
    EXPECT_EQ(numbers[0].text, "1/2");
    EXPECT_EQ(numbers[0].x, 60);
    EXPECT_EQ(numbers[0].y, 60);
    EXPECT_EQ(numbers[1].text, "2/2");
    EXPECT_NEAR(numbers[1].x, 283.5 + (252 - kBefore) * 56.7 + 60, 0.01);
    EXPECT_EQ(numbers[1].y, 60);
    // Lower down all corners are seen.
    EXPECT_NEAR(NumbersOf(DrawnAt(A4For(300), {283.5, 9000, 1}))[0].y, 9000 - 50 * 56.7 + 60, 0.01);
}

TEST(SheetEdges, ANumberStaysOnItsSheet) {
    const std::vector<Operation> drawing = DrawnAt(A4For(300), {-100000, -100000, 1});
    const DrawnText number = NumbersOf(drawing).at(0);
    const double right = -100000 + (297 - kBefore) * 56.7;
    EXPECT_LE(number.x + number.advance, right);
    EXPECT_GT(number.x, right - 1000);
    EXPECT_LT(number.y, -100000 + 160 * 56.7);
}

} // namespace
} // namespace loftwing
