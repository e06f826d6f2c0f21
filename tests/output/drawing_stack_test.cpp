#include "output/drawing_stack.h"

#include "output/sheeting.h"
#include "output/styles.h"
#include "support/rib_world.h"
#include "support/test_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

constexpr double kMm = 56.7;

using Operations = std::vector<Operation>;

/// A line in mm.
struct LineMm {
    double x1, y1, x2, y2;

    double Length() const { return std::hypot(x2 - x1, y2 - y1); }
};

std::vector<LineMm> LinesOf(const Operations &sheet) {
    std::vector<LineMm> lines;
    for (const Operation &each : sheet) {
        if (const auto *line = std::get_if<DrawnSegment>(&each)) {
            lines.push_back({line->x1 / kMm, line->y1 / kMm, line->x2 / kMm, line->y2 / kMm});
        }
    }
    return lines;
}

std::vector<std::string> TextsOf(const Operations &sheet) {
    std::vector<std::string> texts;
    for (const Operation &each : sheet) {
        if (const auto *text = std::get_if<DrawnText>(&each)) {
            texts.push_back(text->text);
        }
    }
    return texts;
}

/// The box of an operation in mm: of a text with its line's height of 1.2 sizes.
Etendue BoxOf(const Operation &each) {
    Etendue box;
    if (const auto *line = std::get_if<DrawnSegment>(&each)) {
        box.Prend(line->x1 / kMm, line->y1 / kMm);
        box.Prend(line->x2 / kMm, line->y2 / kMm);
    } else if (const auto *circle = std::get_if<DrawnCircle>(&each)) {
        box.Prend((circle->x - circle->radius) / kMm, (circle->y - circle->radius) / kMm);
        box.Prend((circle->x + circle->radius) / kMm, (circle->y + circle->radius) / kMm);
    } else if (const auto *text = std::get_if<DrawnText>(&each)) {
        box.Prend(text->x / kMm, text->y / kMm);
        box.Prend((text->x + text->advance) / kMm, (text->y + 24 * text->font.size) / kMm);
    }
    return box;
}

/// How far NACA 2412 reaches above and below its chord line, in parts of it.
struct Reach {
    double above = 0;
    double below = 0;
};
Reach ReachOf2412() {
    Reach reach;
    for (const auto &[x, y] : Naca(2412, 2000)) {
        reach.above = std::max(reach.above, y);
        reach.below = std::max(reach.below, -y);
    }
    return reach;
}

/// Ribs of NACA 2412 stacked on A4, whose room is 272 x 190 mm.
class Stack : public testing::Test {
  protected:
    RibWorld &Add(double chord) {
        worlds.push_back(std::make_unique<RibWorld>());
        RibWorld &world = *worlds.back();
        TakeAirfoil(world, Naca(2412, 30));
        world.rib.NomProfil = "rib" + std::to_string(worlds.size());
        world.rib.corde = static_cast<float>(chord);
        world.rib.cordeAfich = std::to_string(static_cast<int>(chord));
        return world;
    }
    MiseEnPage &Page() { return First().settings.page; }
    RibWorld &First() { return *worlds.front(); }
    DemandePile Demand() {
        DemandePile demand{{},
                           First().settings,
                           First().messages,
                           "panel",
                           "2031-05-24",
                           regle,
                           {"line", "before", "after", "paper", "rows"}};
        for (const auto &world : worlds) {
            demand.nervures.push_back({world->rib});
        }
        return demand;
    }
    /// All sheets of the job.
    std::vector<Operations> Print() {
        Pile pile(Demand());
        const auto end = pile.Prepare();
        EXPECT_FALSE(end.has_value());
        if (end) {
            return {};
        }
        question = pile.Question();
        feuilles = pile.Feuilles();
        EXPECT_EQ(pile.Imprime(printer), FinImpression::imprime);
        resume = pile.Resume();
        return printer.sheets;
    }
    /// The reference lines of a sheet, from the top.
    static std::vector<LineMm> References(const Operations &sheet) {
        std::vector<LineMm> lines;
        for (const Operation &each : sheet) {
            const auto *line = std::get_if<DrawnSegment>(&each);
            if (line != nullptr && line->pen.colour == PaletteColour(12) && line->y1 == line->y2 &&
                std::abs(line->x2 - line->x1) > 20 * kMm) {
                lines.push_back({line->x1 / kMm, line->y1 / kMm, line->x2 / kMm, line->y2 / kMm});
            }
        }
        return lines;
    }
    /// How many lines of the sheet are the long or the short arm of a check line of that length.
    static long Arms(const Operations &sheet, double length) {
        const auto lines = LinesOf(sheet);
        return std::count_if(lines.begin(), lines.end(), [&](const LineMm &line) {
            const bool straight =
                std::abs(line.x1 - line.x2) < 1E-6 || std::abs(line.y1 - line.y2) < 1E-6;
            return straight && std::abs(line.Length() - length) < 1E-6;
        });
    }
    static bool HasCheckLine(const Operations &sheet, double length) {
        return Arms(sheet, length) == 2 || Arms(sheet, length / 2) == 2;
    }
    static void ExpectWithin(const Operations &sheet, const Etendue &room) {
        constexpr double kEdge = 0.1; // mm
        for (const Operation &each : sheet) {
            const Etendue box = BoxOf(each);
            EXPECT_GE(box.gauche, room.gauche - kEdge);
            EXPECT_LE(box.droite, room.droite + kEdge);
            EXPECT_GE(box.haut, room.haut - kEdge);
            EXPECT_LE(box.bas, room.bas + kEdge);
        }
    }
    /// A text without a hair's breadth around it: the lines of a note touch.
    static Etendue InnerBox(const Operation &text) {
        constexpr double kHair = 0.01;
        const Etendue box = BoxOf(text);
        return {box.gauche + kHair, box.haut + kHair, box.droite - kHair, box.bas - kHair};
    }
    /// No text stands on a line or on another text.
    static void ExpectReadable(const Operations &sheet) {
        for (const Operation &text : sheet) {
            if (!std::holds_alternative<DrawnText>(text)) {
                continue;
            }
            for (const Operation &other : sheet) {
                EXPECT_TRUE(&text == &other || !InnerBox(text).Touche(BoxOf(other)))
                    << std::get<DrawnText>(text).text;
            }
        }
    }

    std::vector<std::unique_ptr<RibWorld>> worlds;
    std::function<bool()> regle = [] { return true; };
    TestPrinter printer;
    PrintQuestion question;
    Empilage feuilles;
    std::string resume;
    const Etendue room{10, 10, 282, 200};
};

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
    EXPECT_NEAR(lines[0].Length(), 240 + 2 / kMm, 1E-3);
    EXPECT_NEAR(lines[1].Length(), 200 + 2 / kMm, 1E-3);
    const Reach reach = ReachOf2412();
    EXPECT_NEAR(lines[0].y1, 10 + 240 * reach.above, 0.05);
    EXPECT_NEAR(lines[1].y1 - lines[0].y1, 240 * reach.below + 5 + 200 * reach.above, 0.05);
    EXPECT_TRUE(HasCheckLine(sheets[0], 100));
    EXPECT_THAT(TextsOf(sheets[0]), Contains("1/1"));
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
        const Operations &drawn = alone.Operations();
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
        EXPECT_THAT(TextsOf(sheets[i]), Contains(std::to_string(i + 1) + "/2"));
        ExpectWithin(sheets[i], room);
        ExpectReadable(sheets[i]);
    }
    EXPECT_EQ(resume, "<FrmPrint 10> : 2\nA4 210 x 297 mm");
}

TEST_F(Stack, TheLabelIsAirfoilAndChordWhereNoTextIsDrawn) {
    Add(200);
    RibWorld &named = Add(180);
    named.rib.texte.InsTexte = "root rib";
    const auto texts = TextsOf(Print().at(0));
    EXPECT_THAT(texts, Contains("rib1 200 mm"));
    EXPECT_THAT(texts, Contains("root rib")); // it has no place on the rib
    EXPECT_THAT(texts, Not(Contains("rib2 180 mm")));
}

TEST_F(Stack, AnInsertedTextThatIsDrawnIsTheLabel) {
    RibWorld &world = Add(200);
    world.rib.texte.InsTexte = "root rib";
    world.rib.texte.InsTextX = 60;
    world.rib.texte.InsTextY = 4;
    const auto texts = TextsOf(Print().at(0));
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
    EXPECT_THAT(TextsOf(printer.sheets.at(0)), Contains("3 L"));
    EXPECT_THAT(TextsOf(printer.sheets.at(0)), Not(Contains("rib1 200 mm")));
}

TEST_F(Stack, ALabelWithoutAFreeCornerStandsUnderTheDrawing) {
    RibWorld &world = Add(200);
    world.rib.NomProfil = std::string(80, 'm'); // wider than the drawing
    Add(200);
    const auto sheet = Print().at(0);
    const auto lines = References(sheet);
    ASSERT_THAT(lines, SizeIs(2));
    const Reach reach = ReachOf2412();
    const double alone = 200 * (reach.below + reach.above) + 5;
    // A millimetre and a line of 8 points: 1.2 x 8 x 20 / 56.7.
    EXPECT_NEAR(lines[1].y1 - lines[0].y1, alone + 1 + 192 / kMm, 0.05);
}

TEST_F(Stack, ALabelIsNoLongerThanItsDrawing) {
    Add(200).rib.texte.InsTexte = std::string(120, 'm'); // 282 mm of 8 points
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    ASSERT_THAT(feuilles.feuilles, SizeIs(1)); // it doesn't make the rib too long for a sheet
    const auto texts = TextsOf(sheets[0]);
    EXPECT_THAT(texts, Contains(testing::MatchesRegex("m+\\.\\.\\.")));
    ExpectWithin(sheets[0], room);
}

TEST_F(Stack, InchesHaveTheirCheckLineAndLabel) {
    RibWorld &world = Add(203.2);
    world.rib.cordeAfich = "8";
    world.settings.Unite = " in";
    const auto sheets = Print();
    EXPECT_TRUE(HasCheckLine(sheets.at(0), 101.6));
    EXPECT_THAT(TextsOf(sheets.at(0)), Contains("rib1 8 in"));
    EXPECT_NEAR(References(sheets.at(0)).at(0).Length(), 203.2 + 2 / kMm, 1E-3);
}

TEST_F(Stack, ALongRibIsTiledBehindTheOthersAsItIsAlone) {
    Add(600);
    Add(200);
    const auto sheets = Print();
    RibWorld &alone = First();
    alone.settings.page.temoin = true;
    alone.plot = EtatAmorce(alone.rib);
    Impression run = alone.Run();
    run.date = "2031-05-24";
    ASSERT_TRUE(PrepareFeuilles(run, [] { return true; }));
    ASSERT_FALSE(PrepareDessin(run));
    TestPrinter own;
    ASSERT_EQ(Imprime(run, own), FinImpression::imprime);
    ASSERT_THAT(own.sheets, SizeIs(3));
    ASSERT_THAT(sheets, SizeIs(4));
    EXPECT_THAT(References(sheets[0]), SizeIs(1));
    EXPECT_NEAR(References(sheets[0])[0].Length(), 200 + 2 / kMm, 1E-3);
    for (std::size_t i = 0; i < own.sheets.size(); ++i) {
        SCOPED_TRACE(i);
        const Operations &there = sheets[i + 1];
        // All the same and the number behind it.
        ASSERT_EQ(there.size(), own.sheets[i].size() + 1);
        EXPECT_TRUE(std::equal(own.sheets[i].begin(), own.sheets[i].end(), there.begin()));
        EXPECT_THAT(TextsOf(there).back(), std::to_string(i + 2) + "/4");
        for (std::size_t k = 0; k + 1 < there.size(); ++k) {
            EXPECT_FALSE(BoxOf(there[k]).Touche(BoxOf(there.back())));
        }
    }
}

TEST_F(Stack, AMissingOverlapIsAskedFor) {
    Add(600);
    Page().recouvrement = 0;
    regle = [] { return false; };
    EXPECT_EQ(Pile(Demand()).Prepare(), FinImpression::annule);
    int asked = 0;
    regle = [&] {
        ++asked;
        Page().recouvrement = 20;
        return true;
    };
    Add(500); // two sheets
    EXPECT_THAT(Print(), SizeIs(5));
    EXPECT_EQ(asked, 1); // for both
}

TEST_F(Stack, ADrawingHigherThanTheSheetIsARunOfItsOwnAndTold) {
    RibWorld &tall = Add(200);
    tall.rib.TypeGabarit = kGabaritMousse;
    tall.rib.bloc.HTbloc = 300;
    tall.rib.bloc.HTbasbloc = 100;
    First().platform.lenient = true;
    const auto sheets = Print();
    EXPECT_THAT(sheets, SizeIs(1));
    ASSERT_THAT(First().platform.boxes, SizeIs(1));
    EXPECT_THAT(First().platform.boxes[0].text, HasSubstr("rib1 200 mm\n<FrmPrint 230>"));
    EXPECT_THAT(First().platform.boxes[0].text, HasSubstr("rows\n"));
}

TEST_F(Stack, PaperIsTurnedForARibThatOnlySoHasRoom) {
    Add(500);
    Page().papiers = {{"roll", 300, 610}}; // upright: the rib lies along the 300
    Page().NumIndex = kPapierPropre;
    const auto sheets = Print();
    EXPECT_THAT(sheets, SizeIs(1));
    EXPECT_TRUE(question.landscape);
    EXPECT_THAT(printer.calls, ElementsAre("landscape", "paper 300 610", "draw", "end"));
    EXPECT_EQ(Page().papiers.size(), 1U);
}

TEST_F(Stack, PaperIsTurnedWhereThatSavesSheets) {
    // Eight of 21.8 mm and seven gaps are 209 mm: too many for 190, not for 277.
    for (int i = 0; i < 8; ++i) {
        Add(180);
    }
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    EXPECT_FALSE(question.landscape);
    EXPECT_TRUE(HasCheckLine(sheets[0], 100));
    ExpectWithin(sheets[0], {10, 10, 195, 287});
}

TEST_F(Stack, ThePrintersOwnPaperCountsAsTheFirstOne) {
    Add(200);
    Page().NumIndex = kPapierImprimante;
    Print();
    EXPECT_THAT(printer.calls, Contains("paper 210 297"));
}

TEST_F(Stack, APageAsLargeAsTheDrawingHoldsTheWholeStack) {
    for (int i = 0; i < 3; ++i) {
        Add(400);
    }
    Page().NumIndex = kPapierEntier;
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    const Reach reach = ReachOf2412();
    const double high = 3 * 400 * (reach.above + reach.below) + 2 * 5;
    // Both margins of 10 around it, the check line's 100 and 3 mm more below.
    const int height = static_cast<int>(std::ceil(high + 20 + 103));
    EXPECT_THAT(printer.calls,
                Contains("paper " + std::to_string(height) + " 426")); // 400.04 + 10 + 15
    EXPECT_TRUE(HasCheckLine(sheets[0], 100));
    ExpectWithin(sheets[0], {10, 10, 426 - 15, height - 10.0});
}

TEST_F(Stack, APageTooLargeForAnyProgramIsRefused) {
    Add(5200);
    Page().NumIndex = kPapierEntier;
    First().platform.lenient = true;
    EXPECT_EQ(Pile(Demand()).Prepare(), FinImpression::annule);
    ASSERT_THAT(First().platform.boxes, SizeIs(1));
    EXPECT_THAT(First().platform.boxes[0].text, HasSubstr("<FrmPrint 252> : 5226 x "));
}

TEST_F(Stack, APlotThatFailsIsToldWithItsLabel) {
    Add(200);
    Add(150).rib.NbContour = 30'000; // more than there are points
    First().platform.lenient = true;
    EXPECT_EQ(Pile(Demand()).Prepare(), FinImpression::trace_echec);
    ASSERT_THAT(First().platform.boxes, SizeIs(1));
    EXPECT_THAT(First().platform.boxes[0].text, HasSubstr("rib2 150 mm"));
}

TEST_F(Stack, APrinterThatFailsDropsTheJob) {
    for (int i = 0; i < 9; ++i) {
        Add(260);
    }
    First().platform.lenient = true;
    for (const bool at_end : {false, true}) {
        TestPrinter failing;
        failing.fails_at_sheet = at_end ? -1 : 1;
        failing.fails_at_end = at_end;
        Pile pile(Demand());
        ASSERT_FALSE(pile.Prepare());
        EXPECT_EQ(pile.Imprime(failing), FinImpression::echec);
        EXPECT_EQ(failing.calls.back(), "abort");
        EXPECT_THAT(failing.calls, Not(Contains("end")));
    }
    EXPECT_THAT(First().platform.boxes, SizeIs(2));
}

TEST_F(Stack, TheDialogIsAskedForThePaperAndCancelPrintsNothing) {
    Add(200);
    PrintQuestion asked;
    First().platform.make_printer = [&](const PrintQuestion &of) {
        asked = of;
        return nullptr;
    };
    Pile pile(Demand());
    EXPECT_EQ(ImprimePileSurDemande(pile, First().messages), FinImpression::annule);
    EXPECT_EQ(asked.document, "panel");
    EXPECT_EQ(asked.proposed_pdf, "panel.pdf");
    EXPECT_EQ(asked.long_side_mm, 297);
    EXPECT_EQ(asked.short_side_mm, 210);
    EXPECT_TRUE(asked.landscape);
}

TEST_F(Stack, APrintToAFileSaysWhereItWent) {
    Add(200);
    First().platform.make_printer = [](const PrintQuestion &) {
        auto made = std::make_unique<TestPrinter>();
        made->file = "/home/builder/panel.pdf";
        return made;
    };
    First().platform.lenient = true;
    Pile pile(Demand());
    EXPECT_EQ(ImprimePileSurDemande(pile, First().messages), FinImpression::imprime);
    ASSERT_THAT(First().platform.boxes, SizeIs(1));
    EXPECT_EQ(First().platform.boxes[0].text, "<FrmPrint 242>\n/home/builder/panel.pdf\n"
                                              "<FrmPrint 10> : 1\nA4 210 x 297 mm");
}

} // namespace
} // namespace loftwing
