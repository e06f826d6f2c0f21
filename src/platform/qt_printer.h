/// Sheets at true scale: on a printer of the system, or as PDF.
#pragma once

#include "output/printer.h"
#include "platform/platform.h"

#include <QPageSize>

#include <memory>
#include <string>

class QPrinter;

namespace loftwing {

/// The paper of these measures in mm: the standard size that is within 0.1 mm of them, otherwise a
/// size of its own. Failure 5 where a measure isn't above 0.
QPageSize PaperOf(double short_side, double long_side);

// All three keep the sheets as recordings until EndDoc, which draws them. So a job that is dropped
// has left no trace anywhere, and size and orientation may be set up to the end. Failures show in
// EndDoc: 57 when the device or the file doesn't take the job, 61 when the disk is full.

/// A PDF in memory: `bytes`, which must live as long as the job, is set by EndDoc. `paper` is what
/// SetPaperSize(0, 0) stands for.
std::unique_ptr<Printer> MakePdfPrinter(std::string &bytes, const std::string &title,
                                        const QPageSize &paper = QPageSize(QPageSize::A4));

/// A PDF file. It takes the place of `path` when EndDoc has it whole; until then, and when that
/// fails, a file that was there stays.
std::unique_ptr<Printer> MakePdfFilePrinter(const std::string &path, const std::string &title,
                                            const QPageSize &paper = QPageSize(QPageSize::A4));

/// A job for a printer of the system, set up as the user chose it. All that is drawn is stretched
/// from the sheet's corner; what then lies beyond the sheet is cut off.
std::unique_ptr<Printer> MakeSystemPrinter(std::unique_ptr<QPrinter> printer,
                                           const SheetStretch &stretch = {});

} // namespace loftwing
