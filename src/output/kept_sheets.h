/// Sheets of a print run that are kept before they go to a printer.
#pragma once

#include "output/printer.h"
#include "output/recording.h"

#include <deque>

namespace loftwing {

/// A job that stays in memory, so that more may be drawn on its sheets when all of them are known.
/// It has no sheet until NewPage.
class KeptSheets : public Printer {
  public:
    /// `size`: of all sheets, as they lie.
    explicit KeptSheets(const SheetSize &size) : size_(size) {}

    std::deque<Recording> sheets;

    // Orientation and paper are those of the printer that gets the sheets.
    void SetOrientation(Orientation /*orientation*/) override {}
    void SetPaperSize(double /*short_side*/, double /*long_side*/) override {}
    SheetSize SizeOfSheets() const override { return size_; }
    void NewPage() override { sheets.emplace_back(); }
    void EndDoc() override {}
    void Abort() override { sheets.clear(); }

    /// Draws every sheet again on a printer that is set up.
    void SendTo(Printer &printer) const;

  protected:
    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override;
    void CircleOutline(double x, double y, double radius, const Pen &pen) override;
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override;

  private:
    SheetSize size_;

    PlotDevice &Last(const Pen &pen);
};

} // namespace loftwing
