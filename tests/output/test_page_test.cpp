#include "output/test_page.h"

#include "base/version.h"
#include "support/test_printer.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace loftwing {
namespace {

constexpr const char *kLineWords =
    "[FrmLines]\n17=all colours\n18=all styles\n19=Sheet\n23=sent\n[Erreur]\n1=Error\n2=of\n"
    "3=Trouble\n[FrmPrint]\n241=which pdf\n242=pdf file\n";

/// A line of a drawing that is exact but for the rounding of sums.
void ExpectLine(const Operation &operation, double x1, double x2, double y, const Pen &pen) {
    const auto *line = std::get_if<DrawnSegment>(&operation);
    ASSERT_NE(line, nullptr);
    EXPECT_NEAR(line->x1, x1, 1e-6);
    EXPECT_NEAR(line->x2, x2, 1e-6);
    EXPECT_NEAR(line->y1, y, 1e-6);
    EXPECT_NEAR(line->y2, y, 1e-6);
    EXPECT_EQ(line->pen, pen);
}

void ExpectText(const Operation &operation, double x, double y, const std::string &text,
                double size) {
    const auto *drawn = std::get_if<DrawnText>(&operation);
    ASSERT_NE(drawn, nullptr) << text;
    EXPECT_NEAR(drawn->x, x, 1e-6) << text;
    EXPECT_NEAR(drawn->y, y, 1e-6) << text;
    EXPECT_EQ(drawn->text, text);
    EXPECT_EQ(drawn->font.size, size) << text;
    EXPECT_EQ(drawn->colour, 0U);
}

constexpr LineStyle kStyles[] = {LineStyle::solid, LineStyle::dash, LineStyle::dot,
                                 LineStyle::dash_dot, LineStyle::dash_dot_dot};

class TestPage : public testing::Test {
  protected:
    Words words{kLineWords};
    Recording page;
    std::size_t next = 0;

    const Operation &Next() { return page.Operations().at(next++); }
};

// Place of the rows: 35 mm and 30 mm from the corner, 56.7 units a millimetre.
TEST_F(TestPage, ShowsEveryColourInEveryWidthThenEveryStyleThenEverySize) {
    TracePageTest(page, words.language);
    const std::string version = std::to_string(kVersionMajor) + "." +
                                std::to_string(kVersionMinor) + "." +
                                std::to_string(kVersionRevision) + "-F";
    ExpectText(Next(), 0, 0, version, 10);
    ExpectText(Next(), 1701, 1984.5, "Epaisseur = 1     Epaisseur = 2   Epaisseur = 3", 10);
    double y = 1984.5 + 283.5;
    for (int n = 0; n <= 14; ++n, y += 226.8) {
        const Colour colour = PaletteColour(n);
        ExpectText(Next(), 1417.5, y, std::to_string(n), 10);
        ExpectLine(Next(), 1701, 3118.5, y + 113.4, {colour, 1, LineStyle::solid});
        ExpectLine(Next(), 3175.2, 4536, y + 113.4, {colour, 2, LineStyle::solid});
        ExpectLine(Next(), 4592.7, 5953.5, y + 113.4, {colour, 3, LineStyle::solid});
    }
    ExpectText(Next(), 1701, y, "all styles", 10);
    y += 226.8;
    for (int n = 0; n <= 4; ++n, y += 226.8) {
        ExpectText(Next(), 1417.5, y, std::to_string(n), 10);
        ExpectLine(Next(), 1701, 5953.5, y + 113.4, {0, 1, kStyles[n]});
    }
    ExpectText(Next(), 1701, y, "Text size on View / Insert Text", 10);
    const std::pair<double, const char *> sizes[] = {
        {10, "Taille 10 = Corde 200 mm or 8 in "}, {9, "Taille 9 = Corde 200 or 8 in"},
        {8, "Taille 8 = Corde 200 mm or 8 in"},    {7, "Taille 7 = Corde 200 mm or 8 in"},
        {6, "Taille 6 = Corde 200 or 8 in"},       {5, "Taille 5 = Corde 200 mm or 8 in"}};
    for (const auto &[size, text] : sizes) {
        ExpectText(Next(), 1701, y += 283.5, text, size);
    }
    EXPECT_EQ(next, page.Operations().size());
}

TEST_F(TestPage, StaysOnASheetOfPaper) {
    TracePageTest(page, words.language);
    const Extent extent = page.Bounds();
    EXPECT_LT(extent.bottom, 279.4 * 56.7);
    EXPECT_LT(extent.right, 210 * 56.7);
}

TEST_F(TestPage, LeavesThePenAsItFoundIt) {
    TracePageTest(page, words.language);
    EXPECT_EQ(page.DrawWidth, 1);
    EXPECT_EQ(page.DrawStyle, 0);
    EXPECT_EQ(page.Font.size, 10);
}

TEST_F(TestPage, LegendHasRowsOfFourUnits) {
    constexpr double u = 56.7;
    TraceLegende(page, words.language);
    ExpectText(Next(), 7 * u, 2 * u, "all colours", 8);
    double y = 6 * u;
    double below = 0;
    for (int n = 0; n <= 14; ++n, y += 4 * u) {
        const Colour colour = PaletteColour(n);
        ExpectText(Next(), 2 * u, y, std::to_string(n), 8);
        // Beside its number, wherever that is.
        below = std::get<DrawnSegment>(page.Operations().at(next)).y1 - y;
        EXPECT_GT(below, 0);
        EXPECT_LT(below, 4 * u);
        ExpectLine(Next(), 7 * u, 17 * u, y + below, {colour, 1, LineStyle::solid});
        ExpectLine(Next(), 18 * u, 27 * u, y + below, {colour, 2, LineStyle::solid});
        ExpectLine(Next(), 28 * u, 37 * u, y + below, {colour, 3, LineStyle::solid});
    }
    ExpectText(Next(), 7 * u, y, "all styles", 8);
    y += 4 * u;
    for (int n = 0; n <= 4; ++n, y += 4 * u) {
        ExpectText(Next(), 2 * u, y, std::to_string(n), 8);
        ExpectLine(Next(), 7 * u, 37 * u, y + below, {0, 1, kStyles[n]});
    }
    EXPECT_EQ(next, page.Operations().size());
}

class TestPagePrinted : public testing::Test {
  protected:
    TestPagePrinted() {
        words.platform.make_printer = [this](const PrintQuestion &) {
            auto made = std::make_unique<Forwarding>(printer);
            return made;
        };
    }

    /// The printer of a job dies with it; the test's own one lives on.
    class Forwarding : public TestPrinter {
      public:
        explicit Forwarding(TestPrinter &kept) : kept_(kept) { fails_at_end = kept.fails_at_end; }
        ~Forwarding() override {
            kept_.calls = calls;
            kept_.sheets = sheets;
        }

      private:
        TestPrinter &kept_;
    };

    Words words{kLineWords};
    TestPrinter printer;
};

TEST_F(TestPagePrinted, GoesInPortraitToThePrintersOwnPaperAndIsTold) {
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_TRUE(cmdImprtest(words.messages));
    const PrintQuestion &question = words.platform.print_questions.at(0);
    EXPECT_FALSE(question.landscape);
    EXPECT_EQ(question.long_side_mm, 0);
    EXPECT_EQ(question.document, "Sheet");
    EXPECT_EQ(question.proposed_pdf, "Sheet.pdf");
    EXPECT_EQ(printer.calls, (std::vector<std::string>{"portrait", "draw", "end"}));
    ASSERT_EQ(printer.sheets.size(), 1U);
    Recording drawing;
    TracePageTest(drawing, words.language);
    EXPECT_EQ(printer.sheets.front(), drawing.Operations());
    EXPECT_EQ(words.LastBox().text, "sent");
    EXPECT_EQ(words.LastBox().icon, BoxIcon::information);
}

TEST_F(TestPagePrinted, AsAFileItSaysWhereThatIs) {
    words.platform.make_printer = [](const PrintQuestion &) {
        auto made = std::make_unique<TestPrinter>();
        made->file = "/tmp/Sheet.pdf";
        return made;
    };
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_TRUE(cmdImprtest(words.messages));
    EXPECT_EQ(words.LastBox().text, "pdf file\n/tmp/Sheet.pdf");
    EXPECT_EQ(words.platform.print_questions.at(0).pdf_title, "which pdf");
}

TEST_F(TestPagePrinted, NothingIsSaidWhenTheUserTakesNoPrinter) {
    words.platform.make_printer = nullptr;
    EXPECT_FALSE(cmdImprtest(words.messages));
}

TEST_F(TestPagePrinted, ARefusedJobIsDroppedAndReported) {
    printer.fails_at_end = true;
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(cmdImprtest(words.messages));
    EXPECT_EQ(printer.calls, (std::vector<std::string>{"portrait", "draw", "abort"}));
    EXPECT_EQ(words.LastBox().title, "Error cmdImprtest");
    EXPECT_EQ(words.LastBox().text.substr(0, words.LastBox().text.find('\n')),
              "Trouble # 61 of Loftwing");
}

TEST_F(TestPagePrinted, APrinterThatDoesntOpenIsReported) {
    words.platform.make_printer = [](const PrintQuestion &) -> std::unique_ptr<Printer> {
        throw MakeFailure(kDeviceError);
    };
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_FALSE(cmdImprtest(words.messages));
    EXPECT_EQ(words.LastBox().title, "Error cmdImprtest");
    EXPECT_TRUE(words.LastBox().text.starts_with("Trouble # 57 of Loftwing\n"));
}

} // namespace
} // namespace loftwing
