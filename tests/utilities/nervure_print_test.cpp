#include "support/test_printer.h"
#include "utilities/panel_world.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::ElementsAre;

/// A printer that outlives its job, so that a test can look at the sheets.
class LentPrinter : public Printer {
  public:
    explicit LentPrinter(TestPrinter &kept) : kept_(kept) {}
    void SetOrientation(Orientation orientation) override { kept_.SetOrientation(orientation); }
    void SetPaperSize(double one, double other) override { kept_.SetPaperSize(one, other); }
    void NewPage() override { kept_.NewPage(); }
    void EndDoc() override { kept_.EndDoc(); }
    void Abort() override { kept_.Abort(); }
    std::string Fichier() const override { return kept_.Fichier(); }

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override {
        kept_.DrawWidth = pen.width;
        kept_.Line(x1, y1, x2, y2, pen.colour);
    }
    void CircleOutline(double, double, double, const Pen &) override { ADD_FAILURE(); }
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour) override {
        kept_.Font = font;
        kept_.CurrentX = x;
        kept_.CurrentY = y;
        kept_.Print(text);
        return kept_.CurrentX - x;
    }

  private:
    TestPrinter &kept_;
};

class NervurePrintTest : public PanelTest {
  protected:
    TestPrinter printer;

    NervurePrintTest() {
        words.platform.make_printer = [this](const PrintQuestion &) {
            return std::make_unique<LentPrinter>(printer);
        };
    }
    void Imprime(const std::optional<std::string> &nom) {
        ASSERT_EQ(Calcule(), std::nullopt);
        words.platform.texts_expected.push_back(nom);
        ImprimeNervures(panneau, saisie, "Panel");
    }
    const DrawnText *Find(const std::string &text, std::size_t sheet = 0) const {
        for (const Operation &operation : printer.sheets.at(sheet)) {
            const auto *drawn = std::get_if<DrawnText>(&operation);
            if (drawn != nullptr && drawn->text == text) {
                return drawn;
            }
        }
        return nullptr;
    }
    void ExpectAt(const std::string &text, double x, double y, std::size_t sheet = 0) const {
        const DrawnText *drawn = Find(text, sheet);
        ASSERT_NE(drawn, nullptr) << text;
        EXPECT_DOUBLE_EQ(drawn->x, x) << text;
        EXPECT_NEAR(drawn->y, y, 1e-9) << text;
        EXPECT_EQ(drawn->font.size, 10) << text;
    }
};

TEST_F(NervurePrintTest, EverythingHasItsPlaceOnTheSheet) {
    typed = {"200", "150", "3", "500", "60", "45", "2"};
    Imprime("Left wing");
    EXPECT_THAT(printer.calls, ElementsAre("portrait", "draw", "end"));
    ExpectAt("Name : " + std::string(7, ' ') + "Left wing", 283.5, 1134);
    ExpectAt("Major = 200", 283.5, 2268);
    ExpectAt("Spacing = 122.5", 3402, 2498);
    ExpectAt("Minor = 150", 7654.5, 2728);
    ExpectAt("Length = 500", 2835, 3402);
    ExpectAt("Count =  3", 2835, 3969);
    ExpectAt("Thickness = 2", 2835, 4536);
    ExpectAt("Ribs", 283.5, 5103);
    ExpectAt("N° ", 283.5, 5670);
    ExpectAt("Chord", 1134, 5670);
    ExpectAt("Spar", 2268, 5670);
    ExpectAt(" 1", 283.5, 6237);
    ExpectAt("150 ", 1134, 6237 + 4 * 230);
    ExpectAt(" 56.25", 2551.5, 6237 + 230);
}

TEST_F(NervurePrintTest, TheSketchIsAClosedOutline) {
    Imprime("x");
    std::vector<std::array<double, 4>> lines;
    for (const Operation &operation : printer.sheets.front()) {
        if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
            lines.push_back({line->x1, line->y1, line->x2, line->y2});
        }
    }
    const std::vector<std::array<double, 4>> expected = {{2835, 1417.5, 7371, 1530.9},
                                                         {7371, 1530.9, 7371, 2664.9},
                                                         {7371, 2664.9, 2835, 3118.5},
                                                         {2835, 3118.5, 2835, 1417.5}};
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t k = 0; k < 4; ++k) {
            EXPECT_NEAR(lines[i][k], expected[i][k], 1e-9) << i;
        }
    }
}

TEST_F(NervurePrintTest, WhatWasNotGivenIsLeftOut) {
    typed[kNervEpr] = "";
    Imprime("x");
    EXPECT_EQ(Find("Spacing = 0"), nullptr);
    EXPECT_EQ(Find("Length = "), nullptr);
    EXPECT_EQ(Find("Thickness = "), nullptr);
    EXPECT_EQ(Find("Spar"), nullptr);
    // Without a line for the spacing the minor chord stands a line higher.
    ExpectAt("Minor = 150", 7654.5, 2498);
}

TEST_F(NervurePrintTest, AThicknessWithoutLengthPrintsNoSpacing) {
    typed[kNervEpr] = "2";
    Imprime("x");
    ExpectAt("Thickness = 2", 2835, 4536);
    ExpectAt("Minor = 150", 7654.5, 2498);
}

TEST_F(NervurePrintTest, ALongListGoesOnOnFurtherSheets) {
    typed[kNervNbInter] = "98";
    Imprime("x");
    // 270 mm less 110 mm are 39 lines of 230 units, 270 less 30 mm are 59.
    ASSERT_EQ(printer.sheets.size(), 3U);
    ExpectAt(" 39", 283.5, 6237 + 38 * 230);
    EXPECT_EQ(Find(" 40"), nullptr);
    ExpectAt("Chord", 1134, 20 * 56.7, 1);
    ExpectAt(" 40", 283.5, 30 * 56.7, 1);
    ExpectAt(" 98", 283.5, 30 * 56.7 + 58 * 230, 1);
    ExpectAt(" 99", 283.5, 30 * 56.7, 2);
    ExpectAt(" 100", 283.5, 30 * 56.7 + 230, 2);
    EXPECT_EQ(printer.calls.back(), "end");
}

TEST_F(NervurePrintTest, AListThatFillsTheSheetTakesNoSecond) {
    typed[kNervNbInter] = "37";
    Imprime("x");
    EXPECT_EQ(printer.sheets.size(), 1U);
}

TEST_F(NervurePrintTest, TheNameIsAskedForAndNamesTheJob) {
    Imprime("Left wing");
    ASSERT_EQ(words.platform.print_questions.size(), 1U);
    const PrintQuestion &question = words.platform.print_questions.front();
    EXPECT_EQ(question.document, "Left wing");
    EXPECT_EQ(question.proposed_pdf, "Left wing.pdf");
    EXPECT_FALSE(question.landscape);
}

TEST_F(NervurePrintTest, AsAFileItSaysWhereThatIs) {
    printer.file = "/tmp/Left wing.pdf";
    words.platform.Expect(BoxAnswer::ok);
    Imprime("Left wing");
    EXPECT_EQ(words.LastBox().text, "pdf file\n/tmp/Left wing.pdf");
}

TEST_F(NervurePrintTest, WithoutANameNothingIsPrinted) {
    Imprime("");
    Imprime(std::nullopt);
    EXPECT_TRUE(words.platform.print_questions.empty());
    EXPECT_TRUE(printer.calls.empty());
}

TEST_F(NervurePrintTest, WithoutAPrinterNothingIsSaid) {
    words.platform.make_printer = nullptr;
    Imprime("x");
    EXPECT_EQ(words.platform.print_questions.size(), 1U);
    EXPECT_TRUE(words.platform.boxes.empty());
}

TEST_F(NervurePrintTest, AFailureIsToldAndDropsTheJob) {
    printer.fails_at_end = true;
    words.platform.pointer = Pointer::normal;
    words.platform.Expect(BoxAnswer::ok);
    Imprime("x");
    EXPECT_EQ(words.LastBox().title, "Panel - Error cmdprintnerv");
    EXPECT_TRUE(words.LastBox().text.starts_with("Run-time # 61 in ")) << words.LastBox().text;
    EXPECT_EQ(words.LastBox().icon, BoxIcon::information);
    EXPECT_EQ(words.platform.pointer, Pointer::normal);
    EXPECT_EQ(printer.calls.back(), "abort");
}

TEST_F(NervurePrintTest, APrinterThatDoesntOpenIsTold) {
    words.platform.make_printer = [](const PrintQuestion &) -> std::unique_ptr<Printer> {
        throw MakeFailure(kDeviceError);
    };
    words.platform.Expect(BoxAnswer::ok);
    Imprime("x");
    EXPECT_TRUE(words.LastBox().text.starts_with("Run-time # 57 in ")) << words.LastBox().text;
}

} // namespace
} // namespace loftwing
