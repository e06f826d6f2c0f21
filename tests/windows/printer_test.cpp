#include "platform/qt_plot_device.h"
#include "platform/qt_printer.h"
#include "support/failures.h"
#include "support/qt_pdf.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPrinter>
#include <QRegularExpression>

#include <filesystem>
#include <functional>

namespace loftwing {

namespace {

constexpr double kTrue = 0.05; // mm
constexpr double kMm = kUnitsPerMm;

using Draw = std::function<void(Printer &)>;

/// A PDF in a folder of its own, drawn by `draw`.
class Pdf {
  public:
    explicit Pdf(const Draw &draw) {
        const auto printer = MakePdfPrinter(bytes_, "Clark Y é");
        draw(*printer);
        printer->EndDoc();
        folder_.File("sheets.pdf", bytes_);
    }

    ReadPdf Read() const { return ReadPdf(QString::fromStdString(folder_.Path("sheets.pdf"))); }
    const std::string &Bytes() const { return bytes_; }

    /// A part of a page, in pixels of a hundredth of a millimetre.
    QImage Picture(int page, const QRect &part) const {
        const QString number = QString::number(page);
        return QImage::fromData(
            OutputOf("pdftocairo", {"-png", "-singlefile", "-r", "2540", "-f", number, "-l", number,
                                    "-x", QString::number(part.x()), "-y",
                                    QString::number(part.y()), "-W", QString::number(part.width()),
                                    "-H", QString::number(part.height()), Read().Path(), "-"}));
    }

  private:
    std::string bytes_;
    TempFolder folder_;
};

void OnA4(Printer &printer) {
    printer.SetOrientation(Orientation::landscape);
    printer.SetPaperSize(210, 297);
}

void ExpectLine(const QPolygonF &line, QPointF from, QPointF to) {
    ASSERT_GE(line.size(), 2);
    EXPECT_NEAR(line.front().x(), from.x(), kTrue);
    EXPECT_NEAR(line.front().y(), from.y(), kTrue);
    EXPECT_NEAR(line.back().x(), to.x(), kTrue);
    EXPECT_NEAR(line.back().y(), to.y(), kTrue);
}

/// Two lines whose places are known, 200 mm and 50 mm long.
void DrawKnownLines(PlotDevice &device) {
    device.Line(10 * kMm, 50 * kMm, 210 * kMm, 50 * kMm, 0);
    device.Line(280 * kMm, 150 * kMm, 280 * kMm, 200 * kMm, 0xFF0000);
}

void ExpectKnownLines(const std::vector<QPolygonF> &lines) {
    ASSERT_EQ(lines.size(), 2U);
    ExpectLine(lines[0], {10, 50}, {210, 50});
    ExpectLine(lines[1], {280, 150}, {280, 200});
}

} // namespace

TEST(PdfPrinter, LinesAreTrueToTheMillimetreFromTheSheetsCorner) {
    const Pdf pdf([](Printer &printer) {
        OnA4(printer);
        DrawKnownLines(printer);
    });
    ExpectKnownLines(pdf.Read().Lines(1));
}

TEST(PdfPrinter, LinesAreTrueOnEverySheet) {
    const Pdf pdf([](Printer &printer) {
        OnA4(printer);
        printer.NewPage();
        DrawKnownLines(printer);
        printer.NewPage();
        DrawKnownLines(printer);
    });
    ASSERT_EQ(pdf.Read().PageSizes().size(), 3U);
    EXPECT_TRUE(pdf.Read().Lines(1).empty());
    ExpectKnownLines(pdf.Read().Lines(2));
    ExpectKnownLines(pdf.Read().Lines(3));
}

TEST(PdfPrinter, SheetsHaveTheSizeOfThePaper) {
    const double papers[][2] = {{210, 297},     {215.9, 279.4},  {215.9, 304.8},
                                {215.9, 355.6}, {184.15, 266.7}, {257, 364},
                                {279.4, 431.8}, {297, 420},      {123.4, 567.8}};
    for (const auto &[short_side, long_side] : papers) {
        const Pdf pdf([&](Printer &printer) {
            printer.SetOrientation(Orientation::landscape);
            printer.SetPaperSize(short_side, long_side);
            printer.Line(10 * kMm, 50 * kMm, 100 * kMm, 50 * kMm, 0);
        });
        const std::vector<QSizeF> sizes = pdf.Read().PageSizes();
        ASSERT_EQ(sizes.size(), 1U);
        EXPECT_NEAR(sizes[0].width(), long_side * 72 / 25.4, 0.5);
        EXPECT_NEAR(sizes[0].height(), short_side * 72 / 25.4, 0.5);
        ExpectLine(pdf.Read().Lines(1).at(0), {10, 50}, {100, 50});
    }
}

TEST(PdfPrinter, PortraitStandsOnTheShortSide) {
    const Pdf pdf([](Printer &printer) {
        printer.SetPaperSize(210, 297);
        printer.SetOrientation(Orientation::portrait);
        printer.Line(200 * kMm, 0, 200 * kMm, 290 * kMm, 0);
    });
    const QSizeF size = pdf.Read().PageSizes().at(0);
    EXPECT_NEAR(size.width(), 595.28, 0.5);
    EXPECT_NEAR(size.height(), 841.89, 0.5);
    ExpectLine(pdf.Read().Lines(1).at(0), {200, 0}, {200, 290});
}

TEST(PdfPrinter, PaperThatIsNotSetIsThePrintersOwn) {
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, "", QPageSize(QPageSize::A5));
    printer->SetOrientation(Orientation::landscape);
    printer->SetPaperSize(210, 297);
    printer->SetPaperSize(0, 0);
    printer->EndDoc();
    const TempFolder folder;
    const ReadPdf pdf(QString::fromStdString(folder.File("a5.pdf", bytes)));
    EXPECT_NEAR(pdf.PageSizes().at(0).width(), 210 * 72 / 25.4, 0.5);
    EXPECT_NEAR(pdf.PageSizes().at(0).height(), 148 * 72 / 25.4, 0.5);
}

TEST(PdfPrinter, WhatLiesOffTheSheetIsCutOff) {
    const Pdf pdf([](Printer &printer) {
        OnA4(printer);
        printer.DrawWidth = 3;
        printer.Line(-50 * kMm, 100 * kMm, 50 * kMm, 100 * kMm, 0);
        printer.Line(250 * kMm, 120 * kMm, 500 * kMm, 120 * kMm, 0);
    });
    const auto dark = [&pdf](int x, int y) {
        return qGray(pdf.Picture(1, QRect(x, y, 1, 1)).pixel(0, 0)) < 128;
    };
    EXPECT_TRUE(dark(30, 10000));
    EXPECT_TRUE(dark(4970, 10000));
    EXPECT_FALSE(dark(5030, 10000));
    EXPECT_FALSE(dark(24970, 12000));
    EXPECT_TRUE(dark(29650, 12000));
    EXPECT_EQ(pdf.Read().PageSizes().size(), 1U);
}

TEST(PdfPrinter, PensHaveTheirWidthsInMillimetres) {
    const Pdf pdf([](Printer &printer) {
        OnA4(printer);
        for (int width = 1; width <= 3; ++width) {
            printer.DrawWidth = width;
            printer.Line(10 * kMm, width * 10 * kMm, 60 * kMm, width * 10 * kMm, 0);
        }
    });
    const double widths[] = {18, 35, 50};
    for (int pen = 1; pen <= 3; ++pen) {
        const QImage column = pdf.Picture(1, QRect(3000, pen * 1000 - 100, 1, 200));
        ASSERT_EQ(column.height(), 200);
        int dark = 0;
        for (int y = 0; y < column.height(); ++y) {
            dark += qGray(column.pixel(0, y)) < 128 ? 1 : 0;
        }
        EXPECT_NEAR(dark, widths[pen - 1], 2) << pen;
    }
}

TEST(PdfPrinter, ARunOfStepsIsOneLine) {
    const Pdf pdf([](Printer &printer) {
        OnA4(printer);
        printer.DrawStyle = 1;
        printer.CurrentX = 20 * kMm;
        printer.CurrentY = 30 * kMm;
        for (int i = 0; i < 100; ++i) {
            printer.LineStep(0.5 * kMm, i % 2 == 0 ? 5 : -5, 0);
        }
        printer.LineStep(kMm, 0, 0xFF0000);
    });
    const std::vector<QPolygonF> lines = pdf.Read().Lines(1);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].size(), 101);
    ExpectLine(lines[0], {20, 30}, {70, 30});
    ExpectLine(lines[1], {70, 30}, {71, 30});
}

TEST(PdfPrinter, TextsHaveRealPointsAndEmbeddedFonts) {
    const Pdf pdf([](Printer &printer) {
        OnA4(printer);
        printer.Font.size = 20;
        printer.CurrentX = 10 * kMm;
        printer.CurrentY = 10 * kMm;
        printer.Print("Clark Y");
    });
    const QString path = pdf.Read().Path();
    const QString xml =
        QString::fromUtf8(OutputOf("pdftohtml", {"-xml", "-i", "-stdout", "-zoom", "1", path}));
    EXPECT_TRUE(xml.contains("size=\"20\"")) << xml.toStdString();
    const QString fonts = QString::fromUtf8(OutputOf("pdffonts", {path}));
    const QStringList lines = fonts.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 3) << fonts.toStdString();
    static const QRegularExpression kEmbedded("Identity-H +yes");
    EXPECT_TRUE(lines[2].contains(kEmbedded)) << fonts.toStdString();
    const QString words = QString::fromUtf8(OutputOf("pdftotext", {"-bbox", path, "-"}));
    static const QRegularExpression kWord(
        "xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\"[^>]*>Clark<");
    const QRegularExpressionMatch word = kWord.match(words);
    ASSERT_TRUE(word.hasMatch()) << words.toStdString();
    EXPECT_NEAR(word.captured(1).toDouble(), 10 * 72 / 25.4, 0.1);
    // A reader takes the top from the font's box, which may reach a little above its ascent.
    EXPECT_NEAR(word.captured(2).toDouble(), 10 * 72 / 25.4, 3);
}

TEST(PdfPrinter, PrintMovesPastTheText) {
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, "");
    printer->Font.size = 12;
    printer->Print("Clark Y");
    EXPECT_DOUBLE_EQ(printer->CurrentX, PaperAdvance("Clark Y", {"Arial", 12}));
    EXPECT_GT(printer->CurrentX, 3 * 12 * kUnitsPerPoint);
    EXPECT_EQ(printer->CurrentY, 0);
}

TEST(PdfPrinter, SaysItsTitleAndWhoMadeIt) {
    const Pdf pdf([](Printer &printer) { DrawKnownLines(printer); });
    EXPECT_EQ(pdf.Read().Information("Title").toStdString(), "Clark Y é");
    EXPECT_EQ(pdf.Read().Information("Creator").toStdString(), "Loftwing");
}

TEST(PdfPrinter, TheSameDrawingIsTheSameFileButForItsDate) {
    const auto bytes = [] {
        const Pdf pdf([](Printer &printer) {
            OnA4(printer);
            DrawKnownLines(printer);
            printer.Print("Clark Y");
        });
        static const QRegularExpression kDate("/CreationDate \\(D:[^)]*\\)");
        return QString::fromLatin1(QByteArray::fromStdString(pdf.Bytes())).remove(kDate);
    };
    const QString first = bytes();
    EXPECT_GT(first.size(), 1000);
    EXPECT_EQ(first, bytes());
}

TEST(PdfPrinter, AJobWithoutDrawingIsOneWhiteSheet) {
    const Pdf pdf([](Printer &printer) { OnA4(printer); });
    EXPECT_EQ(pdf.Read().PageSizes().size(), 1U);
}

TEST(PdfFilePrinter, AppearsWhenItIsWhole) {
    const TempFolder folder;
    const std::string path = folder.Path("rib.pdf");
    const auto printer = MakePdfFilePrinter(path, "rib");
    OnA4(*printer);
    DrawKnownLines(*printer);
    EXPECT_EQ(folder.Entries(), 0);
    printer->EndDoc();
    EXPECT_EQ(folder.Entries(), 1);
    ExpectKnownLines(ReadPdf(QString::fromStdString(path)).Lines(1));
}

TEST(PdfFilePrinter, AnAbortedJobLeavesNothing) {
    const TempFolder folder;
    const auto printer = MakePdfFilePrinter(folder.Path("rib.pdf"), "rib");
    DrawKnownLines(*printer);
    printer->NewPage();
    printer->Abort();
    EXPECT_EQ(folder.Entries(), 0);
}

TEST(PdfFilePrinter, AJobThatIsNotEndedKeepsTheOldFile) {
    const TempFolder folder;
    const std::string path = folder.File("rib.pdf", "older");
    {
        const auto printer = MakePdfFilePrinter(path, "rib");
        DrawKnownLines(*printer);
    }
    EXPECT_EQ(folder.Bytes("rib.pdf"), "older");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(PdfFilePrinter, AFileThatCannotBeWrittenSaysWhy) {
    const TempFolder folder;
    const auto printer = MakePdfFilePrinter(folder.Path("nowhere/rib.pdf"), "rib");
    DrawKnownLines(*printer);
    EXPECT_EQ(FailureOf([&] { printer->EndDoc(); }), kPathNotFound);
    EXPECT_EQ(folder.Entries(), 0);
}

TEST(SystemPrinter, PrintsTheSameSheets) {
    // The toolkit's printer without a queue: the same way to the paper, ending in a file.
    const TempFolder folder;
    const QString path = QString::fromStdString(folder.Path("queue.pdf"));
    auto queue = std::make_unique<QPrinter>(QPrinter::HighResolution);
    queue->setOutputFormat(QPrinter::PdfFormat);
    queue->setOutputFileName(path);
    const auto printer = MakeSystemPrinter(std::move(queue));
    OnA4(*printer);
    DrawKnownLines(*printer);
    printer->NewPage();
    DrawKnownLines(*printer);
    EXPECT_EQ(folder.Entries(), 0) << "nothing is sent before the end";
    printer->EndDoc();
    const ReadPdf pdf(path);
    ASSERT_EQ(pdf.PageSizes().size(), 2U);
    EXPECT_NEAR(pdf.PageSizes()[0].width(), 297 * 72 / 25.4, 0.5);
    ExpectKnownLines(pdf.Lines(1));
    ExpectKnownLines(pdf.Lines(2));
}

TEST(SystemPrinter, StretchesItsSheetsFromTheirCorner) {
    const TempFolder folder;
    const QString path = QString::fromStdString(folder.Path("queue.pdf"));
    auto queue = std::make_unique<QPrinter>(QPrinter::HighResolution);
    queue->setOutputFormat(QPrinter::PdfFormat);
    queue->setOutputFileName(path);
    const auto printer = MakeSystemPrinter(std::move(queue), {1.02, 0.97});
    OnA4(*printer);
    DrawKnownLines(*printer);
    printer->NewPage();
    DrawKnownLines(*printer);
    printer->EndDoc();
    const ReadPdf pdf(path);
    EXPECT_NEAR(pdf.PageSizes().at(0).width(), 297 * 72 / 25.4, 0.5);
    for (const int page : {1, 2}) {
        const std::vector<QPolygonF> lines = pdf.Lines(page);
        ASSERT_EQ(lines.size(), 2U);
        ExpectLine(lines[0], {10.2, 48.5}, {214.2, 48.5});
        ExpectLine(lines[1], {285.6, 145.5}, {285.6, 194});
    }
}

TEST(SystemPrinter, StretchedSheetsHoldLess) {
    const auto printer = MakeSystemPrinter(std::make_unique<QPrinter>(), {1.02, 0.97});
    OnA4(*printer);
    EXPECT_NEAR(printer->SizeOfSheets().width, 297 / 1.02, 0.01);
    EXPECT_NEAR(printer->SizeOfSheets().height, 210, 0.01);
}

TEST(SystemPrinter, ThePapersSizeIsThatOfTheQueueWhereNoneIsSet) {
    auto queue = std::make_unique<QPrinter>();
    queue->setPageSize(QPageSize(QPageSize::A3));
    const auto printer = MakeSystemPrinter(std::move(queue));
    printer->SetOrientation(Orientation::landscape);
    printer->SetPaperSize(0, 0);
    EXPECT_NEAR(printer->SizeOfSheets().width, 420, 0.1);
    EXPECT_NEAR(printer->SizeOfSheets().height, 297, 0.1);
}

TEST(PdfPrinter, SizeOfSheetsIsThatOfThePaperAsItLies) {
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, "", QPageSize(QPageSize::A5));
    printer->SetPaperSize(123, 2000);
    printer->SetOrientation(Orientation::portrait);
    EXPECT_NEAR(printer->SizeOfSheets().width, 123, 0.1);
    EXPECT_NEAR(printer->SizeOfSheets().height, 2000, 0.1);
    printer->SetOrientation(Orientation::landscape);
    EXPECT_NEAR(printer->SizeOfSheets().width, 2000, 0.1);
    printer->SetPaperSize(0, 0);
    EXPECT_NEAR(printer->SizeOfSheets().width, 210, 0.1);
    EXPECT_NEAR(printer->SizeOfSheets().height, 148, 0.1);
}

TEST(SystemPrinter, ADeviceThatDoesNotBeginIsADeviceError) {
    const TempFolder folder;
    auto queue = std::make_unique<QPrinter>(QPrinter::HighResolution);
    queue->setOutputFormat(QPrinter::PdfFormat);
    queue->setOutputFileName(QString::fromStdString(folder.Path("nowhere/queue.pdf")));
    const auto printer = MakeSystemPrinter(std::move(queue));
    DrawKnownLines(*printer);
    EXPECT_EQ(FailureOf([&] { printer->EndDoc(); }), kDeviceError);
}

TEST(PaperOf, TakesAStandardSizeWithinATenthOfAMillimetre) {
    EXPECT_EQ(PaperOf(210, 297).id(), QPageSize::A4);
    EXPECT_EQ(PaperOf(297, 210).id(), QPageSize::A4);
    EXPECT_EQ(PaperOf(210.08, 296.95).id(), QPageSize::A4);
    EXPECT_EQ(PaperOf(215.9, 279.4).id(), QPageSize::Letter);
    EXPECT_EQ(PaperOf(297, 420).id(), QPageSize::A3);
}

TEST(PaperOf, TakesAnyOtherSizeAsItIs) {
    const QPageSize paper = PaperOf(210.5, 297);
    EXPECT_EQ(paper.id(), QPageSize::Custom);
    EXPECT_DOUBLE_EQ(paper.size(QPageSize::Millimeter).width(), 210.5);
    EXPECT_DOUBLE_EQ(paper.size(QPageSize::Millimeter).height(), 297);
}

TEST(PaperOf, RefusesPaperWithoutExtent) {
    EXPECT_EQ(FailureOf([] { PaperOf(0, 297); }), kInvalidProcedureCall);
    EXPECT_EQ(FailureOf([] { PaperOf(210, -1); }), kInvalidProcedureCall);
}

} // namespace loftwing
