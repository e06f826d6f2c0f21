// The check line on the sheets of the window's PDF, as another program measures it.

#include "output/page_setup.h"
#include "support/qt_pdf.h"
#include "support/qt_window_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QRegularExpression>

#include <cmath>

namespace loftwing {
namespace {

class CheckLineOfAPdf : public testing::Test {
  protected:
    void Open(const std::string &unit = "mm") {
        world = std::make_unique<WindowWorld>("English", unit);
        world->Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    }
    MiseEnPage &Page() { return world->programme.settings.page; }
    void Chord(float mm) {
        world->programme.rib.corde = mm;
        Page().recouvrement = 20;
        Page().NbPages = 2; // the page has been set up
    }
    ReadPdf Pdf(const std::string &name = "rib.pdf") {
        const std::string path = world->folder.Path(name);
        world->platform.files_expected = {path};
        world->Action("mnu_filepdf")->trigger();
        return ReadPdf(Q(path));
    }
    static QString Words(const ReadPdf &pdf, int page) {
        const QString number = QString::number(page);
        return QString::fromUtf8(
                   OutputOf("pdftotext", {"-layout", "-f", number, "-l", number, pdf.Path(), "-"}))
            .simplified();
    }
    /// Whether a sheet has two lines of this length that make a right angle at one end.
    static void ExpectCheckLine(const std::vector<QPolygonF> &lines, double length) {
        constexpr double kExact = 0.02; // mm
        const auto arm = [&](bool along) -> const QPolygonF * {
            const QPolygonF *found = nullptr;
            for (const QPolygonF &line : lines) {
                const QPointF way = line.back() - line.front();
                const double far = along ? way.x() : way.y();
                const double off = along ? way.y() : way.x();
                if (line.size() == 2 && std::abs(off) < kExact &&
                    std::abs(std::abs(far) - length) < kExact) {
                    EXPECT_EQ(found, nullptr) << "two of them";
                    found = &line;
                }
            }
            return found;
        };
        const QPolygonF *along = arm(true);
        const QPolygonF *across = arm(false);
        ASSERT_TRUE(along != nullptr && across != nullptr);
        EXPECT_NEAR(along->front().x(), across->front().x(), kExact);
        EXPECT_NEAR(along->front().y(), across->front().y(), kExact);
        // The ticks at the far ends: what the ruler is laid on.
        const auto tick = [&](const QPointF &end) {
            return std::any_of(lines.begin(), lines.end(), [&](const QPolygonF &line) {
                const QPointF off = line.front() - end;
                const QPointF way = line.back() - line.front();
                return std::hypot(off.x(), off.y()) < kExact &&
                       std::abs(std::hypot(way.x(), way.y()) - 4) < kExact;
            });
        };
        EXPECT_TRUE(tick(along->back()));
        EXPECT_TRUE(tick(across->back()));
    }

    std::unique_ptr<WindowWorld> world;
};

TEST_F(CheckLineOfAPdf, IsThereUnlessItWasTurnedOff) {
    Open();
    const ReadPdf with = Pdf();
    ExpectCheckLine(with.Lines(1), 100);
    static const QRegularExpression kNote("Print at 100 %, measure this line : 100 mm naca2412 "
                                          "chord 200 mm, sheet 1 of 1, \\d{4}-\\d\\d-\\d\\d");
    EXPECT_TRUE(Words(with, 1).contains(kNote)) << Words(with, 1).toStdString();

    Page().temoin = false;
    const ReadPdf without = Pdf("bare.pdf");
    EXPECT_FALSE(Words(without, 1).contains("measure"));
    // The rib is the same, and stands where it stood.
    const std::vector<QPolygonF> bare = without.Lines(1);
    const std::vector<QPolygonF> all = with.Lines(1);
    ASSERT_EQ(all.size(), bare.size() + 22);
    EXPECT_TRUE(std::equal(bare.begin(), bare.end(), all.begin()));
}

TEST_F(CheckLineOfAPdf, IsExactOnEverySheetOfEveryPaper) {
    Open();
    Page().papiers = {{"roll", 500, 250}, {"", 297, 420}};
    for (int paper = 0; paper < NombrePapiers(Page()); ++paper) {
        SCOPED_TRACE(paper);
        Page().NumIndex = static_cast<std::uint8_t>(paper);
        Chord(500);
        // One sheet of A4, which such a rib leaves.
        if (paper == kPapierImprimante) {
            world->platform.Expect(BoxAnswer::yes);
        }
        const ReadPdf pdf = Pdf("rib" + std::to_string(paper) + ".pdf");
        const int pages = static_cast<int>(pdf.PageSizes().size());
        ASSERT_GE(pages, 1);
        for (int page = 1; page <= pages; ++page) {
            SCOPED_TRACE(page);
            ExpectCheckLine(pdf.Lines(page), 100);
        }
    }
}

TEST_F(CheckLineOfAPdf, HasFourInchesInInches) {
    Open("in");
    ValeursPouces(Page());
    const ReadPdf pdf = Pdf();
    ExpectCheckLine(pdf.Lines(1), 101.6);
    EXPECT_TRUE(Words(pdf, 1).contains("measure this line : 4 in naca2412 chord 8 in, "))
        << Words(pdf, 1).toStdString();
}

TEST_F(CheckLineOfAPdf, TheCorrectionIsNotForIt) {
    Open();
    world->programme.settings.correction = {1.02, 0.98};
    ExpectCheckLine(Pdf().Lines(1), 100);
}

TEST_F(CheckLineOfAPdf, OtherFilesHaveNone) {
    Open();
    world->platform.files_expected = {world->folder.Path("rib.svg")};
    world->Action("mnu_filesvg")->trigger();
    EXPECT_EQ(world->folder.Bytes("rib.svg").find("measure"), std::string::npos);
    EXPECT_GT(world->folder.Bytes("rib.svg").size(), 1000U);
}

} // namespace
} // namespace loftwing
