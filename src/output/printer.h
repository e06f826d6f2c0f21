/// A printer: a drawing surface of sheets.
#pragma once

#include "output/plot_device.h"

namespace loftwing {

enum class Orientation { portrait, landscape };

/// A sheet as it lies, mm; both 0 where that isn't known.
struct SheetSize {
    double width = 0;
    double height = 0;
};

/// One print job. Origin of every sheet is its upper left corner, margins included; 56.7 units are
/// exactly one millimetre; what lies outside the sheet is cut off. Failures 57 and 61 stop a job.
class Printer : public PlotDevice {
  public:
    /// Turns the sheets. Takes effect from the first sheet on, so it is set before drawing.
    virtual void SetOrientation(Orientation orientation) = 0;
    /// Size of the sheets in mm, both 0 for the paper that is set in the printer.
    virtual void SetPaperSize(double short_side, double long_side) = 0;
    /// What there is to draw on, with the orientation and the paper that are set.
    virtual SheetSize SizeOfSheets() const { return {}; }
    /// Ends a sheet and begins the next.
    virtual void NewPage() = 0;
    /// Ends the job and sends it on. Failure 57 when that is refused.
    virtual void EndDoc() = 0;
    /// Drops the job: nothing is printed, no file is left. A job that is destroyed without EndDoc
    /// is dropped too.
    virtual void Abort() = 0;
    /// The file that EndDoc writes; empty where it is no file that the user named.
    virtual std::string Fichier() const { return {}; }
};

} // namespace loftwing
