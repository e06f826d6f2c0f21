/// What stands on the sheets of PDF files, as other programs show it.
#pragma once

#include "e2e/laden_files.h"

#include <string>
#include <utility>
#include <vector>

namespace loftwing {

/// The rectangle of what isn't white on a page, mm.
struct Ink {
    double width = 0;
    double height = 0;
    bool operator==(const Ink &) const = default;
};

class PrintedFiles : public LadenFiles {
  protected:
    /// Skips the test where one of these isn't there.
    void NeedsPrograms(const std::vector<const char *> &programs);

    /// Prints a drawing at true scale in the middle of a sheet with a CAD program, and gives the
    /// sheet.
    std::string Printed(const std::string &dxf);

    /// Ink in the middle of a sheet, which for a drawing in inches is many times as large as A4.
    Ink InkOn(const std::string &pdf);

    /// Width and height of a sheet, mm.
    static std::pair<double, double> PageOf(const std::string &pdf);
};

} // namespace loftwing
