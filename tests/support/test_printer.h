/// A printer for tests: every call in its order, every sheet as a list of operations.
#pragma once

#include "base/failure.h"
#include "base/number_text.h"
#include "output/printer.h"
#include "output/recording.h"

#include <algorithm>
#include <string>
#include <vector>

namespace loftwing {

class TestPrinter : public Printer {
  public:
    std::vector<std::string> calls; ///< "draw" stands for any number of operations in a row
    std::vector<std::vector<Operation>> sheets = std::vector<std::vector<Operation>>(1);
    int fails_at_sheet = -1; ///< NewPage to this sheet, counted from 0, is a device error
    bool fails_at_end = false;
    std::string file;    ///< which the job is written to
    SheetSize own_paper; ///< what is set in the printer, as it lies

    void SetOrientation(Orientation orientation) override {
        calls.emplace_back(orientation == Orientation::landscape ? "landscape" : "portrait");
        landscape_ = orientation == Orientation::landscape;
    }
    void SetPaperSize(double short_side, double long_side) override {
        calls.push_back("paper " + NumberText(short_side) + " " + NumberText(long_side));
        short_ = std::min(short_side, long_side);
        long_ = std::max(short_side, long_side);
    }
    SheetSize SizeOfSheets() const override {
        if (long_ == 0) {
            return own_paper;
        }
        return landscape_ ? SheetSize{long_, short_} : SheetSize{short_, long_};
    }
    void NewPage() override {
        if (std::ssize(sheets) == fails_at_sheet) {
            throw MakeFailure(kDeviceError);
        }
        calls.emplace_back("new page");
        sheets.emplace_back();
    }
    void EndDoc() override {
        if (fails_at_end) {
            throw MakeFailure(kDiskFull);
        }
        calls.emplace_back("end");
    }
    void Abort() override { calls.emplace_back("abort"); }
    std::string Fichier() const override { return file; }

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override {
        Draw(DrawnSegment{x1, y1, x2, y2, pen});
    }
    void CircleOutline(double x, double y, double radius, const Pen &pen) override {
        Draw(DrawnCircle{x, y, radius, pen});
    }
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override {
        const double advance = MeasuredAdvance(text, font);
        Draw(DrawnText{x, y, text, font, colour, advance});
        return advance;
    }

  private:
    bool landscape_ = false;
    double short_ = 0;
    double long_ = 0;

    void Draw(const Operation &operation) {
        if (calls.empty() || calls.back() != "draw") {
            calls.emplace_back("draw");
        }
        sheets.back().push_back(operation);
    }
};

} // namespace loftwing
