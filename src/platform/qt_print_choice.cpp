// Where the real platform prints: a printer that the user chooses, or a PDF file.

#include "base/failure.h"
#include "output/printer.h"
#include "platform/qt_desktop.h"
#include "platform/qt_path.h"
#include "platform/qt_platform.h"
#include "platform/qt_pointer.h"
#include "platform/qt_printer.h"
#include "platform/qt_text.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QPageLayout>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <filesystem>

namespace loftwing {

namespace {

QPageSize PaperOfCountry() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

/// What the dialogs show at first: how the sheets will lie, and on which paper.
void Preselect(QPrinter &printer, const PrintQuestion &question,
               const std::optional<QPageSize> &paper) {
    QPageLayout layout = printer.pageLayout();
    layout.setOrientation(question.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (question.long_side_mm > 0 && question.short_side_mm > 0) {
        layout.setPageSize(PaperOf(question.short_side_mm, question.long_side_mm));
    } else if (paper) {
        layout.setPageSize(*paper);
    }
    printer.setPageLayout(layout);
}

} // namespace

void QtPlatform::ShowPrinterSettings() {
    if (StartPrinterSettings()) {
        return;
    }
    const PointerPause pause;
    QPrinter printer;
    printer.setPageSize(paper_.value_or(PaperOfCountry()));
    QPageSetupDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted) {
        paper_ = printer.pageLayout().pageSize();
    }
}

std::string QtPlatform::PrinterName() {
    const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
    if (!usual.isNull()) {
        return S(usual.printerName());
    }
    const QStringList names = QPrinterInfo::availablePrinterNames();
    return names.isEmpty() ? std::string() : S(names.front());
}

std::unique_ptr<Printer> QtPlatform::OpenPrinter(const PrintQuestion &question) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        return OpenPdf(question);
    }
    const PointerPause pause;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    Preselect(*printer, question, paper_);
    // The dialog makes the name of a PDF from that of the document.
    printer->setDocName(QFileInfo(Q(question.proposed_pdf)).fileName());
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    printer->setDocName(Q(question.document));
    if (printer->outputFormat() == QPrinter::PdfFormat) {
        return MakePdfFilePrinter(Path(printer->outputFileName()), question.document,
                                  printer->pageLayout().pageSize());
    }
    if (!printer->isValid()) {
        throw MakeFailure(kDeviceError, S(printer->printerName()));
    }
    return MakeSystemPrinter(std::move(printer), question.stretch);
}

std::unique_ptr<Printer> QtPlatform::OpenPdf(const PrintQuestion &question) {
    const QFileInfo proposed(Q(question.proposed_pdf));
    const bool placed = std::filesystem::path(question.proposed_pdf).has_parent_path();
    const std::string path =
        ChooseSaveFile({question.pdf_title.empty() ? question.document : question.pdf_title,
                        placed ? Path(proposed.path()) : std::string(), S(proposed.fileName()),
                        "PDF (*.pdf)", "pdf"});
    if (path.empty()) {
        return nullptr;
    }
    return MakePdfFilePrinter(path, question.document, paper_.value_or(PaperOfCountry()));
}

} // namespace loftwing
