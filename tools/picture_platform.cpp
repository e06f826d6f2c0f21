#include "picture_platform.h"

#include "output/printer.h"
#include "platform/qt_sheet.h"

#include <QPainter>

#include <iostream>

namespace loftwing {

namespace {

constexpr double kDotsPerMm = 5;
constexpr double kMmPerInch = 25.4;

/// Puts the first sheet of a job, which lies lengthwise, on a picture.
class SheetPicture : public Printer {
  public:
    SheetPicture(QImage &picture, const PrintQuestion &question)
        : picture_(picture), long_side_(question.long_side_mm),
          short_side_(question.short_side_mm) {}

    void SetOrientation(Orientation) override {}
    void SetPaperSize(double short_side, double long_side) override {
        short_side_ = short_side;
        long_side_ = long_side;
    }
    SheetSize SizeOfSheets() const override { return {long_side_, short_side_}; }
    void NewPage() override { ++pages_; }
    void Abort() override {}
    void EndDoc() override {
        picture_ = QImage(static_cast<int>(long_side_ * kDotsPerMm),
                          static_cast<int>(short_side_ * kDotsPerMm), QImage::Format_RGB32);
        picture_.fill(Qt::white);
        QPainter painter(&picture_);
        painter.setRenderHint(QPainter::Antialiasing);
        Replay(sheet_, painter, PaperSurface(kDotsPerMm * kMmPerInch));
        painter.setPen(Qt::gray);
        painter.drawRect(picture_.rect().adjusted(0, 0, -1, -1)); // the paper's edge
    }

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override {
        if (pages_ == 0) {
            sheet_.Segment(x1, y1, x2, y2, pen);
        }
    }
    void CircleOutline(double x, double y, double radius, const Pen &pen) override {
        if (pages_ == 0) {
            sheet_.CircleOutline(x, y, radius, pen);
        }
    }
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override {
        return pages_ == 0 ? sheet_.Text(x, y, text, font, colour) : PaperAdvance(text, font);
    }

  private:
    QImage &picture_;
    double long_side_;
    double short_side_;
    Sheet sheet_;
    int pages_ = 0;
};

} // namespace

PicturePlatform::PicturePlatform(std::string folder)
    : ConsolePlatform(std::cerr, true), folder_(std::move(folder)) {}

BoxAnswer PicturePlatform::Show(const MessageBox &box) {
    // The console's answers without its lines: only what is wrong is worth one.
    return box.icon == BoxIcon::information || box.icon == BoxIcon::question
               ? (box.buttons == BoxButtons::yes_no ? BoxAnswer::yes : box.fallback)
               : ConsolePlatform::Show(box);
}

std::unique_ptr<Printer> PicturePlatform::OpenPrinter(const PrintQuestion &question) {
    return std::make_unique<SheetPicture>(sheet_, question);
}

} // namespace loftwing
