#include "platform/qt_printer.h"

#include "base/failure.h"
#include "base/version.h"
#include "base/whole_file.h"
#include "platform/qt_path.h"
#include "platform/qt_sheet.h"
#include "platform/qt_text.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintEngine>
#include <QPrinter>

#include <algorithm>
#include <cmath>
#include <deque>
#include <optional>

namespace loftwing {

namespace {

/// One dot is 0.02 mm; places between dots are kept.
constexpr int kDpi = 1200;
constexpr double kSamePaper = 0.1; // mm

bool IsNear(double one, double other) {
    constexpr double kSheetsDiffer = 1; // mm; printers round the measures of their papers
    return std::abs(one - other) <= kSheetsDiffer;
}

QPageLayout::Orientation LayoutOf(Orientation orientation) {
    return orientation == Orientation::landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

SheetSize SizeOf(const QPageSize &paper, Orientation orientation) {
    const QPageLayout layout(paper, LayoutOf(orientation), {});
    const QSizeF size = layout.fullRect(QPageLayout::Millimeter).size();
    return {size.width(), size.height()};
}

/// Failure 57 where the device would print on other paper, or the other way round.
void SetLayout(QPagedPaintDevice &device, const std::optional<QPageSize> &paper,
               Orientation orientation) {
    QPageLayout layout = device.pageLayout();
    // The origin is the sheet's corner, whatever rim the printer leaves white. That rim stays in
    // the layout: printers refuse one without.
    layout.setMode(QPageLayout::FullPageMode);
    if (paper) {
        layout.setPageSize(*paper, layout.minimumMargins());
    }
    layout.setOrientation(LayoutOf(orientation));
    // What the call answers also depends on the rim and the paper's name; only the sheet counts.
    device.setPageLayout(layout);
    const QRectF wanted = layout.fullRect(QPageLayout::Millimeter);
    const QRectF got = device.pageLayout().fullRect(QPageLayout::Millimeter);
    if (device.pageLayout().mode() != QPageLayout::FullPageMode ||
        !IsNear(wanted.width(), got.width()) || !IsNear(wanted.height(), got.height())) {
        throw MakeFailure(kDeviceError, S(layout.pageSize().name()));
    }
}

void DrawSheets(QPagedPaintDevice &device, const std::deque<Sheet> &sheets,
                const SheetStretch &stretch = {}) {
    QPainter painter;
    if (!painter.begin(&device)) {
        throw MakeFailure(kDeviceError);
    }
    const PlotSurface surface = PaperSurface(device.logicalDpiX());
    const QSize size = device.pageLayout().fullRectPixels(device.logicalDpiX()).size();
    const bool stretched = stretch.x != 1 || stretch.y != 1;
    for (const Sheet &sheet : sheets) {
        if (&sheet != &sheets.front() && !device.newPage()) {
            throw MakeFailure(kDeviceError);
        }
        // A file that isn't stretched has no trace of it.
        if (stretched) {
            painter.resetTransform();
        }
        painter.setClipRect(QRect({}, size));
        if (stretched) {
            painter.scale(stretch.x, stretch.y);
        }
        Replay(sheet, painter, surface);
    }
    if (!painter.end()) {
        throw MakeFailure(kDeviceError);
    }
}

/// What all jobs have in common: sheets are kept, and sent at the end.
class SheetPrinter : public Printer {
  public:
    explicit SheetPrinter(const std::optional<QPageSize> &paper)
        : own_paper_(paper), paper_(paper) {}

    void SetOrientation(Orientation orientation) override { orientation_ = orientation; }
    void SetPaperSize(double short_side, double long_side) override {
        const bool own = short_side == 0 && long_side == 0;
        paper_ = own ? own_paper_ : PaperOf(short_side, long_side);
    }
    SheetSize SizeOfSheets() const override {
        return paper_ ? SizeOf(*paper_, orientation_) : SheetSize{};
    }
    void NewPage() override { sheets_.emplace_back(); }
    void EndDoc() override {
        Send(sheets_);
        Abort();
    }
    void Abort() override {
        sheets_.clear();
        sheets_.emplace_back();
    }

  protected:
    virtual void Send(const std::deque<Sheet> &sheets) = 0;

    Orientation Lie() const { return orientation_; }
    void SetUp(QPagedPaintDevice &device) const { SetLayout(device, paper_, orientation_); }

    void Segment(double x1, double y1, double x2, double y2, const Pen &pen) override {
        sheets_.back().Segment(x1, y1, x2, y2, pen);
    }
    void CircleOutline(double x, double y, double radius, const Pen &pen) override {
        sheets_.back().CircleOutline(x, y, radius, pen);
    }
    double Text(double x, double y, const std::string &text, const TextFont &font,
                Colour colour) override {
        return sheets_.back().Text(x, y, text, font, colour);
    }

  private:
    std::optional<QPageSize> own_paper_; ///< nothing: what the device has
    std::optional<QPageSize> paper_;
    Orientation orientation_ = Orientation::portrait;
    std::deque<Sheet> sheets_ = std::deque<Sheet>(1);
};

class PdfPrinter : public SheetPrinter {
  public:
    PdfPrinter(const std::string &title, const QPageSize &paper)
        : SheetPrinter(paper), title_(Q(title)) {}

  protected:
    void Send(const std::deque<Sheet> &sheets) override {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(kDpi);
        writer.setTitle(title_);
        writer.setCreator(QString::fromLatin1(kTitre));
        SetUp(writer);
        DrawSheets(writer, sheets);
        Deliver(bytes.toStdString());
    }
    virtual void Deliver(std::string bytes) = 0;

  private:
    QString title_;
};

class MemoryPdf : public PdfPrinter {
  public:
    MemoryPdf(std::string &bytes, const std::string &title, const QPageSize &paper)
        : PdfPrinter(title, paper), bytes_(bytes) {}

  protected:
    void Deliver(std::string bytes) override { bytes_ = std::move(bytes); }

  private:
    std::string &bytes_;
};

class FilePdf : public PdfPrinter {
  public:
    FilePdf(const std::string &path, const std::string &title, const QPageSize &paper)
        : PdfPrinter(title, paper), path_(path) {}

    std::string Fichier() const override { return Path(QFileInfo(Q(path_)).absoluteFilePath()); }

  protected:
    void Deliver(std::string bytes) override { WriteWholeFile(path_, bytes, Flush::yes); }

  private:
    std::string path_;
};

/// Tells the queue not to fit sheets to what the printer can reach: that would shrink them. The
/// toolkit has no public name for a queue's options; where there is no such queue, this does
/// nothing.
void ForbidScaling(QPrinter &printer) {
    constexpr auto kQueueOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xFE00);
    QStringList options = printer.printEngine()->property(kQueueOptions).toStringList();
    options << "print-scaling"
            << "none";
    printer.printEngine()->setProperty(kQueueOptions, options);
}

class SystemPrinter : public SheetPrinter {
  public:
    SystemPrinter(std::unique_ptr<QPrinter> printer, const SheetStretch &stretch)
        : SheetPrinter(std::nullopt), printer_(std::move(printer)), stretch_(stretch) {}

    /// Of what is stretched less goes onto a sheet. Of what is shrunk no more does: the printer
    /// enlarges it again.
    SheetSize SizeOfSheets() const override {
        SheetSize size = SheetPrinter::SizeOfSheets();
        if (!(size.width > 0)) {
            size = SizeOf(printer_->pageLayout().pageSize(), Lie());
        }
        return {size.width / std::max(1.0, stretch_.x), size.height / std::max(1.0, stretch_.y)};
    }

  protected:
    void Send(const std::deque<Sheet> &sheets) override {
        SetUp(*printer_);
        ForbidScaling(*printer_);
        DrawSheets(*printer_, sheets, stretch_);
        if (printer_->printerState() == QPrinter::Error) {
            throw MakeFailure(kDeviceError, S(printer_->printerName()));
        }
    }

  private:
    std::unique_ptr<QPrinter> printer_;
    SheetStretch stretch_;
};

} // namespace

QPageSize PaperOf(double short_side, double long_side) {
    if (!(short_side > 0 && long_side > 0)) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    const QSizeF size(std::min(short_side, long_side), std::max(short_side, long_side));
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        const auto standard = static_cast<QPageSize::PageSizeId>(id);
        if (standard == QPageSize::Custom) {
            continue;
        }
        const QSizeF its = QPageSize::size(standard, QPageSize::Millimeter);
        if (std::abs(its.width() - size.width()) <= kSamePaper &&
            std::abs(its.height() - size.height()) <= kSamePaper) {
            return QPageSize(standard);
        }
    }
    return QPageSize(size, QPageSize::Millimeter, {}, QPageSize::ExactMatch);
}

std::unique_ptr<Printer> MakePdfPrinter(std::string &bytes, const std::string &title,
                                        const QPageSize &paper) {
    return std::make_unique<MemoryPdf>(bytes, title, paper);
}

std::unique_ptr<Printer> MakePdfFilePrinter(const std::string &path, const std::string &title,
                                            const QPageSize &paper) {
    return std::make_unique<FilePdf>(path, title, paper);
}

std::unique_ptr<Printer> MakeSystemPrinter(std::unique_ptr<QPrinter> printer,
                                           const SheetStretch &stretch) {
    return std::make_unique<SystemPrinter>(std::move(printer), stretch);
}

} // namespace loftwing
