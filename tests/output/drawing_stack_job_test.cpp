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

/// Paper, tiled ribs, printers and faults.
class StackJob : public StackOfRibs {};

TEST_F(StackJob, ALongRibIsTiledBehindTheOthersAsItIsAlone) {
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
    EXPECT_NEAR(References(sheets[0])[0].Length(), 200 + 2 / kStackMm, 1E-3);
    for (std::size_t i = 0; i < own.sheets.size(); ++i) {
        SCOPED_TRACE(i);
        const StackOps &there = sheets[i + 1];
        // All the same and the number behind it.
        ASSERT_EQ(there.size(), own.sheets[i].size() + 1);
        EXPECT_TRUE(std::equal(own.sheets[i].begin(), own.sheets[i].end(), there.begin()));
        EXPECT_THAT(StackTextsOf(there).back(), std::to_string(i + 2) + "/4");
        for (std::size_t k = 0; k + 1 < there.size(); ++k) {
            EXPECT_FALSE(StackBoxOf(there[k]).Touche(StackBoxOf(there.back())));
        }
    }
}

TEST_F(StackJob, AMissingOverlapIsAskedFor) {
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

TEST_F(StackJob, ADrawingHigherThanTheSheetIsARunOfItsOwnAndTold) {
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

TEST_F(StackJob, PaperIsTurnedForARibThatOnlySoHasRoom) {
    Add(500);
    Page().papiers = {{"roll", 300, 610}}; // upright: the rib lies along the 300
    Page().NumIndex = kPapierPropre;
    const auto sheets = Print();
    EXPECT_THAT(sheets, SizeIs(1));
    EXPECT_TRUE(question.landscape);
    EXPECT_THAT(printer.calls, ElementsAre("landscape", "paper 300 610", "draw", "end"));
    EXPECT_EQ(Page().papiers.size(), 1U);
}

TEST_F(StackJob, PaperIsTurnedWhereThatSavesSheets) {
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

TEST_F(StackJob, ThePrintersOwnPaperCountsAsTheFirstOne) {
    Add(200);
    Page().NumIndex = kPapierImprimante;
    Print();
    EXPECT_THAT(printer.calls, Contains("paper 210 297"));
}

TEST_F(StackJob, APageAsLargeAsTheDrawingHoldsTheWholeStack) {
    for (int i = 0; i < 3; ++i) {
        Add(400);
    }
    Page().NumIndex = kPapierEntier;
    const auto sheets = Print();
    ASSERT_THAT(sheets, SizeIs(1));
    const StackReach reach = ReachOf2412();
    const double high = 3 * 400 * (reach.above + reach.below) + 2 * 5;
    // Both margins of 10 around it, the check line's 100 and 3 mm more below.
    const int height = static_cast<int>(std::ceil(high + 20 + 103));
    EXPECT_THAT(printer.calls,
                Contains("paper " + std::to_string(height) + " 426")); // 400.04 + 10 + 15
    EXPECT_TRUE(HasCheckLine(sheets[0], 100));
    ExpectWithin(sheets[0], {10, 10, 426 - 15, height - 10.0});
}

TEST_F(StackJob, APageTooLargeForAnyProgramIsRefused) {
    Add(5200);
    Page().NumIndex = kPapierEntier;
    First().platform.lenient = true;
    EXPECT_EQ(Pile(Demand()).Prepare(), FinImpression::annule);
    ASSERT_THAT(First().platform.boxes, SizeIs(1));
    EXPECT_THAT(First().platform.boxes[0].text, HasSubstr("<FrmPrint 252> : 5226 x "));
}

TEST_F(StackJob, APlotThatFailsIsToldWithItsLabel) {
    Add(200);
    Add(150).rib.NbContour = 30'000; // more than there are points
    First().platform.lenient = true;
    EXPECT_EQ(Pile(Demand()).Prepare(), FinImpression::trace_echec);
    ASSERT_THAT(First().platform.boxes, SizeIs(1));
    EXPECT_THAT(First().platform.boxes[0].text, HasSubstr("rib2 150 mm"));
}

TEST_F(StackJob, APrinterThatFailsDropsTheJob) {
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

TEST_F(StackJob, TheDialogIsAskedForThePaperAndCancelPrintsNothing) {
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

TEST_F(StackJob, APrintToAFileSaysWhereItWent) {
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
