#include "output/drawing_stack.h"

#include "output/sheeting.h"
#include "output/stack_fixture.h"

namespace loftwing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

/// The drawings on the sheets.
class Stack : public StackOfRibs {};

TEST_F(Stack, TwoRibsShareASheetAtTrueScale) {
    Add(240);
    Add(200);
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    const auto lines = References(sheets[0]);
    ASSERT_THAT(lines, SizeIs(2));
    // The drawings' left edge is the reference line's, one unit before the leading edge.
    EXPECT_NEAR(lines[0].x1, 10, 0.02);
    EXPECT_NEAR(lines[1].x1, 10, 0.02);
    EXPECT_NEAR(lines[0].Length(), 240 + 2 / kStackMm, 1E-3);
    EXPECT_NEAR(lines[1].Length(), 200 + 2 / kStackMm, 1E-3);
    const StackReach reach = ReachOf2412();
    EXPECT_NEAR(lines[0].y1, 10 + 240 * reach.above, 0.05);
    EXPECT_NEAR(lines[1].y1 - lines[0].y1, 240 * reach.below + 5 + 200 * reach.above, 0.05);
    EXPECT_TRUE(HasCheckLine(sheets[0], 100));
    EXPECT_THAT(StackTextsOf(sheets[0]), Contains("1/1"));
    ExpectWithin(sheets[0], room);
    ExpectReadable(sheets[0]);
    EXPECT_THAT(printer.calls, ElementsAre("landscape", "paper 210 297", "draw", "end"));
}

TEST_F(Stack, EachDrawingIsThatOfThePrimedPlot) {
    RibWorld &first = Add(200);
    first.rib.EpBA = 5;
    first.rib.EpBF = 10;
    first.rib.EpCoffrage = 1.5F;
    first.rib.NbRep = 3;
    Add(150).rib.AffHaut = true;
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    std::size_t at = 0;
    for (const auto &world : worlds) {
        world->plot = EtatAmorce(world->rib);
        world->Place(0, 0);
        Recording alone;
        DrawRib(world->On(alone));
        const StackOps &drawn = alone.Operations();
        ASSERT_GT(sheets[0].size(), at + drawn.size());
        const auto offset = [&](std::size_t i) {
            const auto &there = std::get<DrawnSegment>(sheets[0][at + i]);
            const auto &here = std::get<DrawnSegment>(drawn[i]);
            return std::pair(there.x1 - here.x1, there.y2 - here.y2);
        };
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            ASSERT_EQ(drawn[i].index(), sheets[0][at + i].index());
            if (std::holds_alternative<DrawnSegment>(drawn[i])) {
                EXPECT_EQ(std::get<DrawnSegment>(drawn[i]).pen,
                          std::get<DrawnSegment>(sheets[0][at + i]).pen);
                EXPECT_NEAR(offset(i).first, offset(0).first, 1E-6);
                EXPECT_NEAR(offset(i).second, offset(0).second, 1E-6);
            }
        }
        at += drawn.size() + 1; // and its label
    }
}

TEST_F(Stack, TheViewOfTheRibStaysAsItWas) {
    RibWorld &world = Add(200);
    world.rib.Zoom = 2.5F;
    world.plot.OrigineX = 77;
    Print();
    EXPECT_EQ(world.rib.Zoom, 2.5F);
    EXPECT_EQ(world.plot.OrigineX, 77.0F);
    EXPECT_FALSE(Page().temoin);
    EXPECT_EQ(Page().recouvrement, 20.0F);
}

TEST_F(Stack, OneWithoutRoomOpensASheetAndTheOrderStays) {
    for (int i = 0; i < 9; ++i) {
        Add(260);
    }
    const auto sheets = Print();
    // 31.3 mm and the gap: not even without a check line would nine have room.
    ASSERT_EQ(sheets.size(), 2U);
    std::vector<std::size_t> order;
    for (const FeuilleEmpilee &sheet : feuilles.feuilles) {
        for (const PlaceDessin &place : sheet) {
            order.push_back(place.dessin);
        }
    }
    EXPECT_THAT(order, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8));
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_TRUE(HasCheckLine(sheets[i], 100));
        EXPECT_THAT(StackTextsOf(sheets[i]), Contains(std::to_string(i + 1) + "/2"));
        ExpectWithin(sheets[i], room);
        ExpectReadable(sheets[i]);
    }
    EXPECT_EQ(resume, "<FrmPrint 10> : 2\nA4 210 x 297 mm");
}

TEST_F(Stack, TheLabelIsAirfoilAndChordWhereNoTextIsDrawn) {
    Add(200);
    RibWorld &named = Add(180);
    named.rib.texte.InsTexte = "root rib";
    const auto texts = StackTextsOf(Print().at(0));
    EXPECT_THAT(texts, Contains("rib1 200 mm"));
    EXPECT_THAT(texts, Contains("root rib")); // it has no place on the rib
    EXPECT_THAT(texts, Not(Contains("rib2 180 mm")));
}

TEST_F(Stack, AnInsertedTextThatIsDrawnIsTheLabel) {
    RibWorld &world = Add(200);
    world.rib.texte.InsTexte = "root rib";
    world.rib.texte.InsTextX = 60;
    world.rib.texte.InsTextY = 4;
    const auto texts = StackTextsOf(Print().at(0));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "root rib"), 1);
    EXPECT_THAT(texts, Not(Contains(HasSubstr("rib1"))));
}

TEST_F(Stack, WhoStacksMayGiveLabelsOfHisOwn) {
    Add(200);
    DemandePile demand = Demand();
    demand.nervures[0].etiquette = "3 L";
    Pile pile(demand);
    ASSERT_FALSE(pile.Prepare());
    EXPECT_EQ(pile.Imprime(printer), FinImpression::imprime);
    EXPECT_THAT(StackTextsOf(printer.sheets.at(0)), Contains("3 L"));
    EXPECT_THAT(StackTextsOf(printer.sheets.at(0)), Not(Contains("rib1 200 mm")));
}

TEST_F(Stack, ALabelWithoutAFreeCornerStandsUnderTheDrawing) {
    RibWorld &world = Add(200);
    world.rib.NomProfil = std::string(80, 'm'); // wider than the drawing
    Add(200);
    const auto sheet = Print().at(0);
    const auto lines = References(sheet);
    ASSERT_THAT(lines, SizeIs(2));
    const StackReach reach = ReachOf2412();
    const double alone = 200 * (reach.below + reach.above) + 5;
    // A millimetre and a line of 8 points: 1.2 x 8 x 20 / 56.7.
    EXPECT_NEAR(lines[1].y1 - lines[0].y1, alone + 1 + 192 / kStackMm, 0.05);
}

TEST_F(Stack, ALabelIsNoLongerThanItsDrawing) {
    Add(200).rib.texte.InsTexte = std::string(120, 'm'); // 282 mm of 8 points
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    ASSERT_THAT(feuilles.feuilles, SizeIs(1)); // it doesn't make the rib too long for a sheet
    const auto texts = StackTextsOf(sheets[0]);
    EXPECT_THAT(texts, Contains(testing::MatchesRegex("m+\\.\\.\\.")));
    ExpectWithin(sheets[0], room);
}

TEST_F(Stack, InchesHaveTheirCheckLineAndLabel) {
    RibWorld &world = Add(203.2);
    world.rib.cordeAfich = "8";
    world.settings.Unite = " in";
    const auto sheets = Print();
    EXPECT_TRUE(HasCheckLine(sheets.at(0), 101.6));
    EXPECT_THAT(StackTextsOf(sheets.at(0)), Contains("rib1 8 in"));
    EXPECT_NEAR(References(sheets.at(0)).at(0).Length(), 203.2 + 2 / kStackMm, 1E-3);
}

} // namespace
} // namespace loftwing
