#include "output/etendue.h"
#include "output/print_run.h"
#include "support/rib_world.h"
#include "support/test_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// Prints with check lines: A4, margins 10 and 15, overlap 20, line at 50 mm.
class CheckLines : public testing::Test {
  protected:
    CheckLines() {
        TakeAirfoil(world, Naca(2412, 30));
        world.rib.NomProfil = "naca2412";
        // What was plotted before shows in stocks with sheeting, so a plot too many would too.
        world.rib.EpBA = 5;
        world.rib.EpBF = 10;
        world.rib.EpCoffrage = 1.5F;
        Page().temoin = true;
    }

    using Sheets = std::vector<std::vector<Operation>>;

    MiseEnPage &Page() { return world.settings.page; }
    /// Prints with a plot state of its own.
    Sheets Print() {
        const PlotState fresh;
        world.plot = fresh;
        Page().entiere = {};
        Impression run = world.Run();
        run.date = "2031-05-24";
        if (plot) {
            run.plot_routine = plot;
        }
        EXPECT_TRUE(PrepareFeuilles(run, [this] {
            CalculPasPage(Page(), LongueurDe(world.rib));
            return true;
        }));
        EXPECT_FALSE(PrepareDessin(run));
        TestPrinter printer;
        printer.own_paper = own_paper;
        EXPECT_EQ(Imprime(run, printer), FinImpression::imprime);
        return printer.sheets;
    }
    Sheets PrintWithout() {
        Page().temoin = false;
        const Sheets sheets = Print();
        Page().temoin = true;
        return sheets;
    }
    /// Draws one horizontal line at every `step` mm of the sheet, wherever that lies.
    void Fill(double step) {
        plot = [this, step](PlotDevice &device) {
            for (double y = 0; y <= 300; y += step) {
                device.Line(-5000, y * 56.7, 50000, y * 56.7, 0);
            }
            return true;
        };
    }

    /// All texts of a sheet behind the first `from` operations, in a row.
    static std::string Words(const std::vector<Operation> &operations, std::size_t from = 0) {
        std::string words;
        for (std::size_t i = from; i < operations.size(); ++i) {
            if (const auto *text = std::get_if<DrawnText>(&operations[i])) {
                words += (words.empty() ? "" : " ") + text->text;
            }
        }
        return words;
    }
    static std::string Note(const Sheets &with, const Sheets &without, std::size_t sheet) {
        return Words(with.at(sheet), without.at(sheet).size());
    }
    /// Boxes in mm of what stands in a list from `from` on.
    static std::vector<Etendue> Boxes(const std::vector<Operation> &operations, std::size_t from,
                                      std::size_t to) {
        Metre metre;
        for (std::size_t i = from; i < to; ++i) {
            if (const auto *line = std::get_if<DrawnSegment>(&operations[i])) {
                metre.Line(line->x1, line->y1, line->x2, line->y2, 0);
            } else if (const auto *circle = std::get_if<DrawnCircle>(&operations[i])) {
                metre.Circle(circle->x, circle->y, circle->radius, 0);
            } else if (const auto *text = std::get_if<DrawnText>(&operations[i])) {
                metre.Font = text->font;
                metre.CurrentX = text->x;
                metre.CurrentY = text->y;
                metre.Print(text->text);
            }
        }
        return metre.encres;
    }
    /// The sheets begin with the same as those without check lines, and what follows touches none
    /// of it.
    static void ExpectOnlyAdded(const Sheets &with, const Sheets &without) {
        ASSERT_GE(with.size(), without.size());
        for (std::size_t i = 0; i < without.size(); ++i) {
            SCOPED_TRACE(i);
            ASSERT_GE(with[i].size(), without[i].size());
            EXPECT_TRUE(std::equal(without[i].begin(), without[i].end(), with[i].begin()));
            const std::vector<Etendue> drawn = Boxes(with[i], 0, without[i].size());
            for (const Etendue &mark : Boxes(with[i], without[i].size(), with[i].size())) {
                EXPECT_TRUE(std::none_of(drawn.begin(), drawn.end(),
                                         [&](const Etendue &ink) { return ink.Touche(mark); }));
            }
        }
    }
    /// How many lines a sheet has behind the first `from` operations.
    static std::ptrdiff_t Lines(const std::vector<Operation> &operations, std::size_t from = 0) {
        return std::count_if(
            operations.begin() + static_cast<std::ptrdiff_t>(from), operations.end(),
            [](const Operation &each) { return std::holds_alternative<DrawnSegment>(each); });
    }
    static std::ptrdiff_t Added(const Sheets &with, const Sheets &without, std::size_t sheet) {
        return Lines(with.at(sheet), without.at(sheet).size());
    }
    static constexpr long kLines = 22; ///< two arms with ten ticks each

    RibWorld world;
    std::function<bool(PlotDevice &)> plot;
    SheetSize own_paper;
};

TEST_F(CheckLines, AreOffUnlessAskedFor) {
    EXPECT_FALSE(MiseEnPage{}.temoin);
    EXPECT_THAT(Words(PrintWithout().at(0)), Not(HasSubstr("FrmPrint 270")));
}

TEST_F(CheckLines, OneSheetHasOneBesideAllElse) {
    const Sheets without = PrintWithout();
    const Sheets with = Print();
    ASSERT_EQ(with.size(), 1U);
    ExpectOnlyAdded(with, without);
    EXPECT_EQ(Added(with, without, 0), kLines);
    EXPECT_EQ(Note(with, without, 0),
              "<FrmPrint 270> : 100 mm naca2412 "
              "<FrmPrint 271> 200 mm, <FrmPrint 272> 1 <FrmPrint 273> 1, 2031-05-24");
}

TEST_F(CheckLines, AllSheetsOfALongRibHaveOne) {
    world.rib.corde = 600;
    const Sheets without = PrintWithout();
    const Sheets with = Print();
    ASSERT_EQ(with.size(), 3U);
    ExpectOnlyAdded(with, without);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(Added(with, without, i), kLines);
        EXPECT_EQ(Note(with, without, i), "<FrmPrint 270> : 100 mm naca2412 <FrmPrint 271> 600 mm, "
                                          "<FrmPrint 272> " +
                                              std::to_string(i + 1) +
                                              " <FrmPrint 273> 3, 2031-05-24");
    }
}

TEST_F(CheckLines, RowsOfSheetsHaveThemToo) {
    world.rib.corde = 2500;
    Page().en_rangees = true;
    const Sheets without = PrintWithout();
    const Sheets with = Print();
    ASSERT_GT(Page().rangees.nombre, 1);
    ASSERT_EQ(without.size(), static_cast<std::size_t>(NombreFeuilles(Page())));
    ExpectOnlyAdded(with, without);
    EXPECT_EQ(Added(with, without, 0), kLines);
}

TEST_F(CheckLines, KeepClearOfCrosses) {
    // 1000 mm at 0.1: crosses 5 mm around x 10 and 262, y 155 and 50 - 100. On the left the arm
    // across the sheet would run through that at 10, 155.
    world.rib.corde = 1000;
    world.rib.ExtradosMaxi = 0.1;
    plot = [](PlotDevice &) { return true; };
    const Sheets with = Print();
    ASSERT_EQ(with.size(), 4U);
    for (const auto &sheet : with) {
        ASSERT_EQ(Lines(sheet, 8), kLines);
        const auto &arm = std::get<DrawnSegment>(sheet[8]);
        EXPECT_NEAR(arm.x1 / 56.7, 282, 1e-9);
        EXPECT_NEAR(arm.x2 / 56.7, 182, 1e-9);
        EXPECT_NEAR(arm.y1 / 56.7, 200, 1e-9);
    }
}

TEST_F(CheckLines, SheetsWithoutRoomShareOneOfTheirOwn) {
    Fill(3); // the arms take 4 mm, the clear distance 2 on either side
    world.rib.corde = 300;
    const Sheets without = PrintWithout();
    const Sheets with = Print();
    ASSERT_EQ(without.size(), 2U);
    ASSERT_EQ(with.size(), 3U);
    EXPECT_EQ(with[0], without[0]);
    EXPECT_EQ(with[1], without[1]);
    EXPECT_EQ(Lines(with[2]), kLines);
    EXPECT_EQ(Words(with[2]), "<FrmPrint 270> : 100 mm naca2412 "
                              "<FrmPrint 271> 300 mm, <FrmPrint 274> : 2, 2031-05-24");
    const auto &arm = std::get<DrawnSegment>(with[2][0]);
    EXPECT_NEAR(arm.x2 - arm.x1, 100 * 56.7, 1e-6);
}

TEST_F(CheckLines, PaperTooSmallForAnyHasNoSheetMore) {
    Page().papiers = {{"strip", 400, 60}};
    Page().NumIndex = kPapierPropre;
    EXPECT_EQ(Print(), PrintWithout());
}

TEST_F(CheckLines, ThePrintersPaperHasOneWhereItsSizeIsKnown) {
    Page().NumIndex = kPapierImprimante;
    const Sheets without = PrintWithout();
    EXPECT_EQ(Print(), without);
    own_paper = {420, 297};
    const Sheets with = Print();
    ASSERT_EQ(with.size(), 1U);
    ExpectOnlyAdded(with, without);
    ASSERT_EQ(Added(with, without, 0), kLines);
    const auto &arm = std::get<DrawnSegment>(with[0][without[0].size()]);
    EXPECT_NEAR(arm.y1, (297 - 10) * 56.7, 1e-6);
}

TEST_F(CheckLines, APageAsLargeAsTheDrawingHasRoomBelow) {
    Page().NumIndex = kPapierEntier;
    const Sheets without = PrintWithout();
    const PageEntiere bare = Page().entiere;
    const Sheets with = Print();
    EXPECT_EQ(Page().entiere.longueur, bare.longueur);
    EXPECT_EQ(Page().entiere.Yd, bare.Yd);
    EXPECT_GE(Page().entiere.largeur, bare.largeur + 100);
    EXPECT_LE(Page().entiere.largeur, bare.largeur + 110);
    ExpectOnlyAdded(with, without);
    EXPECT_EQ(Added(with, without, 0), kLines);
}

TEST_F(CheckLines, APageForAShortRibIsLongEnoughForOne) {
    Page().NumIndex = kPapierEntier;
    Page().MargeHaut = Page().MargeBas = 2; // the line keeps 8
    world.rib.corde = 60;
    const Sheets without = PrintWithout();
    const Sheets with = Print();
    EXPECT_EQ(Page().entiere.longueur, 116);
    ASSERT_EQ(with.size(), 1U);
    ExpectOnlyAdded(with, without);
    EXPECT_THAT(Note(with, without, 0), StartsWith("<FrmPrint 270> : 100 mm"));
}

TEST_F(CheckLines, InchesHaveInches) {
    world.settings.Unite = " in";
    world.rib.corde = 203.2F;
    const Sheets without = PrintWithout();
    EXPECT_EQ(Note(Print(), without, 0),
              "<FrmPrint 270> : 4 in naca2412 "
              "<FrmPrint 271> 8 in, <FrmPrint 272> 1 <FrmPrint 273> 1, 2031-05-24");
}

TEST_F(CheckLines, APlotThatFailsIsToldOnce) {
    world.settings.TraitDe(Element::bf).couleur = 16;
    Page().NbPages = 2;
    for (const std::uint8_t paper : {std::uint8_t{0}, std::uint8_t{8}}) {
        Page().NumIndex = paper;
        TestPrinter printer;
        printer.own_paper = {297, 210};
        world.platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Imprime(world.Run(), printer), FinImpression::trace_echec);
        EXPECT_EQ(printer.calls.back(), "abort");
    }
    EXPECT_EQ(world.platform.boxes.size(), 2U);
}

} // namespace
} // namespace loftwing
