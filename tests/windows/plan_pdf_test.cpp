// Building plans as PDF, as another program measures them.

#include "output/plan_fixture.h"
#include "platform/qt_printer.h"
#include "support/qt_pdf.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace loftwing {
namespace {

constexpr double kPlanTrue = 0.02; // mm
constexpr double kPointMm = 25.4 / 72;

class PlanPdf : public testing::Test {
  protected:
    ReadPdf Write(Printer &printer) {
        printer.EndDoc();
        return ReadPdf(QString::fromStdString(folder.File("plan.pdf", bytes)));
    }
    /// Whether a line with these ends, mm on the sheet, is on a page.
    static bool Has(const std::vector<QPolygonF> &lines, QPointF from, QPointF to) {
        for (const QPolygonF &line : lines) {
            for (qsizetype i = 1; i < line.size(); ++i) {
                const QPointF start = line[i - 1] - from;
                const QPointF end = line[i] - to;
                if (std::hypot(start.x(), start.y()) < kPlanTrue &&
                    std::hypot(end.x(), end.y()) < kPlanTrue) {
                    return true;
                }
            }
        }
        return false;
    }

    std::string bytes;
    TempFolder folder;
};

TEST_F(PlanPdf, OnePageHoldsTheWholePlan) {
    const auto printer = MakePdfPrinter(bytes, "plan");
    ImprimePlanEntier(*printer, {PlanByHand()}, kPlanColours);
    const ReadPdf pdf = Write(*printer);
    ASSERT_EQ(pdf.PageSizes().size(), 1U);
    EXPECT_NEAR(pdf.PageSizes()[0].width() * kPointMm, 420, 0.5);
    EXPECT_NEAR(pdf.PageSizes()[0].height() * kPointMm, 216, 0.5);
    const auto lines = pdf.Lines(1);
    EXPECT_TRUE(Has(lines, {10, 23.62}, {410, 43.62}));
    EXPECT_TRUE(Has(lines, {110, 28.62}, {113, 28.62}));
    EXPECT_TRUE(Has(lines, {113, 28.62}, {113, 178.62}));
    EXPECT_TRUE(Has(lines, {210, 33.62}, {210, 173.62}));
    EXPECT_FALSE(Has(lines, {210, 33.62}, {210, 173.65}));
}

TEST_F(PlanPdf, ALargePlanKeepsItsLengths) {
    const auto printer = MakePdfPrinter(bytes, "plan");
    ImprimePlanEntier(*printer, {OneLine({0, 0}, {4800, -700})}, kPlanColours);
    const ReadPdf pdf = Write(*printer);
    EXPECT_NEAR(pdf.PageSizes().at(0).width() * kPointMm, 4820, 0.5);
    EXPECT_TRUE(Has(pdf.Lines(1), {10, 10}, {4810, 710}));
}

// Steps of 267 and 180 mm; 0.09 mm before the drawing.
TEST_F(PlanPdf, SheetsShowTheirParts) {
    const auto printer = MakePdfPrinter(bytes, "plan");
    DessinPlan plan = PlanByHand();
    plan.traits.push_back({CouchePlan::nervure, {{265, -40}, {265, -170}}, false});
    ImprimePlanEnFeuilles(*printer, {plan}, kPlanColours, {}, {"wing", "measure", " mm"});
    const ReadPdf pdf = Write(*printer);
    ASSERT_EQ(pdf.PageSizes().size(), 3U); // nothing but white on B2
    EXPECT_NEAR(pdf.PageSizes()[0].width(), 842, 1);
    const double top = 10.09 + 13.62;
    EXPECT_TRUE(Has(pdf.Lines(1), {275.09, top + 40}, {275.09, top + 170}));
    EXPECT_TRUE(Has(pdf.Lines(2), {275.09 - 267, top + 40}, {275.09 - 267, top + 170}));
    EXPECT_TRUE(Has(pdf.Lines(1), {282, 10}, {282, 20})); // a cross, and its other
    EXPECT_TRUE(Has(pdf.Lines(2), {15, 10}, {15, 20}));
}

} // namespace
} // namespace loftwing
