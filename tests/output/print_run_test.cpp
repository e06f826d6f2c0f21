#include "output/print_run.h"

#include "support/drawing_text.h"
#include "support/naive_rib.h"
#include "support/rib_world.h"
#include "support/test_printer.h"

#include <gtest/gtest.h>

#include <array>

namespace loftwing {
namespace {

/// Settings of a new program (margins 10 and 15, overlap 20, line at 50 mm, A4) and a real airfoil.
class PrintRun : public testing::Test {
  protected:
    PrintRun() {
        TakeAirfoil(world, Naca(2412, 30));
        world.rib.NomProfil = "naca2412";
    }

    MiseEnPage &Page() { return world.settings.page; }
    /// Decides about the sheets; the page dialog may not come up.
    bool Prepare() {
        return PrepareFeuilles(world.Run(), [] {
            ADD_FAILURE() << "page dialog";
            return false;
        });
    }
    /// Decides about the sheets; the page dialog comes up once and the user does `work` in it.
    bool PrepareWith(const std::function<void()> &work, bool accepted = true) {
        int opened = 0;
        const bool go = PrepareFeuilles(world.Run(), [&] {
            ++opened;
            work();
            return accepted;
        });
        EXPECT_EQ(opened, 1);
        return go;
    }
    /// What the page dialog's OK does with unchanged entries.
    void Accept() { CalculPasPage(Page(), LongueurDe(world.rib)); }

    /// The lines that a sheet ends with, behind the rib's own.
    static std::vector<DrawnSegment> LastLines(const std::vector<Operation> &sheet, int count) {
        std::vector<DrawnSegment> lines;
        for (std::size_t i = sheet.size() - static_cast<std::size_t>(count); i < sheet.size();
             ++i) {
            lines.push_back(std::get<DrawnSegment>(sheet[i]));
        }
        return lines;
    }

    RibWorld world;
    TestPrinter printer;
};

TEST_F(PrintRun, QuestionNamesTheAirfoil) {
    EXPECT_EQ(QuestionImpression(world.rib, Comparaison{}, world.messages),
              "<TextButton 14> naca2412");
}

TEST_F(PrintRun, ChordOf200OnA4IsOneSheetWithoutOverlap) {
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Page().NbPages, 1);
    EXPECT_EQ(Page().recouvrement, 0.0F);
    EXPECT_EQ(Page().recouvrementAfich, "20"); // the stored text stays until it is typed anew
}

TEST_F(PrintRun, RibThatJustFitsIsOneSheet) {
    world.rib.corde = 272; // with both margins 297 mm
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Page().NbPages, 1);
}

TEST_F(PrintRun, ChordOf300OnA4AsksForThePageFirst) {
    world.rib.corde = 300;
    EXPECT_TRUE(PrepareWith([this] { Accept(); }));
    EXPECT_EQ(Page().PasPage, 252.0F);
    EXPECT_EQ(Page().NbPages, 2);
    EXPECT_EQ(Page().recouvrement, 20.0F);
}

TEST_F(PrintRun, SecondRunAsksNoMore) {
    world.rib.corde = 300;
    EXPECT_TRUE(PrepareWith([this] { Accept(); }));
    EXPECT_TRUE(Prepare());
}

TEST_F(PrintRun, OverlapLostToARibThatFittedBringsTheDialogBack) {
    world.rib.corde = 300;
    EXPECT_TRUE(PrepareWith([this] { Accept(); }));
    world.rib.corde = 200;
    EXPECT_TRUE(Prepare());
    world.rib.corde = 300;
    EXPECT_TRUE(PrepareWith([this] {
        EXPECT_EQ(Page().recouvrement, 0.0F);
        Page().recouvrement = 30;
        Accept();
    }));
    EXPECT_EQ(Page().PasPage, 242.0F);
}

TEST_F(PrintRun, CancelledPageDialogPrintsNothing) {
    world.rib.corde = 300;
    EXPECT_FALSE(PrepareWith([] {}, false));
    EXPECT_EQ(Page().NbPages, 0);
}

TEST_F(PrintRun, CancelOfAnotherDialogDoesNotCount) {
    world.rib.corde = 300;
    world.rib.Annule = true;
    EXPECT_TRUE(PrepareWith([this] { Accept(); }));
}

TEST_F(PrintRun, ChordChangedSinceThePageDialogIsCountedAnew) {
    world.rib.corde = 300;
    EXPECT_TRUE(PrepareWith([this] { Accept(); }));
    world.rib.corde = 760; // 3 steps of 252 are 756
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Page().NbPages, 4);
    Page().NumIndex = 7; // A3: steps of 375
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Page().PasPage, 375.0F);
    EXPECT_EQ(Page().NbPages, 3);
}

TEST_F(PrintRun, PaperChosenInTheDialogMayHoldTheRib) {
    world.rib.corde = 300;
    EXPECT_TRUE(PrepareWith([this] { Page().NumIndex = 7; }));
    EXPECT_EQ(Page().NbPages, 1);
}

TEST_F(PrintRun, PaperOfThePrinterIsOneSheetWhateverTheLength) {
    world.rib.corde = 5000;
    Page().NumIndex = 8;
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Page().recouvrement, 20.0F); // nothing is decided
    const Impression run = world.Run();
    EXPECT_EQ(Imprime(run, printer), FinImpression::imprime);
    EXPECT_EQ(printer.sheets.size(), 1U);
}

TEST_F(PrintRun, TemplateLengthCountsInsteadOfTheChord) {
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.LongBloc = 300;
    EXPECT_TRUE(PrepareWith([this] { Accept(); }));
    EXPECT_EQ(Page().NbPages, 2);
    world.rib.TypeGabarit = kGabaritTalon; // a heel makes the rib no longer
    EXPECT_TRUE(Prepare());
    EXPECT_EQ(Page().NbPages, 1);
}

TEST_F(PrintRun, MarginsThatLeaveNoRoomAreRefused) {
    world.rib.corde = 300;
    Page().NbPages = 2;
    Page().recouvrement = 273;
    world.platform.Expect(BoxAnswer::ok,
                          {.text = "<FrmPrint 22>", .title = "<Erreur 1>", .icon = BoxIcon::stop});
    EXPECT_FALSE(Prepare());
}

TEST_F(PrintRun, MoreThan255SheetsAreAnOverflow) {
    world.rib.corde = 300;
    Page().NbPages = 2;
    Page().recouvrement = 271.5F; // steps of half a millimetre
    world.platform.Expect(BoxAnswer::ok, {.text = "<Erreur 3> # 6 <Erreur 2> Loftwing\nOverflow",
                                          .title = "<Erreur 1>",
                                          .icon = BoxIcon::information});
    EXPECT_FALSE(Prepare());
}

TEST_F(PrintRun, PaperNumberFromNowhereIsReported) {
    Page().NumIndex = 10;
    world.platform.Expect(BoxAnswer::ok,
                          {.text = "<Erreur 3> # 9 <Erreur 2> Loftwing\nSubscript out of range",
                           .title = "<Erreur 1>",
                           .icon = BoxIcon::information});
    EXPECT_FALSE(Prepare());
}

TEST_F(PrintRun, PlatformIsAskedForTheChosenPaper) {
    Page().NumIndex = 3;
    const PrintQuestion legal = DemandeImprimante(world.Run());
    EXPECT_EQ(legal.document, "naca2412");
    EXPECT_TRUE(legal.landscape);
    EXPECT_EQ(legal.long_side_mm, 355.6);
    EXPECT_EQ(legal.short_side_mm, 215.9);
    EXPECT_EQ(legal.proposed_pdf, "naca2412.pdf");
    Page().NumIndex = 8;
    const PrintQuestion own = DemandeImprimante(world.Run());
    EXPECT_EQ(own.long_side_mm, 0);
    EXPECT_EQ(own.short_side_mm, 0);
}

TEST_F(PrintRun, OneSheetIsDrawnAtTheMarginsInLandscape) {
    world.rib.Zoom = 0.5F; // the screen's
    ASSERT_TRUE(Prepare());
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::imprime);
    EXPECT_EQ(printer.calls,
              (std::vector<std::string>{"landscape", "paper 210 297", "draw", "end"}));
    // The margin is taken off in units: 10 mm are 567, less 10.
    EXPECT_EQ(world.plot.OrigineX, static_cast<float>(567.0 - (0 + 10.0)));
    EXPECT_EQ(world.plot.OrigineY, 2835.0F);
    EXPECT_EQ(world.plot.CordeEchelle, 11340.0F);
    EXPECT_EQ(world.rib.Zoom, 1.0F);
}

TEST_F(PrintRun, OneSheetHasNoCrosses) {
    world.rib.AffLignRef = true;
    ASSERT_TRUE(Prepare());
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::imprime);
    const DrawnSegment last = LastLines(printer.sheets[0], 1).front();
    EXPECT_EQ(last.y1, 2835); // the reference line comes last
    EXPECT_NEAR(last.x2 - last.x1, 200 * 56.7 + 2, 1e-6);
}

TEST_F(PrintRun, PrintersOwnPaperIsLeftAloneAndKeepsTheFullMargin) {
    Page().NumIndex = 8;
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::imprime);
    EXPECT_EQ(printer.calls, (std::vector<std::string>{"landscape", "paper 0 0", "draw", "end"}));
    EXPECT_EQ(world.plot.OrigineX, 567.0F);
    EXPECT_EQ(world.plot.OrigineY, 2835.0F);
}

TEST_F(PrintRun, PlotFindsFontAndCurrentPointOfANewSheet) {
    Impression run = world.Run();
    Page().NbPages = 1;
    run.plot_routine = [](PlotDevice &device) {
        EXPECT_EQ(device.Font.size, 10);
        EXPECT_EQ(device.CurrentX, 0);
        EXPECT_EQ(device.CurrentY, 0);
        return true;
    };
    printer.Font.size = 3;
    printer.CurrentX = 17;
    EXPECT_EQ(imprimeXpage(run, printer), FinImpression::imprime);
    printer.Font.size = 3;
    printer.CurrentY = 17;
    EXPECT_EQ(imprime1page(run, printer), FinImpression::imprime);
}

TEST_F(PrintRun, SheetsShowTheSameDrawingShiftedByTheStep) {
    world.rib.corde = 600;
    ASSERT_TRUE(PrepareWith([this] { Accept(); }));
    ASSERT_EQ(Page().NbPages, 3);
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::imprime);
    EXPECT_EQ(printer.calls,
              (std::vector<std::string>{"landscape", "paper 210 297", "draw", "new page", "draw",
                                        "new page", "draw", "end"}));
    ASSERT_EQ(printer.sheets.size(), 3U);
    for (int i = 0; i < 3; ++i) {
        const auto &sheet = printer.sheets[static_cast<std::size_t>(i)];
        // 567 - (i * 252 * 56.7 + 10)
        const std::array<float, 3> origins = {557.0F, -13731.4F, -28019.8F};
        naive::Memory memory;
        memory.CordeEchelle = 34020;
        memory.OrigineX = origins.at(static_cast<std::size_t>(i));
        memory.OrigineY = 2835;
        const naive::Drawing rib = naive::PlotRib(world.rib, world.settings, memory);
        ASSERT_EQ(sheet.size(), rib.drawn.size() + 8);
        for (std::size_t k = 0; k < rib.drawn.size(); ++k) {
            if (rib.drawn[k].circle) {
                const auto &hole = std::get<DrawnCircle>(sheet[k]);
                ASSERT_NEAR(hole.x, rib.drawn[k].x1, 1e-6) << i << " " << k;
                ASSERT_NEAR(hole.y, rib.drawn[k].y1, 1e-6) << i << " " << k;
                continue;
            }
            const auto &line = std::get<DrawnSegment>(sheet[k]);
            ASSERT_NEAR(line.x1, rib.drawn[k].x1, 1e-6) << i << " " << k;
            ASSERT_NEAR(line.x2, rib.drawn[k].x2, 1e-6) << i << " " << k;
            ASSERT_NEAR(line.y2, rib.drawn[k].y2, 1e-6) << i << " " << k;
        }
    }
}

TEST_F(PrintRun, CrossesStandAtTheirPlaces) {
    world.rib.corde = 300;
    world.rib.ExtradosMaxi = 0.1; // 30 mm
    ASSERT_TRUE(PrepareWith([this] { Accept(); }));
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::imprime);
    // In mm: left 10, right 262; top 20, bottom 50 + 30 + 5; arms of 5.
    const std::array<std::array<double, 4>, 8> wanted = {{{262, 15, 262, 25},
                                                          {257, 20, 267, 20},
                                                          {262, 80, 262, 90},
                                                          {257, 85, 267, 85},
                                                          {10, 15, 10, 25},
                                                          {5, 20, 15, 20},
                                                          {10, 80, 10, 90},
                                                          {5, 85, 15, 85}}};
    ASSERT_EQ(printer.sheets.size(), 2U);
    for (const auto &sheet : printer.sheets) {
        const std::vector<DrawnSegment> lines = LastLines(sheet, 8);
        for (std::size_t i = 0; i < 8; ++i) {
            SCOPED_TRACE(i);
            EXPECT_NEAR(lines[i].x1, wanted.at(i)[0] * 56.7, 1e-6);
            EXPECT_NEAR(lines[i].y1, wanted.at(i)[1] * 56.7, 1e-6);
            EXPECT_NEAR(lines[i].x2, wanted.at(i)[2] * 56.7, 1e-6);
            EXPECT_NEAR(lines[i].y2, wanted.at(i)[3] * 56.7, 1e-6);
            EXPECT_EQ(lines[i].pen, (Pen{0xFF0000, 1, LineStyle::dash_dot}));
        }
    }
}

TEST_F(PrintRun, RightCrossesOfASheetAreTheLeftOnesOfTheNext) {
    world.rib.corde = 1000;
    Page().recouvrement = 33.3F;
    Page().MargeHaut = 7.7F;
    std::vector<double> origins;
    ASSERT_TRUE(PrepareWith([this] { Accept(); }));
    ASSERT_EQ(Page().NbPages, 5);
    Impression run = world.Run();
    run.plot_routine = [&](PlotDevice &) {
        origins.push_back(static_cast<double>(world.plot.OrigineX));
        return true;
    };
    EXPECT_EQ(Imprime(run, printer), FinImpression::imprime);
    ASSERT_EQ(origins.size(), 5U);
    for (std::size_t i = 0; i + 1 < origins.size(); ++i) {
        const std::vector<DrawnSegment> here = LastLines(printer.sheets[i], 8);
        const std::vector<DrawnSegment> next = LastLines(printer.sheets[i + 1], 8);
        for (std::size_t k = 0; k < 4; ++k) {
            // Places on the rib; the origins are 32 bits wide.
            EXPECT_NEAR(here[k].x1 - origins[i], next[k + 4].x1 - origins[i + 1], 0.01);
            EXPECT_EQ(here[k].y1, next[k + 4].y1);
            EXPECT_EQ(here[k].y2, next[k + 4].y2);
        }
    }
}

TEST_F(PrintRun, CrossesAreForSeveralSheetsOnly) {
    Page().NbPages = 1;
    tracerepere(world.Run(), printer);
    EXPECT_TRUE(printer.sheets[0].empty());
    Page().NbPages = 2;
    tracerepere(world.Run(), printer);
    EXPECT_EQ(printer.sheets[0].size(), 8U);
    EXPECT_EQ(printer.DrawStyle, 0);
}

TEST_F(PrintRun, PointerIsBusyWhileItPrints) {
    Impression run = world.Run();
    Page().NbPages = 1;
    run.plot_routine = [&](PlotDevice &) {
        EXPECT_EQ(world.platform.pointer, Pointer::busy);
        return true;
    };
    EXPECT_EQ(imprimeXpage(run, printer), FinImpression::imprime);
    EXPECT_EQ(imprime1page(run, printer), FinImpression::imprime);
    EXPECT_EQ(world.platform.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal,
                                                             Pointer::busy, Pointer::normal}));
}

TEST_F(PrintRun, PrinterThatFailsIsToldAndTheJobDropped) {
    world.rib.corde = 600;
    ASSERT_TRUE(PrepareWith([this] { Accept(); }));
    printer.fails_at_sheet = 1;
    world.platform.Expect(
        BoxAnswer::ok, {.text = "<Erreur 3> # 57 <Erreur 2> Loftwing\nDevice input/output error",
                        .title = "<Erreur 1>",
                        .icon = BoxIcon::information,
                        .meanwhile = [&] { EXPECT_EQ(world.platform.pointer, Pointer::normal); }});
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::echec);
    EXPECT_EQ(printer.calls.back(), "abort");
    EXPECT_EQ(printer.sheets.size(), 1U);
}

TEST_F(PrintRun, RefusedEndIsToldOnEitherRun) {
    printer.fails_at_end = true;
    Page().NbPages = 1;
    for (const std::uint8_t paper : {std::uint8_t{0}, std::uint8_t{8}}) {
        Page().NumIndex = paper;
        world.platform.Expect(BoxAnswer::ok,
                              {.text = "<Erreur 3> # 61 <Erreur 2> Loftwing\nDisk full",
                               .title = "<Erreur 1>",
                               .icon = BoxIcon::information});
        EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::echec);
        EXPECT_EQ(printer.calls.back(), "abort");
        EXPECT_EQ(world.platform.pointer, Pointer::normal);
    }
}

TEST_F(PrintRun, PlotThatFailsDropsTheJobAndIsToldOnce) {
    world.settings.TraitDe(Element::bf).couleur = 16;
    Page().NbPages = 2;
    for (const std::uint8_t paper : {std::uint8_t{0}, std::uint8_t{8}}) {
        Page().NumIndex = paper;
        world.platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::trace_echec);
        EXPECT_EQ(printer.calls.back(), "abort");
    }
    EXPECT_EQ(world.platform.boxes.size(), 2U);
}

TEST_F(PrintRun, ColourOfTheCrossesBeyondThePaletteIsAFailureOfTheRun) {
    world.rib.AffLignRef = false;
    world.rib.trou[0].TypeTrou = 2; // a kind without shape, so that no axis is drawn
    world.settings.TraitDe(Element::axe).couleur = 16;
    world.rib.corde = 300;
    ASSERT_TRUE(PrepareWith([this] { Accept(); }));
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::echec);
    EXPECT_EQ(world.platform.boxes.back().text,
              "<Erreur 3> # 5 <Erreur 2> Loftwing\nInvalid procedure call or argument");
}

} // namespace
} // namespace loftwing
